// What the commands write: to the terminal, to files, and where that can't be.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "apoyo.h"
#include "comun/consola.h"
#include "comun/ficheros_memoria.h"
#include "comun/ficheros_nuevos.h"
#include "comun/memoria_escasa.h"
#include "comun/mundo_de_prueba.h"
#include "comun/salida_limpia.h"

namespace efv::orden::pruebas {
namespace {

using namespace efv::pruebas;

// Piece by piece, of each length.
std::string Limpio(const std::string& texto)
{
    std::string entero;
    for (std::size_t nTrozo = 1; nTrozo <= texto.size(); ++nTrozo) {
        std::stringbuf destino;
        SalidaLimpia limpia(destino);
        std::ostream salida(&limpia);
        for (std::size_t i = 0; i < texto.size(); i += nTrozo)
            salida << texto.substr(i, nTrozo);
        EXPECT_TRUE(salida.flush());
        EXPECT_TRUE(entero.empty() || destino.str() == entero) << nTrozo;
        entero = destino.str();
    }
    return entero;
}

TEST(SalidaLimpia, LoQueDirigeUnTerminalSaleEscritoYLoDemasComoEsta)
{
    EXPECT_EQ(Limpio("Señal 🌞\t€\r\nfin\n"), "Señal 🌞\t€\r\nfin\n");
    EXPECT_EQ(Limpio("\x1B[2J\x7F\r"), "\\u001b[2J\\u007f\\u000d");
    // U+009B, U+202E, U+2066, U+061C
    EXPECT_EQ(Limpio("a\xC2\x9B\xE2\x80\xAE\xE2\x81\xA6\xD8\x9C"), "a\\u009b\\u202e\\u2066\\u061c");
    // A lone byte, a cut character, an overlong form
    EXPECT_EQ(Limpio("\x9B\xE2\x80x"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBDx");
    EXPECT_EQ(Limpio("\xC0\xAE"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(Limpio("\xE2\x80"), "\xEF\xBF\xBD");
}

// Names that a hostile catalogue gives, as text and as JSON, which still says the same.
TEST(SalidaLimpia, UnCatalogoHostilNoLlegaAlTerminal)
{
    const CarpetaTemporal carpeta;
    const std::string fichero = carpeta.Crear(
        "c.xml",
        "<Q><TablaFamilias><Familia nombre='F\xC2\x9B'><Modelo csModelo='M\xE2\x80\xAE'/></Familia>"
        "</TablaFamilias></Q>");
    for (const char* orden : {"listar", "exportar"}) {
        const Corrida corrida = Correr({"catalogo", orden, "--tipo", "receptores", "--fichero", fichero});
        EXPECT_EQ(corrida.salida.find("\xC2\x9B"), std::string::npos) << orden;
        EXPECT_EQ(corrida.salida.find("\xE2\x80\xAE"), std::string::npos) << orden;
    }
    const Corrida json = Correr({"catalogo", "listar", "--json", "--tipo", "receptores", "--fichero", fichero});
    EXPECT_EQ(json.salida.find("\xC2\x9B"), std::string::npos);
    EXPECT_NE(Json::parse(json.salida).dump().find("M\xE2\x80\xAE"), std::string::npos);
}

// Runs the program with its output on `destino`; status and what it says on its errors.
std::pair<int, std::string> CorrerHacia(const char* destino, std::vector<const char*> argumentos,
                                        const char* entrada = "/dev/null")
{
    std::array<int, 2> errores{};
    EXPECT_EQ(::pipe(errores.data()), 0);
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        ::dup2(::open(entrada, O_RDONLY), STDIN_FILENO);
        ::dup2(::open(destino, O_WRONLY), STDOUT_FILENO);
        ::dup2(errores[1], STDERR_FILENO);
        argumentos.insert(argumentos.begin(), "efv");
        argumentos.push_back(nullptr);
        ::execv(EFV_PROGRAMA, const_cast<char**>(argumentos.data()));
        ::_exit(127);
    }
    ::close(errores[1]);
    std::string texto;
    for (char letra = 0; ::read(errores[0], &letra, 1) == 1;)
        texto += letra;
    ::close(errores[0]);
    int iEstado = 0;
    ::waitpid(hijo, &iEstado, 0);
    return {WIFEXITED(iEstado) ? WEXITSTATUS(iEstado) : -WTERMSIG(iEstado), texto};
}

TEST(SalidaLlena, EsUnErrorEnTodasLasOrdenes)
{
    const CarpetaTemporal carpeta;
    const std::string peticion = carpeta.Crear("p", Peticion("phGetMes", {744}).dump() + "\n");
    for (const std::vector<const char*>& orden : std::vector<std::vector<const char*>>{{"--version"},
                                                                                       {"--help"},
                                                                                       {"energia", "--help"},
                                                                                       {"lugares", "madrid"},
                                                                                       {"rpc", "--funciones"},
                                                                                       {"rpc"}}) {
        const auto [iEstado, texto] = CorrerHacia("/dev/full", orden, peticion.c_str());
        EXPECT_EQ(iEstado, 1) << orden[0];
        EXPECT_NE(texto.find("no se puede escribir la salida"), std::string::npos) << orden[0] << ": " << texto;
    }
}

TEST(FicherosNuevos, CadaLlamadaAlDiscoQueFalla)
{
    const std::vector<FicheroNuevo> ficheros = {{"a.svg", "uno nuevo"}, {"b.svg", "dos nuevo"}};
    bool bFallado = true;
    for (std::size_t n = 0; bFallado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner("/d/a.svg", "uno");
        FicherosConAverias averiados(disco, n, ENOSPC);
        const ConFicheros con(averiados);
        bool bHecho = true;
        try {
            EscribirFicheros("/d", ficheros);
        } catch (const ErrorEjecucion& error) {
            bHecho = false;
            EXPECT_NE(std::string(error.what()).find("/d"), std::string::npos);
        }
        bFallado = averiados.HaFallado();
        const std::string uno = disco.Contenido("/d/a.svg"), dos = disco.Contenido("/d/b.svg");
        EXPECT_TRUE(uno == "uno nuevo" || (!bHecho && uno == "uno")) << n << ": " << uno;
        EXPECT_TRUE(dos == "dos nuevo" || (!bHecho && dos == "-")) << n << ": " << dos;
        EXPECT_TRUE(bHecho || bFallado);
    }
}

TEST(FicherosNuevos, SinMemoriaEnCualquierSitio)
{
    bool bFaltado = true;
    for (std::size_t n = 0; bFaltado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner("/d/a.html", "viejo");
        const ConFicheros con(disco);
        const std::vector<FicheroNuevo> ficheros = {{"a.html", "nuevo"}};
        bool bHecho = false;
        try {
            const MemoriaEscasa escasa(n);
            bHecho = EscribirFicheros("/d", ficheros).size() == 1;
        } catch (const std::bad_alloc&) {
        } catch (const ErrorEjecucion&) {
        }
        bFaltado = MemoriaEscasa::HaFaltado();
        const std::string contenido = disco.Contenido("/d/a.html");
        ASSERT_TRUE(contenido == "nuevo" || (!bHecho && contenido == "viejo")) << n << ": " << contenido;
        ASSERT_TRUE(bHecho || bFaltado) << n;
        ASSERT_EQ(disco.Cuantos(), 1U) << n;
    }
}

TEST(FicherosNuevos, LaCausaSeDice)
{
    FicherosEnMemoria disco;
    disco.nCapacidad = 3;
    const ConFicheros con(disco);
    try {
        EscribirFicheros("/d", {{"a.html", "demasiado"}});
        ADD_FAILURE();
    } catch (const ErrorEjecucion& error) {
        EXPECT_STREQ(error.what(), "no se puede escribir «/d/a.html»: el disco está lleno");
    }
}

}  // namespace
}  // namespace efv::orden::pruebas

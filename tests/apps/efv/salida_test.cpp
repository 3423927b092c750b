// What the commands write: to the terminal, to files, and where that can't be.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <thread>

#include "apoyo.h"
#include "comun/consola.h"
#include "comun/csv.h"
#include "comun/ficheros_memoria.h"
#include "comun/memoria_escasa.h"
#include "comun/mundo_de_prueba.h"
#include "comun/salida_limpia.h"
#include "comun/salidas.h"
#include "comun/terminal.h"

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

std::vector<std::string> Escribir(const std::vector<std::string>& rutas,
                                  const std::vector<std::string>& contenidos)
{
    Salidas salidas({});
    for (const std::string& ruta : rutas)
        salidas.Anadir("--salida", ruta);
    std::ostringstream salida;
    return salidas.Escribir(contenidos, salida);
}

TEST(Salidas, CadaLlamadaAlDiscoQueFalla)
{
    bool bFallado = true;
    for (std::size_t n = 0; bFallado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner("/d/a.svg", "uno");
        FicherosConAverias averiados(disco, n, ENOSPC);
        const ConFicheros con(averiados);
        bool bHecho = true;
        try {
            Escribir({"/d/a.svg", "/d/b.svg"}, {"uno nuevo", "dos nuevo"});
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

TEST(Salidas, SinMemoriaEnCualquierSitio)
{
    bool bFaltado = true;
    for (std::size_t n = 0; bFaltado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner("/d/a.html", "viejo");
        const ConFicheros con(disco);
        bool bHecho = false;
        try {
            const MemoriaEscasa escasa(n);
            bHecho = Escribir({"/d/a.html"}, {"nuevo"}).size() == 1;
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

TEST(Salidas, LaCausaSeDice)
{
    FicherosEnMemoria disco;
    disco.nCapacidad = 3;
    const ConFicheros con(disco);
    try {
        Escribir({"/d/a.html"}, {"demasiado"});
        ADD_FAILURE();
    } catch (const ErrorEjecucion& error) {
        EXPECT_STREQ(error.what(), "no se puede escribir «/d/a.html»: el disco está lleno");
    }
}

// What is read is never written, by whatever name, nor one file twice; a folder isn't made.
TEST(Salidas, UnaSalidaNoEsLaEntradaNiOtraSalida)
{
    const CarpetaTemporal carpeta;
    const std::string entrada = carpeta.Crear("p.json", "{}"), base = carpeta.Ruta().string();
    std::filesystem::create_symlink("p.json", base + "/enlace");
    std::filesystem::create_hard_link(entrada, base + "/otro_nombre");
    for (const char* nombre : {"/p.json", "/./p.json", "/enlace", "/otro_nombre"}) {
        Salidas salidas({entrada});
        EXPECT_THROW(salidas.Anadir("--informe", base + nombre), ErrorUso) << nombre;
    }
    Salidas dos({entrada});
    dos.Anadir("--informe", base + "/nuevo");
    EXPECT_THROW(dos.Anadir("--guardar", base + "/./nuevo"), ErrorUso);
    EXPECT_THROW(dos.Anadir("--guardar", base + "/"), ErrorUso);
    dos.Anadir("--guardar", "un_fichero_que_no_esta");
    EXPECT_THROW(dos.Anadir("--svg", "./un_fichero_que_no_esta"), ErrorUso);
    EXPECT_THROW(Escribir({base + "/falta/x"}, {"x"}), ErrorEjecucion);
    EXPECT_FALSE(std::filesystem::exists(base + "/falta"));
}

TEST(Salidas, ALaSalidaVaElContenidoSoloYByteAByte)
{
    std::ostringstream salida;
    SalidaLimpia limpia(*salida.rdbuf());
    std::ostream filtrada(&limpia);
    Salidas salidas({"-"});
    salidas.Anadir("--guardar", "-");
    EXPECT_TRUE(salidas.EnLaSalida());
    const std::string bytes("\0\x1b[2J\xff", 6);
    filtrada << "antes";
    salidas.Escribir({bytes}, filtrada);
    EXPECT_EQ(salida.str(), "antes" + bytes);
    EXPECT_THROW(salidas.Anadir("--informe", "-"), ErrorUso);
    // A terminal takes text alone.
    Forma().bTerminal = true;
    EXPECT_THROW(Salidas({}).Anadir("--salida", "-", Salidas::Contenido::bytes), ErrorUso);
    EXPECT_NO_THROW(Salidas({}).Anadir("--salida", "-"));
    Forma().bTerminal = false;
}

// Somebody reads at the other end; the pipe stays one, and a link leads where it led.
TEST(Salidas, UnaTuberiaSeEscribeYUnEnlaceSigueSiendolo)
{
    const CarpetaTemporal carpeta;
    const std::string tubo = (carpeta.Ruta() / "tubo").string(), enlace = (carpeta.Ruta() / "e").string();
    ASSERT_EQ(::mkfifo(tubo.c_str(), 0600), 0);
    std::filesystem::create_symlink("final", enlace);
    std::string leido;
    std::thread lector([&] { std::getline(std::ifstream(tubo), leido); });
    Escribir({tubo, enlace}, {"por el tubo", "por el enlace"});
    lector.join();
    EXPECT_EQ(leido, "por el tubo");
    EXPECT_TRUE(std::filesystem::is_fifo(tubo));
    EXPECT_TRUE(std::filesystem::is_symlink(enlace));
    EXPECT_EQ(std::filesystem::file_size(carpeta.Ruta() / "final"), 13U);
}

TEST(Csv, UnTextoSeLeeComoSeEscribioYNoComoFormula)
{
    EXPECT_EQ(TextoCsv("casa.json"), "casa.json");
    EXPECT_EQ(TextoCsv("a;b.json"), "\"a;b.json\"");
    EXPECT_EQ(TextoCsv("la \"casa\""), "\"la \"\"casa\"\"\"");
    EXPECT_EQ(TextoCsv("=1+1"), "\"'=1+1\"");
}

}  // namespace
}  // namespace efv::orden::pruebas

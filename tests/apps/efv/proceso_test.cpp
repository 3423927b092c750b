// `efv rpc` as a process: lines over pipes, as a host in another language sees it.
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "apoyo.h"
#include "rpc/flujos.h"
#include "rpc/saneador.h"

namespace efv::orden::pruebas {
namespace {

using rpc::LectorLineas;

class Tuberia {
public:
    Tuberia()
    {
        if (::pipe(m_extremos.data()) != 0)
            throw std::runtime_error("pipe");
    }
    ~Tuberia()
    {
        CerrarLectura();
        CerrarEscritura();
    }
    Tuberia(const Tuberia&) = delete;
    Tuberia& operator=(const Tuberia&) = delete;

    int Lectura() const { return m_extremos[0]; }
    int Escritura() const { return m_extremos[1]; }
    void CerrarLectura() { Cerrar(m_extremos[0]); }
    void CerrarEscritura() { Cerrar(m_extremos[1]); }

private:
    static void Cerrar(int& iDescriptor)
    {
        if (iDescriptor >= 0)
            ::close(iDescriptor);
        iDescriptor = -1;
    }
    std::array<int, 2> m_extremos{};
};

class Proceso {
public:
    Proceso()
    {
        // An answer that never comes ends the test.
        ::alarm(120);
        m_hijo = ::fork();
        if (m_hijo == 0) {
            ::dup2(m_entrada.Lectura(), STDIN_FILENO);
            ::dup2(m_salida.Escritura(), STDOUT_FILENO);
            m_entrada.CerrarEscritura();
            m_salida.CerrarLectura();
            ::execl(EFV_PROGRAMA, "efv", "rpc", nullptr);
            ::_exit(127);
        }
        m_entrada.CerrarLectura();
        m_salida.CerrarEscritura();
    }
    ~Proceso()
    {
        ::alarm(0);
        if (m_hijo > 0) {
            ::kill(m_hijo, SIGKILL);
            ::waitpid(m_hijo, nullptr, 0);
        }
    }
    Proceso(const Proceso&) = delete;
    Proceso& operator=(const Proceso&) = delete;

    void Escribir(const std::string& texto) { EXPECT_TRUE(rpc::EscribirTodo(m_entrada.Escritura(), texto)); }

    /// The next line of the answers; empty at their end.
    std::string Leer()
    {
        std::string_view linea;
        return m_lector.Siguiente(linea) == LectorLineas::Estado::linea ? std::string(linea) : std::string();
    }

    void CerrarSalida() { m_salida.CerrarLectura(); }

    /// Ends the input; the exit status, or minus the signal's number.
    int Terminar()
    {
        m_entrada.CerrarEscritura();
        int iEstado = 0;
        ::waitpid(std::exchange(m_hijo, -1), &iEstado, 0);
        return WIFEXITED(iEstado) ? WEXITSTATUS(iEstado) : -WTERMSIG(iEstado);
    }

private:
    Tuberia m_entrada, m_salida;
    LectorLineas m_lector{m_salida.Lectura(), std::size_t(1) << 30};
    pid_t m_hijo = -1;
};

const std::string kLlamada = "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetMes\",\"params\":[744]}";

TEST(Proceso, RespondeAntesDeQueAcabeLaEntradaYGuardaElEstado)
{
    Proceso efv;
    efv.Escribir(kLlamada + "\n");
    EXPECT_EQ(Json::parse(efv.Leer())["result"]["return"], 1);
    efv.Escribir(Peticion("phSetPathHE5BD", {"/datos/"}).dump() + "\r\n\n" +
                 Peticion("phGetPathHE5BD", Json::array()).dump());
    EXPECT_TRUE(Json::parse(efv.Leer()).contains("result"));
    EXPECT_EQ(Json::parse(efv.Leer())["error"]["code"], -32700);
    // Without a control ever set, an exception leaves the function.
    efv.Escribir("\n" + Peticion("phGetFirstPositionTypeDistribucionInSmartBlockRef", {7}).dump());
    EXPECT_EQ(efv.Terminar(), 0);
    EXPECT_EQ(Json::parse(efv.Leer())["result"]["return"], "/datos/");
    EXPECT_EQ(Json::parse(efv.Leer())["error"]["code"], -32000);
    EXPECT_EQ(efv.Leer(), "");
}

TEST(Proceso, UnaLineaDesmesuradaSeRechazaYLaSiguienteSeAtiende)
{
    Proceso efv;
    const std::string trozo(std::size_t{1} << 20, 'x');
    for (int i = 0; i < 65; ++i)
        efv.Escribir(trozo);
    efv.Escribir("\n" + kLlamada + "\n");
    EXPECT_EQ(Json::parse(efv.Leer())["error"]["code"], -32600);
    EXPECT_EQ(Json::parse(efv.Leer())["result"]["return"], 1);
    EXPECT_EQ(efv.Terminar(), 0);
}

// Under a sanitizer the process has no limit, and nothing is learnt from how large the texts are.
constexpr std::size_t kTextoGrande = std::size_t{rpc::kConSaneador ? 1 : 50} << 20;

// Texts of 160 MB and more as the library holds them, in three places that keep them: the third finds no
// room, and afterwards neither does a list, whose own end needs memory.
TEST(Proceso, LaFaltaDeMemoriaEsUnErrorYNoElFin)
{
    Proceso efv;
    const std::string texto(kTextoGrande, 'a');
    std::string lista = "1";
    for (int i = 0; i < 2000000; ++i)
        lista += ",1";
    for (const char* funcion : {"phSetPathApp", "phSetPathModHE5", "phSetPathHE5BD"}) {
        efv.Escribir(R"({"jsonrpc":"2.0","id":1,"method":")" + std::string(funcion) + R"(","params":[")" +
                     texto + "\"]}\n");
        const Json respuesta = Json::parse(efv.Leer());
        EXPECT_TRUE(respuesta.contains("result") || respuesta["error"]["code"] == -32000);
    }
    efv.Escribir(R"({"jsonrpc":"2.0","id":1,"method":"phGetHora","params":[)" + lista + "]}\n" + kLlamada +
                 "\n");
    EXPECT_TRUE(Json::parse(efv.Leer()).contains("error"));
    EXPECT_EQ(Json::parse(efv.Leer())["result"]["return"], 1);
    EXPECT_EQ(efv.Terminar(), 0);
}

TEST(Proceso, SinNadieQueLeaTerminaEnSilencio)
{
    Proceso efv;
    efv.CerrarSalida();
    efv.Escribir(kLlamada + "\n");
    EXPECT_EQ(efv.Terminar(), 0);
}

TEST(LectorLineas, JuntaTrozosYSaltaLoQueNoCabe)
{
    Tuberia tuberia;
    // The fifth has exactly the limit, the sixth a byte more; the last lacks its line end.
    rpc::EscribirTodo(tuberia.Escritura(),
                      "a\n\nbc\r\n" + std::string(300, 'x') + "\n12345678\n123456789\nfin");
    tuberia.CerrarEscritura();
    LectorLineas lector(tuberia.Lectura(), 8);
    std::string_view linea;
    for (const char* esperada : {"a", "", "bc\r"}) {
        ASSERT_EQ(lector.Siguiente(linea), LectorLineas::Estado::linea);
        EXPECT_EQ(linea, esperada);
        EXPECT_TRUE(lector.HayLinea());
    }
    EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::demasiadoLarga);
    EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::linea);
    EXPECT_EQ(linea, "12345678");
    EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::demasiadoLarga);
    EXPECT_FALSE(lector.HayLinea());
    EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::linea);
    EXPECT_EQ(linea, "fin");
    EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::fin);
}

TEST(LectorLineas, UnaLineaLlegaEnteraAunqueLoHagaPorPartes)
{
    Tuberia tuberia;
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        // More than the reader's buffer, in writes of odd sizes.
        for (int i = 0; i < 100; ++i)
            rpc::EscribirTodo(tuberia.Escritura(), std::string(7777, static_cast<char>('a' + i % 26)));
        rpc::EscribirTodo(tuberia.Escritura(), "\n" + std::string(20, 'z'));
        ::_exit(0);
    }
    tuberia.CerrarEscritura();
    LectorLineas lector(tuberia.Lectura(), 777700);
    std::string_view linea;
    ASSERT_EQ(lector.Siguiente(linea), LectorLineas::Estado::linea);
    ASSERT_EQ(linea.size(), 777700U);
    EXPECT_EQ(linea[777699], 'v');  // 'a' + 99 % 26
    ASSERT_EQ(lector.Siguiente(linea), LectorLineas::Estado::linea);
    EXPECT_EQ(linea, std::string(20, 'z'));
    EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::fin);
    ::waitpid(hijo, nullptr, 0);
}

}  // namespace
}  // namespace efv::orden::pruebas

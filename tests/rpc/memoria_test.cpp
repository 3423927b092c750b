// Requests while memory fails at every place in turn: each is answered, and the next one as if nothing had
// been.
#include <unistd.h>

#include <cstdio>
#include <memory>

#include "comun/anfitrion.h"
#include "comun/catalogos_enviados.h"
#include "comun/memoria_escasa.h"
#include "rpc/flujos.h"

namespace efv::rpc::pruebas {

using namespace efv::pruebas;
namespace {

class SinMemoria : public ConCatalogosEnviados {};

// Every allocation of the first hundreds, then one in a hundred of those made so far.
std::size_t Siguiente(std::size_t n)
{
    return n + 1 + n / 100;
}

TEST_F(SinMemoria, CadaPeticionSeRespondeFalteDondeFalte)
{
    const std::string peticiones[] = {
        Peticion("phGetNombreDiaMes", {"", "", 2027, 3, 14}).dump(),
        R"([{"jsonrpc":"2.0","id":"a","method":"phGetHora","params":[25]},{"jsonrpc":"2.0","id":[[1]]},)"
        R"({"jsonrpc":"2.0","id":2,"method":"phGetPathApp"}])",
        Peticion("phShowMapaZonaHE5", Json::array(),
                 {{"dialogs", {{{"steps", {{{"read", "*"}}, {{"press", "OK"}}}}}}}})
            .dump(),
        Peticion("rpc.archive", {{"record", "CSFVDataReceptor"}, {"value", Json::object()}}).dump(),
        Peticion("rpc.discover", Json::array()).dump(),
        Peticion("rpc.report",
                 {{"record", "CSFVAsistenteRed"},
                  {"value",
                   {{"csInversor", "SMA#SB5.0-1AV-40"},
                    {"csPanel", "ET Solar#ET-M660285WW"},
                    {"iInversores", 3},
                    {"iPanelesSerie", 11},
                    {"iPanelesParalelo", 2}}},
                  {"place",
                   {{"name", "Aquí"}, {"latitude", 40.0}, {"radiation", std::vector<double>(12, 18000.0)}}}})
            .dump(),
        R"({"jsonrpc":"2.0","id":1,"method":[{"a":[1,[2]]}]})",
        R"({"jsonrpc":"2.0","id":1,"method":"phGetHora","params":[[{"a":[1,2,{"b":3)",
    };
    rpc::Servidor servidor;
    for (const std::string& peticion : peticiones) {
        const std::string entera = servidor.Responder(peticion);
        ASSERT_EQ(servidor.Responder(peticion), entera) << peticion;
        bool bFaltado = true;
        for (std::size_t n = 0; bFaltado; n = Siguiente(n)) {
            std::string respuesta;
            try {
                const MemoriaEscasa escasa(n);
                respuesta = servidor.Responder(peticion);
            } catch (const std::bad_alloc&) {
                continue;  // not even the text of an error: whoever calls answers
            }
            bFaltado = MemoriaEscasa::HaFaltado();
            ASSERT_TRUE(respuesta == entera || respuesta.find("memoria insuficiente") != std::string::npos)
                << n << ": " << respuesta;
            ASSERT_TRUE(Json::accept(respuesta)) << n << ": " << respuesta;
        }
        EXPECT_EQ(servidor.Responder(peticion), entera);
    }
}

// The line, longer than what is read at once, goes by, and the next one is read.
TEST(LectorSinMemoria, UnaLineaParaLaQueNoLaHaySeSalta)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> fichero(std::tmpfile(), &std::fclose);
    const int iDescriptor = ::fileno(fichero.get());
    std::string lineas(1'000'000, 'x');
    lineas.append("\nfin\n");
    ASSERT_TRUE(EscribirTodo(iDescriptor, lineas));
    bool bFaltado = true;
    for (std::size_t n = 0; bFaltado; ++n) {
        ::lseek(iDescriptor, 0, SEEK_SET);
        LectorLineas lector(iDescriptor, 2'000'000);
        std::string_view linea;
        LectorLineas::Estado estado{};
        {
            const MemoriaEscasa escasa(n);
            estado = lector.Siguiente(linea);
        }
        bFaltado = MemoriaEscasa::HaFaltado();
        EXPECT_EQ(estado, bFaltado ? LectorLineas::Estado::sinMemoria : LectorLineas::Estado::linea) << n;
        EXPECT_EQ(lector.Siguiente(linea), LectorLineas::Estado::linea);
        EXPECT_EQ(linea, "fin");
        EXPECT_TRUE(bFaltado || n > 1);
    }
}

}  // namespace
}  // namespace efv::rpc::pruebas

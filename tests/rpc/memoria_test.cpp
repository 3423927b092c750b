// Requests while memory fails at every place in turn: each is answered, and the next one as if nothing had
// been.
#include "comun/anfitrion.h"
#include "comun/memoria_escasa.h"

namespace efv::rpc::pruebas {

using namespace efv::pruebas;
namespace {

TEST(SinMemoria, CadaPeticionSeRespondeFalteDondeFalte)
{
    const std::string peticiones[] = {
        Peticion("phGetNombreDiaMes", {"", "", 2027, 3, 14}).dump(),
        R"([{"jsonrpc":"2.0","id":"a","method":"phGetHora","params":[25]},{"jsonrpc":"2.0","id":[[1]]},)"
        R"({"jsonrpc":"2.0","id":2,"method":"phGetPathApp"}])",
        Peticion("phShowMapaZonaHE5", Json::array(),
                 {{"dialogs", {{{"steps", {{{"read", "*"}}, {{"press", "OK"}}}}}}}})
            .dump(),
        Peticion("rpc.archive", {{"record", "CSFVDataReceptor"}, {"value", Json::object()}}).dump(),
        R"({"jsonrpc":"2.0","id":1,"method":[{"a":[1,[2]]}]})",
        R"({"jsonrpc":"2.0","id":1,"method":"phGetHora","params":[[{"a":[1,2,{"b":3)",
    };
    rpc::Servidor servidor;
    for (const std::string& peticion : peticiones) {
        const std::string entera = servidor.Responder(peticion);
        ASSERT_EQ(servidor.Responder(peticion), entera) << peticion;
        bool bFaltado = true;
        for (std::size_t n = 0; bFaltado; ++n) {
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

}  // namespace
}  // namespace efv::rpc::pruebas

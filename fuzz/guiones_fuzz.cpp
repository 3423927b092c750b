// The first byte chooses a dialog, the rest is the script that acts in it: an answer with what was seen, or an
// error that says where the script is wrong. What dialogs save goes to a disk in memory.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include <QuorvelEFV.h>

#include "comun/ficheros_memoria.h"
#include "comun/mundo_de_prueba.h"
#include "exigir.h"
#include "rpc/servidor.h"

namespace {

using Json = nlohmann::json;

struct Apertura {
    std::string_view funcion, argumentos;
};

constexpr auto kAperturas = std::to_array<Apertura>({
    {"phEditarBaseReceptores", "[0]"},
    {"phEditarBasePanelesFotovoltaicos", "[0]"},
    {"phEditarBaseInversores", "[0]"},
    {"phShowMapaZonaHE5", "[]"},
});

const std::string kCatalogo =
    "<Q><TablaFamilias><Familia nombre='A'><Modelo csModelo='uno'/><Modelo csModelo='dos'/></Familia>"
    "</TablaFamilias></Q>";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    if (tamano == 0)
        return 0;
    const std::string guion(reinterpret_cast<const char*>(datos) + 1, tamano - 1);
    if (!Json::accept(guion))
        return 0;
    efv::pruebas::FicherosEnMemoria disco;
    for (const efv::TipoCatalogo* tipo : efv::TiposDeCatalogo())
        disco.Poner("/d/" + efv::CadenaUtf8(tipo->Fichero()), kCatalogo);
    const efv::pruebas::ConFicheros con(disco);
    phSetPathHE5BD(L"/d/");
    efv::rpc::Servidor servidor;
    const auto& [funcion, argumentos] = kAperturas[datos[0] % kAperturas.size()];
    std::string linea = R"({"jsonrpc":"2.0","id":1,"method":")";
    linea.append(funcion).append(R"(","params":)").append(argumentos);
    linea.append(R"(,"dialogs":)").append(guion).append("}");
    for (char& c : linea)
        c = c == '\n' || c == '\r' ? ' ' : c;
    const Json respuesta = Json::parse(servidor.Responder(linea), nullptr, false);
    Exigir(respuesta.is_object() && respuesta.contains("result") != respuesta.contains("error"));
    // Whatever the script did, a catalogue that stands there can be read.
    for (const efv::TipoCatalogo* tipo : efv::TiposDeCatalogo())
        Exigir(tipo->CrearBase()->Cargar(L"/d/" + tipo->Fichero()) != 0);
    return 0;
}

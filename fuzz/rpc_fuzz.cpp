// Any bytes as a line of the scripted host: one answer, one line, JSON, with the members of its kind.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "rpc/servidor.h"

namespace {

using Json = nlohmann::json;

void Exigir(bool bCumple)
{
    if (!bCumple)
        std::abort();
}

bool EsError(const Json& error)
{
    return error.is_object() && error.size() == 2 && error.at("code").is_number_integer() &&
           error.at("code") < 0 && error.at("message").is_string();
}

// What a function answers; the host's own methods answer anything.
bool EsResultado(const Json& peticion, const Json& resultado)
{
    if (!peticion.at("method").get_ref<const std::string&>().starts_with("ph"))
        return true;
    const auto params = peticion.find("params");
    const std::size_t n = params == peticion.end() ? 0 : params->size();
    return resultado.is_object() && resultado.size() == 4 && resultado.contains("return") &&
           resultado.at("params").is_array() && resultado.at("params").size() == n &&
           resultado.at("messages").is_array() && resultado.at("dialogs").is_array();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    static efv::orden::rpc::Servidor servidor;
    const std::string_view linea(reinterpret_cast<const char*>(datos), tamano);
    const std::string texto = servidor.Responder(linea);
    Exigir(texto.find('\n') == std::string::npos);
    const Json respuesta = Json::parse(texto, nullptr, false);
    Exigir(respuesta.is_object() && respuesta.size() == 3 && respuesta.at("jsonrpc") == "2.0" &&
           respuesta.contains("id"));
    if (respuesta.contains("error")) {
        Exigir(EsError(respuesta.at("error")));
        return 0;
    }
    // What was answered was a request, and the answer carries its id.
    const Json peticion = Json::parse(linea, nullptr, false);
    Exigir(peticion.is_object() && respuesta.contains("result"));
    Exigir(respuesta.at("id") == peticion.value("id", Json()));
    Exigir(EsResultado(peticion, respuesta.at("result")));
    return 0;
}

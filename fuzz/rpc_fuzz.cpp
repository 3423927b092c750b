// Any bytes as a line of the scripted host: at most one line of JSON, with the members of its kind; a request
// without id is not answered, a batch with a list.
#include <algorithm>
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

bool SeCalla(const Json& peticion)
{
    return peticion.is_object() && !peticion.contains("id");
}

void ExigirRespuesta(const Json& peticion, const Json& respuesta)
{
    Exigir(respuesta.is_object() && respuesta.size() == 3 && respuesta.at("jsonrpc") == "2.0" &&
           respuesta.contains("id"));
    if (respuesta.contains("error")) {
        Exigir(EsError(respuesta.at("error")));
        return;
    }
    // What was answered was a request, and the answer carries its id.
    Exigir(peticion.is_object() && respuesta.contains("result"));
    Exigir(respuesta.at("id") == peticion.at("id"));
    Exigir(EsResultado(peticion, respuesta.at("result")));
}

// A request without id has an answer only when it is no request at all.
void ExigirLote(const Json& lote, const Json& respuestas)
{
    const auto callados = static_cast<std::size_t>(std::ranges::count_if(lote, SeCalla));
    Exigir(respuestas.is_array() && !respuestas.empty() && respuestas.size() <= lote.size() &&
           respuestas.size() >= lote.size() - callados);
    for (const Json& respuesta : respuestas)
        Exigir(respuesta.at("jsonrpc") == "2.0" && respuesta.contains("id") &&
               (respuesta.contains("result") || EsError(respuesta.at("error"))));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    static efv::rpc::Servidor servidor;
    const std::string_view linea(reinterpret_cast<const char*>(datos), tamano);
    const std::string texto = servidor.Responder(linea);
    const Json peticion = Json::parse(linea, nullptr, false);
    if (texto.empty()) {
        const bool bLote = peticion.is_array() && !peticion.empty();
        Exigir(bLote ? std::ranges::all_of(peticion, SeCalla) : SeCalla(peticion));
        return 0;
    }
    Exigir(texto.find('\n') == std::string::npos);
    const Json respuesta = Json::parse(texto, nullptr, false);
    if (respuesta.is_array())
        ExigirLote(peticion, respuesta);
    else
        ExigirRespuesta(peticion, respuesta);
    return 0;
}

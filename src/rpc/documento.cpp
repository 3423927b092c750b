#include "rpc/documento.h"

#include <string>

#include <simdjson.h>

namespace efv::rpc {

namespace {

// The destructor of a list or an object that isn't empty asks for memory, and ends the process when there is
// none.
void Desmontar(Json& json) noexcept
{
    if (!json.is_structured())
        return;
    for (Json& hijo : json)
        Desmontar(hijo);
    json.clear();
}

// Longer lines are read the plain way, so that the reader keeps little memory between lines, bytes.
constexpr std::size_t kLineaRapida = std::size_t{64} * 1024;

// Recursion as deep as the line, which was looked at before.
void Construir(const simdjson::dom::element& leido, Json& json)
{
    using Tipo = simdjson::dom::element_type;
    switch (leido.type()) {
        case Tipo::OBJECT: {
            json = Json::object();
            auto& objeto = json.get_ref<Json::object_t&>();
            for (const auto& miembro : simdjson::dom::object(leido))
                Construir(miembro.value, objeto[std::string(miembro.key)]);
            return;
        }
        case Tipo::ARRAY: {
            const simdjson::dom::array lista(leido);
            json = Json::array();
            auto& elementos = json.get_ref<Json::array_t&>();
            elementos.reserve(lista.size());
            for (const simdjson::dom::element& elemento : lista)
                Construir(elemento, elementos.emplace_back());
            return;
        }
        case Tipo::STRING:
            json = std::string(std::string_view(leido));
            return;
        case Tipo::INT64:
            if (const std::int64_t n(leido); n < 0)
                json = n;
            else
                json = static_cast<std::uint64_t>(n);
            return;
        case Tipo::UINT64:
            json = std::uint64_t(leido);
            return;
        case Tipo::DOUBLE:
            json = double(leido);
            return;
        case Tipo::BOOL:
            json = bool(leido);
            return;
        case Tipo::NULL_VALUE:
            json = nullptr;
            return;
    }
}

// simdjson reads three times as fast. What it takes, Json::parse takes with the same result; what it doesn't is
// left to that one, which also says where the mistake stands.
bool InterpretarRapido(std::string_view linea, Json& raiz)
{
    thread_local simdjson::dom::parser lector;
    simdjson::dom::element leido;
    if (linea.size() > kLineaRapida || lector.parse(linea.data(), linea.size()).get(leido) != simdjson::SUCCESS)
        return false;
    Construir(leido, raiz);
    return true;
}

}  // namespace

Documento::~Documento()
{
    Desmontar(m_raiz);
}

// What Json::parse does, into a value that outlives a failure.
void Documento::Interpretar(std::string_view linea)
{
    if (InterpretarRapido(linea, m_raiz))
        return;
    nlohmann::detail::json_sax_dom_parser<Json> constructor(m_raiz);
    Json::sax_parse(linea.begin(), linea.end(), &constructor);
}

}  // namespace efv::rpc

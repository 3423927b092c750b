#include "rpc/documento.h"

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

}  // namespace

Documento::~Documento()
{
    Desmontar(m_raiz);
}

// What Json::parse does, into a value that outlives a failure.
void Documento::Interpretar(std::string_view linea)
{
    nlohmann::detail::json_sax_dom_parser<Json> constructor(m_raiz);
    Json::sax_parse(linea.begin(), linea.end(), &constructor);
}

}  // namespace efv::rpc

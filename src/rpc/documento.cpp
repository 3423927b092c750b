#include "rpc/documento.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include <rapidjson/reader.h>

#include "rpc/presupuesto.h"

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

// A number as Json::parse takes it: without sign, point or exponent unsigned, with the sign signed, else, or
// where 64 bits aren't enough, the nearest double. False for what that one refuses.
bool LeerNumero(std::string_view texto, Json& json)
{
    const char* const pFin = texto.data() + texto.size();
    if (texto.find_first_of(".eE") == std::string_view::npos) {
        if (std::uint64_t n = 0;
            texto.front() != '-' && std::from_chars(texto.data(), pFin, n).ec == std::errc()) {
            json = n;
            return true;
        }
        if (std::int64_t n = 0;
            texto.front() == '-' && std::from_chars(texto.data(), pFin, n).ec == std::errc()) {
            json = n;
            return true;
        }
    }
    double d = 0;
    if (std::from_chars(texto.data(), pFin, d).ec != std::errc())
        return false;
    json = d;
    return true;
}

// Makes the value of what RapidJSON tells. The lists and objects that are open stand in `m_abiertos`, as many
// as the line is deep, which was looked at before.
class Constructor {
public:
    explicit Constructor(Json& raiz) : m_pSitio(&raiz) {}

    bool Null() { return Poner(nullptr); }
    bool Bool(bool b) { return Poner(b); }
    bool RawNumber(const char* pTexto, rapidjson::SizeType n, bool) { return LeerNumero({pTexto, n}, Sitio()); }
    bool String(const char* pTexto, rapidjson::SizeType n, bool) { return Poner(std::string(pTexto, n)); }
    bool StartObject() { return Abrir(Json::object()); }
    bool StartArray() { return Abrir(Json::array()); }
    bool EndObject(rapidjson::SizeType) { return Cerrar(); }
    bool EndArray(rapidjson::SizeType) { return Cerrar(); }

    bool Key(const char* pTexto, rapidjson::SizeType n, bool)
    {
        m_pSitio = &m_abiertos[m_nAbiertos - 1]->get_ref<Json::object_t&>()[std::string(pTexto, n)];
        Desmontar(*m_pSitio);  // the last one of a name counts
        return true;
    }

    // Numbers come as their text.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    // Where the next value goes: the root, the member just named, or a new one at the end of the list.
    Json& Sitio()
    {
        if (m_nAbiertos == 0 || m_abiertos[m_nAbiertos - 1]->is_object())
            return *m_pSitio;
        return m_abiertos[m_nAbiertos - 1]->get_ref<Json::array_t&>().emplace_back();
    }

    template <typename T>
    bool Poner(T&& valor)
    {
        Sitio() = std::forward<T>(valor);
        return true;
    }

    bool Abrir(Json vacio)
    {
        if (m_nAbiertos == m_abiertos.size())
            return false;
        Json& sitio = Sitio();
        sitio = std::move(vacio);
        m_abiertos[m_nAbiertos++] = &sitio;
        return true;
    }

    bool Cerrar()
    {
        --m_nAbiertos;
        return true;
    }

    std::array<Json*, kProfundidadMaxima> m_abiertos{};
    std::size_t m_nAbiertos = 0;
    Json* m_pSitio;
};

// RapidJSON reads several times as fast. What it takes, Json::parse takes with the same result; what it doesn't
// is left to that one, which also says where the mistake stands. It reads within a copy, where it decodes the
// texts: otherwise it would ask for memory without looking whether it got any.
bool InterpretarRapido(std::string_view linea, Json& raiz)
{
    constexpr unsigned kModo = rapidjson::kParseInsituFlag | rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseNumbersAsStringsFlag;
    if (linea.size() > kLineaRapida)
        return false;
    thread_local std::string copia;
    copia = linea;
    rapidjson::InsituStringStream texto(copia.data());
    Constructor constructor(raiz);
    rapidjson::Reader lector;
    if (lector.Parse<kModo>(texto, constructor) && texto.Tell() == copia.size())
        return true;
    Desmontar(raiz);
    return false;
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

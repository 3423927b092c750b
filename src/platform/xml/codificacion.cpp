#include "platform/xml/codificacion.h"

#include <algorithm>
#include <initializer_list>
#include <new>
#include <string_view>

#include <pugixml.hpp>

#include <quorvel/ficheros.h>
#include <quorvel/mundo.h>

#include "platform/fichero/fichero.h"
#include "platform/texto/texto.h"
#include "platform/xml/xml.h"

namespace efv::xml {

namespace {

std::string Minusculas(std::string_view texto)
{
    std::string minusculas(texto);
    std::ranges::transform(minusculas, minusculas.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return minusculas;
}

// Value of encoding="…" in the declaration that `bytes` begins with, in lower case; empty without one. The
// parser of the document reads it, so that both understand the same attribute.
std::string CodificacionDeclarada(std::string_view bytes)
{
    const std::size_t fin = bytes.find("?>");
    if (!bytes.starts_with("<?xml") || fin == std::string_view::npos)
        return {};
    pugi::xml_document declaracion;
    const pugi::xml_parse_result leida =
        declaracion.load_buffer(bytes.data(), fin + 2, pugi::parse_declaration, pugi::encoding_utf8);
    if (leida.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    return Minusculas(declaracion.first_child().attribute("encoding").value());
}

bool UnoDe(std::string_view texto, std::initializer_list<std::string_view> nombres)
{
    return std::ranges::find(nombres, texto) != nombres.end();
}

std::optional<std::string> DeUtf16(std::string_view bytes, bool granEndian)
{
    if (bytes.size() % 2 != 0)
        return std::nullopt;
    std::u16string unidades(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < unidades.size(); ++i) {
        const auto a = static_cast<unsigned char>(bytes[2 * i]);
        const auto b = static_cast<unsigned char>(bytes[2 * i + 1]);
        unidades[i] = static_cast<char16_t>(granEndian ? a * 256 + b : b * 256 + a);
    }
    return CadenaUtf8(texto::DeUtf16(unidades));
}

// The document as UTF-8; nothing when its bytes aren't what its mark or declaration says.
std::optional<std::string> Descodificar(std::string bytes)
{
    const std::string_view vista = bytes;
    if (vista.starts_with("\xFF\xFE"))
        return DeUtf16(vista.substr(2), false);
    if (vista.starts_with("\xFE\xFF"))
        return DeUtf16(vista.substr(2), true);
    if (vista.starts_with(std::string_view("<\0", 2)))
        return DeUtf16(vista, false);
    if (vista.starts_with(std::string_view("\0<", 2)))
        return DeUtf16(vista, true);
    if (vista.starts_with("\xEF\xBB\xBF"))
        bytes.erase(0, 3);
    else if (const std::string codificacion = CodificacionDeclarada(vista);
             UnoDe(codificacion, {"windows-1252", "cp1252", "cp-1252"}))
        return texto::Windows1252AUtf8(vista);
    else if (UnoDe(codificacion, {"iso-8859-1", "iso8859-1", "latin1", "latin-1"}))
        return texto::Latin1AUtf8(vista);
    else if (!UnoDe(codificacion, {"", "utf-8", "utf8", "us-ascii", "ascii"}))
        return std::nullopt;
    if (!texto::EsUtf8(bytes))
        return std::nullopt;
    return bytes;
}

}  // namespace

std::optional<std::string> AUtf8(std::string bytes)
{
    std::optional<std::string> utf8 = Descodificar(std::move(bytes));
    if (utf8 && utf8->find('\0') != std::string::npos)
        return std::nullopt;
    return utf8;
}

std::optional<std::string> LeerComoUtf8(const CString& csRuta)
{
    std::optional<std::string> leido = fichero::LeerFichero(csRuta, kMaximoFichero);
    return leido ? AUtf8(std::move(*leido)) : std::nullopt;
}

std::string MotivoIlegible(const CString& csRuta)
{
    LecturaFichero lectura = LeerFichero(*ElMundo().ficheros, CadenaUtf8(csRuta), kMaximoFichero);
    if (!lectura.bytes)
        return lectura.motivo;
    return AUtf8(std::move(*lectura.bytes)) ? "no es XML bien formado"
                                            : "no está en la codificación que declara";
}

bool EsTabla(std::string_view nombre)
{
    return UnoDe(nombre, {"TablaFamilias", "TablaFactoresK"});
}

}  // namespace efv::xml

std::string efv::MotivoDocumentoIlegible(const CString& csRuta)
{
    return xml::MotivoIlegible(csRuta);
}

#include "platform/xml/xml.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

#include <pugixml.hpp>

#include "platform/archivo/archivo.h"
#include "platform/numero/conversion.h"
#include "platform/texto/texto.h"

namespace efv::xml {

namespace {

struct Documento {
    std::string bytes;  // the parser works in place: names and values point into it
    pugi::xml_document arbol;
    pugi::xml_node raiz;
    // Attributes are mostly asked for in file order: the search goes on behind the last one found.
    pugi::xml_node nodoPista;
    pugi::xml_attribute pista;
};

Documento& Actual()
{
    static Documento documento;
    return documento;
}

pugi::xml_node Interno(Nodo nodo)
{
    return pugi::xml_node(reinterpret_cast<pugi::xml_node_struct*>(const_cast<NodoXml*>(nodo)));
}

Nodo Externo(pugi::xml_node nodo)
{
    return reinterpret_cast<Nodo>(nodo.internal_object());
}

// ---------------------------------------------------------------------------------------------------
// Encoding
// ---------------------------------------------------------------------------------------------------

std::string Minusculas(std::string_view texto)
{
    std::string minusculas(texto);
    std::ranges::transform(minusculas, minusculas.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return minusculas;
}

// Value of encoding="…" in the declaration that `bytes` begins with, in lower case; empty without one.
std::string CodificacionDeclarada(std::string_view bytes)
{
    if (!bytes.starts_with("<?xml"))
        return {};
    const std::string_view declaracion = bytes.substr(0, bytes.find("?>"));
    const std::size_t clave = declaracion.find("encoding");
    if (clave == std::string_view::npos)
        return {};
    const std::size_t inicio = declaracion.find_first_of("\"'", clave);
    if (inicio == std::string_view::npos)
        return {};
    const std::size_t fin = declaracion.find(declaracion[inicio], inicio + 1);
    return Minusculas(declaracion.substr(inicio + 1, fin == std::string_view::npos ? fin : fin - inicio - 1));
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
std::optional<std::string> AUtf8(std::string bytes)
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

bool EsElemento(pugi::xml_node nodo)
{
    return nodo.type() == pugi::node_element;
}

pugi::xml_node PrimerElemento(pugi::xml_node nodo)
{
    while (nodo && !EsElemento(nodo))
        nodo = nodo.next_sibling();
    return nodo;
}

// Exactly one outermost element, which the parser itself doesn't insist on.
bool TieneUnaRaiz(const pugi::xml_document& arbol)
{
    return std::count_if(arbol.begin(), arbol.end(), EsElemento) == 1;
}

}  // namespace

int xmlOpenDocument(const CString& csRuta, int /*iReservado*/)
{
    xmlCloseDocument();
    std::optional<std::string> leido = archivo::LeerFichero(csRuta, kMaximoFichero);
    if (!leido)
        return 0;
    std::optional<std::string> utf8 = AUtf8(std::move(*leido));
    if (!utf8 || utf8->find('\0') != std::string::npos)
        return 0;

    Documento& documento = Actual();
    documento.bytes = std::move(*utf8);
    const pugi::xml_parse_result resultado = documento.arbol.load_buffer_inplace(
        documento.bytes.data(), documento.bytes.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!resultado || !TieneUnaRaiz(documento.arbol)) {
        xmlCloseDocument();
        return 0;
    }
    documento.raiz = documento.arbol.document_element();
    return 1;
}

void xmlCloseDocument()
{
    Documento& documento = Actual();
    documento.nodoPista = pugi::xml_node();
    documento.pista = pugi::xml_attribute();
    documento.raiz = pugi::xml_node();
    documento.arbol.reset();
    documento.bytes = {};
}

Nodo xmlGetFirstChildNode(Nodo nodo)
{
    if (nodo != nullptr)
        return Externo(PrimerElemento(Interno(nodo).first_child()));
    const pugi::xml_node raiz = Actual().raiz;
    if (UnoDe(raiz.name(), {"TablaFamilias", "TablaFactoresK"}))
        return Externo(raiz);
    return Externo(PrimerElemento(raiz.first_child()));
}

Nodo xmlGetNextSiblingNode(Nodo nodo)
{
    return Externo(PrimerElemento(Interno(nodo).next_sibling()));
}

void xmlGetNodeName(Nodo nodo, CString& csNombre)
{
    csNombre = CadenaDesdeUtf8(Interno(nodo).name());
}

bool SeLlama(Nodo nodo, const char* nombre)
{
    return std::strcmp(Interno(nodo).name(), nombre) == 0;
}

namespace {

// Text of the attribute; null when it is absent.
const char* Valor(Nodo nodo, const char* nombre)
{
    Documento& documento = Actual();
    const pugi::xml_node interno = Interno(nodo);
    if (documento.nodoPista != interno) {
        documento.nodoPista = interno;
        documento.pista = pugi::xml_attribute();
    }
    const pugi::xml_attribute atributo = interno.attribute(nombre, documento.pista);
    return atributo ? atributo.value() : nullptr;
}

}  // namespace

void xmlGetTextAttribute(Nodo nodo, const char* nombre, CString& csValor)
{
    if (const char* valor = Valor(nodo, nombre))
        csValor = CadenaDesdeUtf8(valor);
}

void xmlGetIntAttribute(Nodo nodo, const char* nombre, int& iValor)
{
    if (const char* valor = Valor(nodo, nombre))
        iValor = numero::LeerEntero(valor);
}

void xmlGetFloatAttribute(Nodo nodo, const char* nombre, double& dValor)
{
    if (const char* valor = Valor(nodo, nombre))
        dValor = numero::LeerDoble(std::string_view(valor));
}

}  // namespace efv::xml

#include "platform/xml/xml.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

#include <pugixml.hpp>

#include "platform/numero/conversion.h"
#include "platform/texto/texto.h"
#include "platform/xml/codificacion.h"

namespace efv::xml {

namespace {

struct Documento {
    std::string bytes;  // the parser works in place: names and values point into it
    pugi::xml_document arbol;
    pugi::xml_node raiz;
    // Attributes are mostly asked for in file order: the search goes on behind the last one found.
    Nodo manejadorPista = nullptr;
    pugi::xml_node nodoPista;
    pugi::xml_attribute pista;
};

Documento gActual;

Documento& Actual()
{
    return gActual;
}

pugi::xml_node Interno(Nodo nodo)
{
    return pugi::xml_node(reinterpret_cast<pugi::xml_node_struct*>(const_cast<NodoXml*>(nodo)));
}

Nodo Externo(pugi::xml_node nodo)
{
    return reinterpret_cast<Nodo>(nodo.internal_object());
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
    std::optional<std::string> utf8 = LeerComoUtf8(csRuta);
    if (!utf8)
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
    documento.manejadorPista = nullptr;
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
    if (EsTabla(raiz.name()))
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
    if (documento.manejadorPista != nodo) {
        documento.manejadorPista = nodo;
        documento.nodoPista = Interno(nodo);
        documento.pista = pugi::xml_attribute();
    }
    const pugi::xml_attribute atributo = documento.nodoPista.attribute(nombre, documento.pista);
    return atributo ? atributo.value() : nullptr;
}

}  // namespace

void xmlGetTextAttribute(Nodo nodo, const char* nombre, CString& csValor)
{
    if (const char* valor = Valor(nodo, nombre))
        texto::AsignarUtf8(csValor, valor);
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

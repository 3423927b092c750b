#include "platform/xml/xml.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

#include <pugixml.hpp>

#include "platform/xml/atributos.h"
#include "platform/xml/codificacion.h"

namespace efv::xml {

namespace {

struct Documento {
    std::string bytes;  // the parser works in place: names and values point into it
    pugi::xml_document arbol;
    pugi::xml_node raiz;
    // Attributes of one element are mostly asked for one after the other.
    Nodo preguntado = nullptr;
    Atributos atributos{nullptr};
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
    documento.preguntado = nullptr;
    documento.atributos = Atributos(nullptr);
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

Atributos::Atributos(Nodo nodo) : m_nodo(Interno(nodo)), m_siguiente(m_nodo.first_attribute()) {}

const char* Atributos::Buscar(const char* nombre)
{
    const pugi::xml_attribute atributo = m_nodo.attribute(nombre, m_siguiente);
    return atributo ? atributo.value() : nullptr;
}

namespace {

Atributos& AtributosDe(Nodo nodo)
{
    Documento& documento = Actual();
    if (documento.preguntado != nodo) {
        documento.preguntado = nodo;
        documento.atributos = Atributos(nodo);
    }
    return documento.atributos;
}

}  // namespace

void xmlGetTextAttribute(Nodo nodo, const char* nombre, CString& csValor)
{
    AtributosDe(nodo).Leer(nombre, csValor);
}

void xmlGetIntAttribute(Nodo nodo, const char* nombre, int& iValor)
{
    AtributosDe(nodo).Leer(nombre, iValor);
}

void xmlGetFloatAttribute(Nodo nodo, const char* nombre, double& dValor)
{
    AtributosDe(nodo).Leer(nombre, dValor);
}

}  // namespace efv::xml

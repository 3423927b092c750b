#include "platform/xml/xml.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include <pugixml.hpp>

#include "platform/texto/palabra.h"
#include "platform/xml/atributos.h"
#include "platform/xml/codificacion.h"

namespace efv::xml {

namespace {

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

struct Documento::Interior {
    std::string bytes;  // with room; the parser works in place: names and values point into it
    pugi::xml_document arbol;
};

Documento::Documento(const CString& csRuta) : Documento(LeerComoUtf8(csRuta)) {}

Documento::Documento(std::optional<std::string> utf8)
{
    if (!utf8)
        return;
    auto interior = std::make_unique<Interior>();
    interior->bytes = std::move(*utf8);
    const std::size_t nBytes = interior->bytes.size();
    interior->bytes.resize(nBytes + texto::kHolgura);
    const pugi::xml_parse_result resultado = interior->arbol.load_buffer_inplace(
        interior->bytes.data(), nBytes, pugi::parse_default, pugi::encoding_utf8);
    if (resultado.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (resultado && TieneUnaRaiz(interior->arbol))
        m_interior = std::move(interior);
}

Documento::~Documento() = default;

Hijos Documento::Superiores() const
{
    if (!m_interior)
        return Hijos(Hijos::DesdeNodo{nullptr});
    const pugi::xml_node raiz = m_interior->arbol.document_element();
    return EsTabla(raiz.name()) ? Hijos(Hijos::DesdeNodo{Externo(raiz)}) : Hijos(Externo(raiz));
}

Nodo PrimerHijo(Nodo nodo)
{
    return Externo(PrimerElemento(Interno(nodo).first_child()));
}

Nodo SiguienteHermano(Nodo nodo)
{
    return Externo(PrimerElemento(Interno(nodo).next_sibling()));
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

}  // namespace efv::xml

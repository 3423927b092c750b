#include "catalogues/viewer/edicion_documento.h"

#include <memory>
#include <utility>

namespace efv::catalogues {

using xml::DocumentoEditable;

CXMLElemento EdicionDocumento::Leer(xml::NodoEditable elemento) const
{
    CXMLElemento leido(m_documento.Nombre(elemento));
    for (const auto& [nombre, valor] : m_documento.LeerAtributos(elemento))
        leido.aAtributos.push_back(std::make_unique<CXMLAttribute>(nombre, valor));
    return leido;
}

void EdicionDocumento::PonerAtributos(xml::NodoEditable elemento, const DocumentoEditable::Atributos& atributos)
{
    const auto anteriores = m_documento.LeerAtributos(elemento);
    if (anteriores == atributos)
        return;
    Accion volver = [elemento, anteriores](DocumentoEditable& d) { d.PonerAtributos(elemento, anteriores); };
    HacerSitio();
    m_documento.PonerAtributos(elemento, atributos);
    m_deshacer.push_back(std::move(volver));
}

void EdicionDocumento::Escribir(xml::NodoEditable elemento, const CXMLElemento& cambiado)
{
    DocumentoEditable::Atributos atributos;
    for (const auto& atributo : cambiado.aAtributos)
        atributos.emplace_back(atributo->csNombre, atributo->csValor);
    PonerAtributos(elemento, atributos);
}

void EdicionDocumento::PonerAtributo(xml::NodoEditable elemento, std::wstring_view nombre,
                                     const CString& csValor)
{
    CXMLElemento leido = Leer(elemento);
    leido.AddAtributo(nombre, L"");
    leido.SetAtributoVariant(nombre, csValor);
    Escribir(elemento, leido);
}

xml::NodoEditable EdicionDocumento::Anadir(xml::NodoEditable padre, std::string_view nombre,
                                           const DocumentoEditable::Atributos& atributos)
{
    HacerSitio();
    const xml::NodoEditable nuevo = m_documento.Anadir(padre, nombre, atributos);
    m_deshacer.emplace_back([nuevo](DocumentoEditable& d) { d.Retirar(nuevo); });
    return nuevo;
}

xml::NodoEditable EdicionDocumento::Duplicar(xml::NodoEditable elemento)
{
    HacerSitio();
    const xml::NodoEditable copia = m_documento.Duplicar(elemento);
    m_deshacer.emplace_back([copia](DocumentoEditable& d) { d.Retirar(copia); });
    return copia;
}

void EdicionDocumento::Retirar(const std::vector<xml::NodoEditable>& elementos)
{
    HacerSitio();
    const auto retirados = std::make_shared<std::vector<DocumentoEditable::Retirado>>();
    retirados->reserve(elementos.size());
    // What was next to one may have gone after it: the last one comes back first.
    m_deshacer.emplace_back([retirados](DocumentoEditable& d) {
        for (; !retirados->empty(); retirados->pop_back())
            d.Reponer(retirados->back());
    });
    for (const xml::NodoEditable elemento : elementos)
        retirados->push_back(m_documento.Retirar(elemento));
}

// Behind a change of the document nothing may fail that its way back needs.
void EdicionDocumento::HacerSitio()
{
    if (m_deshacer.size() == m_deshacer.capacity())
        m_deshacer.reserve(2 * m_deshacer.size() + 1);
}

void EdicionDocumento::Deshacer()
{
    if (m_deshacer.empty())
        return;
    m_deshacer.back()(m_documento);
    m_deshacer.pop_back();
}

}  // namespace efv::catalogues

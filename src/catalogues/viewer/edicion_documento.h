// Changes of a catalogue's document that can be undone, back to the document as it was opened.
#pragma once

#include <functional>
#include <vector>

#include "catalogues/format/elemento.h"
#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

class EdicionDocumento {
public:
    explicit EdicionDocumento(xml::DocumentoEditable documento) : m_documento(std::move(documento)) {}
    EdicionDocumento(const EdicionDocumento&) = delete;
    EdicionDocumento& operator=(const EdicionDocumento&) = delete;

    const xml::DocumentoEditable& Documento() const { return m_documento; }
    bool Modificado() const { return !m_deshacer.empty(); }

    /// The element as the catalogues see it, and the way back of what they changed in it.
    CXMLElemento Leer(xml::NodoEditable elemento) const;
    void Escribir(xml::NodoEditable elemento, const CXMLElemento& cambiado);

    void PonerAtributo(xml::NodoEditable elemento, std::wstring_view nombre, const CString& csValor);
    xml::NodoEditable Anadir(xml::NodoEditable padre, std::string_view nombre,
                             const xml::DocumentoEditable::Atributos& atributos);
    xml::NodoEditable Duplicar(xml::NodoEditable elemento);
    /// Several are one change.
    void Retirar(const std::vector<xml::NodoEditable>& elementos);

    /// Takes the last change back; nothing when there is none.
    void Deshacer();

private:
    using Accion = std::function<void(xml::DocumentoEditable&)>;

    void HacerSitio();
    void PonerAtributos(xml::NodoEditable elemento, const xml::DocumentoEditable::Atributos& atributos);

    xml::DocumentoEditable m_documento;
    std::vector<Accion> m_deshacer;
};

}  // namespace efv::catalogues

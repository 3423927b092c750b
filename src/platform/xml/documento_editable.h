// A document to be changed and written back: what isn't touched survives, comments, unknown elements,
// attributes, order and white space included.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::xml {

class DocumentoEditable;

/// Handle of an element of a document; lives as long as the document. Null is none.
class NodoEditable {
public:
    NodoEditable() = default;
    explicit operator bool() const { return m_nodo != nullptr; }
    bool operator==(const NodoEditable&) const = default;

private:
    friend class DocumentoEditable;
    explicit NodoEditable(void* nodo) : m_nodo(nodo) {}
    void* m_nodo = nullptr;
};

/// What runs out of memory throws std::bad_alloc, with the document as it was before.
class DocumentoEditable {
public:
    using Atributos = std::vector<std::pair<CString, CString>>;

    /// What brings a removed element back to its place.
    struct Retirado {
        NodoEditable elemento, padre, siguiente;
    };

    DocumentoEditable();
    ~DocumentoEditable();
    DocumentoEditable(DocumentoEditable&&) noexcept;
    DocumentoEditable& operator=(DocumentoEditable&&) noexcept;

    /// @return nothing when the file can't be read as a document (see xml::Documento).
    static std::optional<DocumentoEditable> Abrir(const CString& csRuta);

    /// The same of a file's bytes.
    static std::optional<DocumentoEditable> DeBytes(std::string bytes);
    /// The same of a text. @param utf8 well-formed UTF-8
    static std::optional<DocumentoEditable> Leer(std::string_view utf8);

    /// The whole document, UTF-8.
    std::string Texto() const;

    /// Top-level elements, as the reading functions give them.
    std::vector<NodoEditable> Superiores() const;
    std::vector<NodoEditable> Hijos(NodoEditable padre, std::string_view nombre) const;
    NodoEditable Padre(NodoEditable elemento) const;
    CString Nombre(NodoEditable elemento) const;
    CString Atributo(NodoEditable elemento, std::string_view nombre) const;

    Atributos LeerAtributos(NodoEditable elemento) const;
    /// Their names alone, UTF-8, as long as they aren't changed.
    std::vector<std::string_view> NombresDeAtributos(NodoEditable elemento) const;
    /// Puts exactly these attributes in place of the element's. A character that no document may hold
    /// becomes U+FFFD.
    void PonerAtributos(NodoEditable elemento, const Atributos& atributos);

    /// New element behind the last element child of `padre`, indented like its siblings; the first child
    /// of an empty element is indented like that.
    NodoEditable Anadir(NodoEditable padre, std::string_view nombre, const Atributos& atributos);
    /// Copy of the element, all it holds included, directly behind it.
    NodoEditable Duplicar(NodoEditable elemento);

    Retirado Retirar(NodoEditable elemento);
    void Reponer(const Retirado& retirado);

private:
    struct Interno;
    std::unique_ptr<Interno> m;
};

}  // namespace efv::xml

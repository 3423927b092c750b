// XML documents for reading. One document is current at a time; the functions walk it by node handles,
// which live until another document is opened or this one is closed.
//
// A document may be UTF-8, UTF-16, ISO-8859-1 or Windows-1252, as its byte-order mark or declaration
// says. Entities beyond the five standard ones aren't expanded.
#pragma once

#include <cstddef>
#include <string>

#include <quorvel/framework/CString.h>

namespace efv::xml {

/// Handle of an element; null is none.
struct NodoXml;
using Nodo = const NodoXml*;

/// Largest document read, bytes. Bounds the memory: a document takes up to 16 times its file's size.
inline constexpr std::size_t kMaximoFichero = std::size_t{32} << 20;

/// Makes the file the current document.
/// @return 0, with no document current, when it is missing, unreadable, larger than the limit, not in
/// its declared encoding or not well formed; else 1.
/// @throws CFileException with the sharing cause while another process holds it.
int xmlOpenDocument(const CString& csRuta, int iReservado);

/// Lets the current document go, and the memory with it.
void xmlCloseDocument();

/// First child element; of null the first top-level node of the document. The top-level nodes are the
/// children of the outermost element, whatever its name; an outermost element that is itself a table
/// ("TablaFamilias", "TablaFactoresK") is the one top-level node.
Nodo xmlGetFirstChildNode(Nodo nodo);
Nodo xmlGetNextSiblingNode(Nodo nodo);
void xmlGetNodeName(Nodo nodo, CString& csNombre);

/// True when the element has that name; spares the copy of xmlGetNodeName.
bool SeLlama(Nodo nodo, const char* nombre);

// The attribute getters leave the variable alone when the attribute is absent. A number is read from
// the start of the text, 0 when there is none.
void xmlGetTextAttribute(Nodo nodo, const char* nombre, CString& csValor);
void xmlGetIntAttribute(Nodo nodo, const char* nombre, int& iValor);
void xmlGetFloatAttribute(Nodo nodo, const char* nombre, double& dValor);

/// Element loops: `for (Nodo n : Hijos(padre))`.
class Hijos {
public:
    class Iterador {
    public:
        explicit Iterador(Nodo nodo) : m_nodo(nodo) {}
        Nodo operator*() const { return m_nodo; }
        Iterador& operator++()
        {
            m_nodo = xmlGetNextSiblingNode(m_nodo);
            return *this;
        }
        bool operator!=(const Iterador& otro) const { return m_nodo != otro.m_nodo; }

    private:
        Nodo m_nodo;
    };

    explicit Hijos(Nodo padre) : m_padre(padre) {}
    Iterador begin() const { return Iterador(xmlGetFirstChildNode(m_padre)); }
    static Iterador end() { return Iterador(nullptr); }

private:
    Nodo m_padre;
};

/// Opens a document for the length of a block.
class DocumentoAbierto {
public:
    explicit DocumentoAbierto(const CString& csRuta) : m_abierto(xmlOpenDocument(csRuta, 0) != 0) {}
    ~DocumentoAbierto() { xmlCloseDocument(); }
    DocumentoAbierto(const DocumentoAbierto&) = delete;
    DocumentoAbierto& operator=(const DocumentoAbierto&) = delete;
    explicit operator bool() const { return m_abierto; }

private:
    bool m_abierto;
};

}  // namespace efv::xml

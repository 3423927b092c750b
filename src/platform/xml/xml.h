// XML documents for reading, walked by node handles, which live as long as their document.
//
// A document may be UTF-8, UTF-16, ISO-8859-1 or Windows-1252, as its byte-order mark or declaration
// says. Entities beyond the five standard ones aren't expanded.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <quorvel/framework/CString.h>

namespace efv::xml {

/// Handle of an element; null is none.
struct NodoXml;
using Nodo = const NodoXml*;

/// Largest document read, bytes. Bounds the memory: a document takes up to 16 times its file's size.
inline constexpr std::size_t kMaximoFichero = std::size_t{32} << 20;

/// First child element, and the next element behind one; null when there is none.
Nodo PrimerHijo(Nodo nodo);
Nodo SiguienteHermano(Nodo nodo);
bool SeLlama(Nodo nodo, const char* nombre);

/// Element loops: `for (Nodo n : Hijos(padre))`.
class Hijos {
public:
    class Iterador {
    public:
        explicit Iterador(Nodo nodo) : m_nodo(nodo) {}
        Nodo operator*() const { return m_nodo; }
        Iterador& operator++()
        {
            m_nodo = SiguienteHermano(m_nodo);
            return *this;
        }
        bool operator!=(const Iterador& otro) const { return m_nodo != otro.m_nodo; }

    private:
        Nodo m_nodo;
    };

    explicit Hijos(Nodo padre) : m_primero(PrimerHijo(padre)) {}
    Iterador begin() const { return Iterador(m_primero); }
    static Iterador end() { return Iterador(nullptr); }

private:
    friend class Documento;
    struct DesdeNodo {
        Nodo primero;
    };
    explicit Hijos(DesdeNodo desde) : m_primero(desde.primero) {}

    Nodo m_primero;
};

class Documento {
public:
    /// Reads the file. The document is false when it is missing, unreadable, larger than the limit, not in
    /// its declared encoding or not well formed.
    /// @throws CFileException with the sharing cause while another process holds it; std::bad_alloc.
    explicit Documento(const CString& csRuta);
    /// Of a document's text, in UTF-8.
    static Documento DeTexto(std::string utf8) { return Documento(std::optional(std::move(utf8))); }
    ~Documento();
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;

    explicit operator bool() const { return m_interior != nullptr; }

    /// The children of the outermost element, whatever its name; an outermost element that is itself a table
    /// ("TablaFamilias", "TablaFactoresK") is the one top-level node. None of a false document.
    Hijos Superiores() const;

private:
    explicit Documento(std::optional<std::string> utf8);

    struct Interior;
    std::unique_ptr<const Interior> m_interior;
};

}  // namespace efv::xml

// The attributes of one element.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

#include <pugixml.hpp>

#include <quorvel/framework/CString.h>

#include "platform/numero/conversion.h"
#include "platform/texto/palabra.h"
#include "platform/texto/texto.h"
#include "platform/xml/xml.h"

namespace efv::xml {

/// A name to be asked for often.
class NombreAtributo {
public:
    /// @param nombre isn't empty, and lives as long
    explicit NombreAtributo(const char* nombre) : m_nombre(nombre), m_nBytes(std::strlen(nombre) + 1)
    {
        std::array<char, texto::kHolgura> principio{}, mascara{};
        const std::size_t n = std::min(m_nBytes, texto::kHolgura);
        std::copy_n(nombre, n, principio.begin());
        std::fill_n(mascara.begin(), n, '\xFF');
        for (std::size_t i = 0; i < m_palabras.size(); ++i) {
            m_palabras[i] = texto::LeerPalabra(&principio[8 * i]);
            m_mascaras[i] = texto::LeerPalabra(&mascara[8 * i]);
        }
    }

    const char* Texto() const { return m_nombre; }

    /// @param otro empty, or with room behind its zero
    bool operator==(const char* otro) const
    {
        if (*otro != *m_nombre)
            return false;
        const bool bPrincipio = ((texto::LeerPalabra(otro) ^ m_palabras[0]) & m_mascaras[0]) == 0 &&
                                ((texto::LeerPalabra(otro + 8) ^ m_palabras[1]) & m_mascaras[1]) == 0;
        return bPrincipio && (m_nBytes <= texto::kHolgura || std::strcmp(otro, m_nombre) == 0);
    }

private:
    const char* m_nombre;
    std::size_t m_nBytes;  // with its zero
    std::array<texto::Palabra, 2> m_palabras{}, m_mascaras{};
};

/// Fastest when the attributes are asked for in file order. Lives no longer than the document, which gives
/// names and values room behind their zeros.
class Atributos {
public:
    explicit Atributos(Nodo nodo);

    // An absent attribute leaves the variable alone and gives false. A number is read from the start of the
    // text, 0 when there is none. A name that isn't asked for often may be a plain text.
    template <class NOMBRE>
    bool Leer(const NOMBRE& nombre, CString& csValor)
    {
        const char* valor = Valor(nombre);
        if (valor != nullptr)
            texto::AsignarUtf8(csValor, valor);
        return valor != nullptr;
    }
    template <class NOMBRE>
    bool Leer(const NOMBRE& nombre, int& iValor)
    {
        const char* valor = Valor(nombre);
        if (valor != nullptr)
            iValor = numero::LeerEntero(valor);
        return valor != nullptr;
    }
    template <class NOMBRE>
    bool Leer(const NOMBRE& nombre, double& dValor)
    {
        const char* valor = Valor(nombre);
        if (valor != nullptr)
            dValor = numero::LeerDoble(valor);
        return valor != nullptr;
    }

private:
    static const char* Texto(const char* nombre) { return nombre; }
    static const char* Texto(const NombreAtributo& nombre) { return nombre.Texto(); }
    static bool EsEste(const char* leido, const char* nombre) { return std::strcmp(leido, nombre) == 0; }
    static bool EsEste(const char* leido, const NombreAtributo& nombre) { return nombre == leido; }

    // Text of the attribute of that name, which isn't empty; null when it is absent.
    template <class NOMBRE>
    const char* Valor(const NOMBRE& nombre)
    {
        // Behind the last one this is the empty name, which no attribute has.
        if (!EsEste(m_siguiente.name(), nombre))
            return Buscar(Texto(nombre));
        const char* valor = m_siguiente.value();
        m_siguiente = m_siguiente.next_attribute();
        return valor;
    }

    const char* Buscar(const char* nombre);

    pugi::xml_node m_nodo;
    pugi::xml_attribute m_siguiente;  // behind the last one found, where the search goes on
};

}  // namespace efv::xml

// The attributes of one element.
#pragma once

#include <cstring>

#include <pugixml.hpp>

#include <quorvel/framework/CString.h>

#include "platform/numero/conversion.h"
#include "platform/texto/texto.h"
#include "platform/xml/xml.h"

namespace efv::xml {

/// Fastest when the attributes are asked for in file order. Lives no longer than the document.
class Atributos {
public:
    explicit Atributos(Nodo nodo);

    /// Text of the attribute of that name, which isn't empty; null when it is absent.
    const char* Valor(const char* nombre)
    {
        // Behind the last one this is the empty name, which no attribute has.
        if (std::strcmp(m_siguiente.name(), nombre) != 0)
            return Buscar(nombre);
        const char* valor = m_siguiente.value();
        m_siguiente = m_siguiente.next_attribute();
        return valor;
    }

    // An absent attribute leaves the variable alone and gives false. A number is read from the start of the
    // text, 0 when there is none.
    bool Leer(const char* nombre, CString& csValor)
    {
        const char* valor = Valor(nombre);
        if (valor != nullptr)
            texto::AsignarUtf8(csValor, valor);
        return valor != nullptr;
    }
    bool Leer(const char* nombre, int& iValor)
    {
        const char* valor = Valor(nombre);
        if (valor != nullptr)
            iValor = numero::LeerEntero(valor);
        return valor != nullptr;
    }
    bool Leer(const char* nombre, double& dValor)
    {
        const char* valor = Valor(nombre);
        if (valor != nullptr)
            dValor = numero::LeerDoble(valor);
        return valor != nullptr;
    }

private:
    const char* Buscar(const char* nombre);

    pugi::xml_node m_nodo;
    pugi::xml_attribute m_siguiente;  // behind the last one found, where the search goes on
};

}  // namespace efv::xml

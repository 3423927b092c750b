// One element of a document as a model, and a model as an element.
#pragma once

#include <cstdint>

#include "catalogues/format/campos.h"
#include "catalogues/format/elemento.h"
#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

CString NombreAncho(const char* nombre);
/// The number at the start of an attribute's text.
double NumeroDe(const CString& csTexto);
int EnteroDe(const CString& csTexto);

inline void DeTexto(const CString& csValor, CString& cs)
{
    cs = csValor;
}
inline void DeTexto(const CString& csValor, double& d)
{
    d = NumeroDe(csValor);
}
inline void DeTexto(const CString& csValor, int& i)
{
    i = EnteroDe(csValor);
}
// The 16-bit colour index is no field of any dialog: it is neither read nor written here and survives.
inline void DeTexto(const CString& /*csValor*/, short& /*n*/) {}

inline void Escribir(CXMLElemento& elemento, const CString& csNombre, const CString& cs)
{
    elemento.SetAtributoVariant(csNombre, cs);
}
inline void Escribir(CXMLElemento& elemento, const CString& csNombre, double d)
{
    elemento.SetAtributoDouble(csNombre, d);
}
inline void Escribir(CXMLElemento& elemento, const CString& csNombre, int i)
{
    elemento.SetAtributoInt(csNombre, i);
}
inline void Escribir(CXMLElemento& /*elemento*/, const CString& /*csNombre*/, short /*n*/) {}

/// Values of an element as a model: an absent attribute is 0 or empty. A new one's name starts empty.
template <class M>
M ModeloDe(const CXMLElemento& elemento, bool bNuevo)
{
    M modelo;
    std::uint64_t uMarca = 1;
    for (const auto& campo : FormatoCatalogo<M>::Campos()) {
        const CString csNombre = NombreAncho(campo.atributo);
        AlMiembro(modelo, campo, [&](auto& valor) { DeTexto(elemento.GetAtributo(csNombre), valor); });
        if (elemento.BuscarAtributo(csNombre) == nullptr)
            modelo.uAusentes |= uMarca;
        uMarca <<= 1U;
    }
    if (bNuevo)
        modelo.csModelo.clear();
    FormatoCatalogo<M>::PrepararEdicion(modelo, bNuevo);
    return modelo;
}

/// Writes the model's values into the attributes that the element has.
template <class M>
void EscribirEn(CXMLElemento& elemento, const M& modelo)
{
    for (const char* atributo : FormatoCatalogo<M>::AnadirSiFaltan())
        elemento.AddAtributo(NombreAncho(atributo), L"");
    for (const auto& campo : FormatoCatalogo<M>::Campos()) {
        AlMiembro(modelo, campo,
                  [&](const auto& valor) { Escribir(elemento, NombreAncho(campo.atributo), valor); });
    }
}

/// All attributes of a model's element, in file order. Those without a field are 0.
template <class M>
xml::DocumentoEditable::Atributos AtributosDe(const M& modelo)
{
    CXMLElemento elemento(L"Modelo");
    for (const auto& campo : FormatoCatalogo<M>::Campos())
        elemento.AddAtributo(NombreAncho(campo.atributo), EsNumerico(campo) ? L"0" : L"");
    EscribirEn(elemento, modelo);
    xml::DocumentoEditable::Atributos atributos;
    for (const auto& atributo : elemento.aAtributos)
        atributos.emplace_back(atributo->csNombre, atributo->csValor);
    return atributos;
}

}  // namespace efv::catalogues

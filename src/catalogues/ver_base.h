// Managing a catalogue and choosing from it: what stands between a catalogue and the viewer.
#pragma once

#include <memory>
#include <optional>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/catalogues.h>
#include <quorvel/ui/presentador.h>

#include "catalogues/campos.h"
#include "catalogues/ordenes.h"
#include "catalogues/visor.h"
#include "frame/recursos.h"
#include "platform/xml/documento_editable.h"
#include "ui/filas.h"

namespace efv::catalogues {

/// The dialog of a model's data sheet; each catalogue has its own.
template <class M>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& ordenes);

// ---------------------------------------------------------------------------------------------------
// One element of the document
// ---------------------------------------------------------------------------------------------------

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
    for (const auto& campo : Catalogo<M>::Campos()) {
        AlMiembro(modelo, campo,
                  [&](auto& valor) { DeTexto(elemento.GetAtributo(NombreAncho(campo.atributo)), valor); });
    }
    if (bNuevo)
        modelo.csModelo.clear();
    Catalogo<M>::PrepararEdicion(modelo, bNuevo);
    return modelo;
}

/// Writes the model's values into the attributes that the element has.
template <class M>
void EscribirEn(CXMLElemento& elemento, const M& modelo)
{
    for (const char* atributo : Catalogo<M>::AnadirSiFaltan())
        elemento.AddAtributo(NombreAncho(atributo), L"");
    for (const auto& campo : Catalogo<M>::Campos()) {
        AlMiembro(modelo, campo,
                  [&](const auto& valor) { Escribir(elemento, NombreAncho(campo.atributo), valor); });
    }
}

/// All attributes of a model's element, in file order. Those without a field are 0.
template <class M>
xml::DocumentoEditable::Atributos AtributosDe(const M& modelo)
{
    CXMLElemento elemento(L"Modelo");
    for (const auto& campo : Catalogo<M>::Campos())
        elemento.AddAtributo(NombreAncho(campo.atributo), EsNumerico(campo) ? L"0" : L"");
    EscribirEn(elemento, modelo);
    xml::DocumentoEditable::Atributos atributos;
    for (const auto& atributo : elemento.aAtributos)
        atributos.emplace_back(atributo->csNombre, atributo->csValor);
    return atributos;
}

/// How the elements of a document are opened.
template <class M>
struct AperturaElementos {
    bool bSoloLectura;
    OrdenesModelo<M> ordenes;
};

/// Lets the person edit one element of the document, or look at it.
template <class M>
Edicion EditarElemento(CXMLElemento* elemento, bool bNuevo, const AperturaElementos<M>& apertura)
{
    if (elemento == nullptr)
        return Edicion::sinCambio;
    if (elemento->csNombre != L"Modelo")
        return elemento->csNombre == L"Familia" ? Edicion::familia : Edicion::sinCambio;
    const M modelo = ModeloDe<M>(*elemento, bNuevo);
    const frame::AmbitoRecursos ambito;
    const auto dialogo = CrearDialogo(modelo, apertura.bSoloLectura, apertura.ordenes);
    if (dialogo->Mostrar() != ui::Dialogo::ok)
        return Edicion::sinCambio;
    EscribirEn(*elemento, dialogo->datos);
    return Edicion::cambiado;
}

// ---------------------------------------------------------------------------------------------------
// The viewer
// ---------------------------------------------------------------------------------------------------

template <class M>
PeticionVisor PeticionPara(const CBaseCatalogo<M>& base, const AperturaElementos<M>& apertura)
{
    PeticionVisor peticion;
    peticion.csRuta = base.csArchivo;
    peticion.rotulo = Catalogo<M>::Nombres().rotulo;
    peticion.titulo = Catalogo<M>::Nombres().titulo;
    peticion.bModificable = !apertura.bSoloLectura;
    for (const auto& campo : Catalogo<M>::Campos()) {
        peticion.atributos.push_back(campo.atributo);
        peticion.abNumerico.push_back(EsNumerico(campo));
    }
    peticion.editar = [apertura](CXMLElemento* e) { return EditarElemento<M>(e, false, apertura); };
    peticion.rellenar = [apertura](CXMLElemento* e) { return EditarElemento<M>(e, true, apertura); };
    return peticion;
}

/// The two parts of "family#model"; nothing for a text without "#". What stands behind a second "#" is
/// dropped.
std::optional<std::pair<CString, CString>> PartirIdentificacion(const CString& csId);

/// Runs the viewer over the catalogue's file: 0 manages it, anything else chooses a model, whose dialogs then
/// only show. @return 1 accepted, 0 failed, anything else cancelled
template <class M>
int VerBase(CBaseCatalogo<M>& base, int iModo, const OrdenesModelo<M>& ordenes)
{
    const frame::AmbitoRecursos ambito;
    const PeticionVisor peticion =
        PeticionPara(base, AperturaElementos<M>{.bSoloLectura = iModo != 0, .ordenes = ordenes});
    CString csSeleccion = base.csSeleccion;
    if (csSeleccion.find(L'#') == CString::npos)
        csSeleccion = base.GetIdModelo(csSeleccion);
    const int iResultado = xmlViewDocument2(peticion, csSeleccion);
    if (iResultado == 0) {
        ui::MostrarAviso(L"Error: No se ha podido abrir el archivo <" + peticion.csRuta + L">",
                         ui::Icono::error);
        return 0;
    }
    if (iResultado != 1)
        return iResultado;
    if (iModo == 0) {
        base.Vaciar();
        return base.Cargar(peticion.csRuta);
    }
    base.csSeleccion.clear();
    const auto partes = PartirIdentificacion(csSeleccion);
    if (!partes) {
        ui::MostrarAviso(L"¡Atención! Debe elegir un modelo", ui::Icono::advertencia);
        return 0;
    }
    base.csSeleccion = partes->first + L"#" + partes->second;
    return 1;
}

}  // namespace efv::catalogues

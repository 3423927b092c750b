// Managing a catalogue and choosing from it: what stands between a catalogue and the viewer.
#pragma once

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/catalogues.h>
#include <quorvel/ui/presentador.h>

#include "catalogues/campos.h"
#include "catalogues/visor.h"
#include "frame/recursos.h"

namespace efv::catalogues {

/// Whether the dialogs of a catalogue only show: one flag a catalogue, saved and restored around each
/// viewer so that they nest.
template <class M>
int& SoloLectura()
{
    static int iSoloLectura = 0;
    return iSoloLectura;
}

/// Puts a value into a flag for the length of a block.
class ValorTemporal {
public:
    ValorTemporal(int& variable, int valor) : m_variable(variable), m_anterior(std::exchange(variable, valor))
    {
    }
    ~ValorTemporal() { m_variable = m_anterior; }
    ValorTemporal(const ValorTemporal&) = delete;
    ValorTemporal& operator=(const ValorTemporal&) = delete;

private:
    int& m_variable;
    int m_anterior;
};

/// Shows a model's dialog over `modelo`; true when the person accepted it. Each catalogue has its own.
template <class M>
bool MostrarDialogo(M& modelo);

// ---------------------------------------------------------------------------------------------------
// One element of the document
// ---------------------------------------------------------------------------------------------------

CString NombreAncho(const char* nombre);
/// The number at the start of an attribute's text.
double NumeroDe(const CString& csTexto);
int EnteroDe(const CString& csTexto);

/// Values of an element as a model: an absent attribute is 0 or empty.
template <class M>
M ModeloDe(const CXMLElemento& elemento)
{
    M modelo;
    for (const auto& campo : Catalogo<M>::Campos()) {
        const CString csValor = elemento.GetAtributo(NombreAncho(campo.atributo));
        struct Asignar {
            M& modelo;
            const CString& csValor;
            void operator()(CString M::*m) const { modelo.*m = csValor; }
            void operator()(double M::*m) const { modelo.*m = NumeroDe(csValor); }
            void operator()(int M::*m) const { modelo.*m = EnteroDe(csValor); }
            void operator()(short M::*m) const { modelo.*m = 0; }
        };
        std::visit(Asignar{modelo, csValor}, campo.miembro);
    }
    return modelo;
}

/// Writes the model's values into the attributes that the element has. The 16-bit colour index is no
/// field of any dialog and survives as it stands.
template <class M>
void EscribirEn(CXMLElemento& elemento, const M& modelo)
{
    for (const auto& campo : Catalogo<M>::Campos()) {
        const CString csNombre = NombreAncho(campo.atributo);
        struct Poner {
            CXMLElemento& elemento;
            const M& modelo;
            const CString& csNombre;
            void operator()(short M::* /*m*/) const {}
            void operator()(int M::*m) const { elemento.SetAtributoInt(csNombre, modelo.*m); }
            void operator()(double M::*m) const { elemento.SetAtributoDouble(csNombre, modelo.*m); }
            void operator()(CString M::*m) const { elemento.SetAtributoVariant(csNombre, modelo.*m); }
        };
        std::visit(Poner{elemento, modelo, csNombre}, campo.miembro);
    }
}

/// Lets the person edit one element of the document. A new one's name starts empty.
template <class M>
Edicion EditarElemento(CXMLElemento* elemento, bool bNuevo)
{
    if (elemento == nullptr)
        return Edicion::sinCambio;
    if (elemento->csNombre != L"Modelo")
        return elemento->csNombre == L"Familia" ? Edicion::familia : Edicion::sinCambio;
    M modelo = ModeloDe<M>(*elemento);
    if (bNuevo)
        modelo.csModelo.clear();
    const frame::AmbitoRecursos ambito;
    if (!MostrarDialogo(modelo))
        return Edicion::sinCambio;
    EscribirEn(*elemento, modelo);
    return Edicion::cambiado;
}

// ---------------------------------------------------------------------------------------------------
// The viewer
// ---------------------------------------------------------------------------------------------------

template <class M>
PeticionVisor PeticionPara(const CBaseCatalogo<M>& base, bool bModificable)
{
    PeticionVisor peticion;
    peticion.csRuta = base.csArchivo;
    peticion.rotulo = Catalogo<M>::Nombres().rotulo;
    peticion.titulo = Catalogo<M>::Nombres().titulo;
    peticion.bModificable = bModificable;
    for (const auto& campo : Catalogo<M>::Campos()) {
        peticion.atributos.push_back(campo.atributo);
        peticion.abNumerico.push_back(!std::holds_alternative<CString M::*>(campo.miembro));
    }
    peticion.editar = [](CXMLElemento* e) { return EditarElemento<M>(e, false); };
    peticion.rellenar = [](CXMLElemento* e) { return EditarElemento<M>(e, true); };
    return peticion;
}

/// The two parts of "family#model"; nothing for a text without "#". What stands behind a second "#" is
/// dropped.
std::optional<std::pair<CString, CString>> PartirIdentificacion(const CString& csId);

template <class M>
int VerBase(CBaseCatalogo<M>& base, int iModo)
{
    const frame::AmbitoRecursos ambito;
    const PeticionVisor peticion = PeticionPara(base, iModo == 0);
    CString csSeleccion = base.csSeleccion;
    if (csSeleccion.find(L'#') == CString::npos)
        csSeleccion = base.GetIdModelo(csSeleccion);
    int iResultado = 0;
    {
        const ValorTemporal soloLectura(SoloLectura<M>(), iModo);
        iResultado = xmlViewDocument2(peticion, csSeleccion);
    }
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

// Managing a catalogue and choosing from it: what stands between a catalogue and the viewer.
#pragma once

#include <memory>
#include <optional>
#include <utility>

#include <quorvel/catalogues.h>
#include <quorvel/ui/presentador.h>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/format/ausencias.h"
#include "catalogues/format/elementos_modelo.h"
#include "catalogues/viewer/faltas.h"
#include "catalogues/viewer/visor.h"
#include "frame/recursos.h"

namespace efv::catalogues {

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
    peticion.rotulo = FormatoCatalogo<M>::Nombres().rotulo;
    peticion.titulo = FormatoCatalogo<M>::Nombres().titulo;
    peticion.imagen = FormatoCatalogo<M>::Nombres().imagen;
    peticion.bModificable = !apertura.bSoloLectura;
    for (const auto& campo : FormatoCatalogo<M>::Campos()) {
        peticion.atributos.push_back(campo.atributo);
        peticion.abNumerico.push_back(EsNumerico(campo));
    }
    peticion.editar = [apertura](CXMLElemento* e) { return EditarElemento<M>(e, false, apertura); };
    peticion.rellenar = [apertura](CXMLElemento* e) { return EditarElemento<M>(e, true, apertura); };
    peticion.faltas = [](const CXMLElemento& elemento) {
        const M modelo = ModeloDe<M>(elemento, false);
        const std::vector<SinDato> campos = CamposSinDato(modelo);
        return campos.empty() ? CString()
                              : TextoDeFaltas(*CrearDialogo(modelo, true, OrdenesModelo<M>()), campos);
    };
    peticion.modelo = [](const CXMLElemento& elemento) -> std::unique_ptr<CModelo> {
        return std::make_unique<M>(ModeloDe<M>(elemento, false));
    };
    peticion.grafica = [apertura](const CModelo& modelo) -> std::optional<CCtrlCurva2D> {
        const M suyo = SinHeredar(static_cast<const M&>(modelo));
        static_cast<void>(apertura);  // not every catalogue's orders have a chart
        if constexpr (requires { apertura.ordenes.grafica; }) {
            if (apertura.ordenes.grafica)
                return apertura.ordenes.grafica(suyo);
        }
        return FormatoCatalogo<M>::Grafica(suyo);
    };
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

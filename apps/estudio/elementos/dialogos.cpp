#include "elementos/dialogos.h"

#include <algorithm>
#include <memory>

#include <quorvel/clima.h>

#include "diseno/equipos.h"
#include "proyecto/asistentes.h"

namespace efv::estudio {

namespace {

using Clase = Elemento::Clase;

constexpr int kAceptado = ui::Dialogo::ok;
constexpr int kEntradasDeCaja = 75;

// ---------------------------------------------------------------------------------------------------
// Panels
// ---------------------------------------------------------------------------------------------------

/// What a design says of its panels.
struct PanelesDeDiseno {
    CString& csPanel;
    int& iPanelesSerie;
    double& dInclinacion;
    double& dOrientacion;
    int& iDisposicion;
};

// Labels of the inputs that the field's strings go to.
CString StringsDe(const DatosInversor& inversor, int iStrings)
{
    CString csStrings;
    const auto nStrings = std::min<std::ptrdiff_t>(iStrings, inversor.entradas.GetSize());
    for (std::ptrdiff_t i = 0; i < nStrings; ++i) {
        if (i > 0)
            csStrings += L", ";
        csStrings += inversor.entradas[i].csReferencia;
    }
    return csStrings;
}

// The records of both designs name them alike.
template <class DISENO>
PanelesDeDiseno PanelesDe(DISENO& diseno)
{
    return {diseno.csPanel, diseno.iPanelesSerie, diseno.dInclinacion, diseno.dOrientacion,
            diseno.iDisposicion};
}

bool EditarPaneles(const CProyectoEstudio& proyecto, DatosPaneles& paneles, const PanelesDeDiseno& diseno,
                   CString csString)
{
    constexpr int kAutoDesconexion = 0, kRegistro = 0, kCielo = 1;
    double dLatitud = proyecto.lugar.dLatitud, dAltitud = proyecto.situacion.dAltitud;
    int bClima = 1, iFuente = clima::RegistroCargado() ? kRegistro : kCielo;
    int iRotulos = paneles.iRotulos;
    using Horas = double[12][31][24];
    const auto sinHoras = std::make_unique<Horas[]>(1);
    return phShowPropertyPanelFoto(paneles.csReferencia, diseno.csPanel, diseno.iPanelesSerie, paneles.bModelo,
                                   paneles.bInclinacion, diseno.dInclinacion, diseno.iDisposicion,
                                   paneles.iMontaje, paneles.dRendimiento, kAutoDesconexion,
                                   paneles.bAutoDesconexion, paneles.dAutoDesconexion, paneles.bOptimizadorMPPT,
                                   paneles.csOptimizadorMPPT, {}, csString, paneles.bInformarSombra,
                                   paneles.dSombreado, paneles.bExcluir, paneles.bNoSombras, iRotulos, dLatitud,
                                   diseno.dOrientacion, dAltitud, bClima, iFuente, paneles.bMicroInversor,
                                   paneles.csIdMicro, paneles.bMicroModelo, paneles.iConexion, sinHoras[0],
                                   paneles.bForzado, paneles.nColor) == kAceptado;
}

// ---------------------------------------------------------------------------------------------------
// Inverters
// ---------------------------------------------------------------------------------------------------

// The inputs are those of the model that was accepted.
bool EditarInversor(DatosInversor& inversor, CString& csId)
{
    if (phShowPropertyInversor(inversor.csReferencia, csId, inversor.bModelo, inversor.entradas,
                               inversor.bExcluir, inversor.bEscala, inversor.iRotulos, 0, inversor.iNumMPPT,
                               inversor.iNumEntradas) != kAceptado)
        return false;
    CString csFamilia;
    double dAncho = 0.0, dLargo = 0.0, dAlto = 0.0, dPeso = 0.0;
    phGetDataInversorDim(csId, csFamilia, inversor.iNumMPPT, inversor.iNumEntradas, dAncho, dLargo, dAlto,
                         dPeso);
    return true;
}

void EditarInversorDeRed(CProyectoEstudio& proyecto)
{
    if (!EditarInversor(proyecto.elementos.inversor, proyecto.red.csInversor))
        return;
    if (const CBaseInversorModelo* modelo = phGetBaseInversores().BuscarModelo(proyecto.red.csInversor))
        proyecto.red.iTipoSalida = modelo->iTipoSalida;
}

// ---------------------------------------------------------------------------------------------------
// The others
// ---------------------------------------------------------------------------------------------------

void EditarRegulador(CSFVAsistenteAislada& diseno, Elementos& elementos)
{
    CString csNada;
    int iNada = 0;
    double adNada[8] = {};
    phShowPropertyRegulador(elementos.regulador.csReferencia, csNada, iNada, diseno.dTensionSistema,
                            diseno.dPotenciaMaxFV, diseno.dCorrienteMaxFV, diseno.dTensionMaxFV,
                            diseno.dTensionMinFV, adNada[0], adNada[1], adNada[2], adNada[3], adNada[4],
                            adNada[5], elementos.dPerdidasRegulador, adNada[6], adNada[7], diseno.bSalidaCA,
                            diseno.dTensionSalidaCA, diseno.dPotenciaSalidaCA, diseno.iTipoSalidaCA,
                            elementos.regulador.bExcluir, elementos.regulador.iRotulos, diseno.bSalidaCA);
}

void EditarAcumuladores(CSFVAsistenteAislada& diseno, DatosConModelo& acumuladores)
{
    double dNada = 0.0;
    phShowPropertyAcumulador(acumuladores.csReferencia, diseno.csAcumulador, acumuladores.bModelo, dNada,
                             diseno.iAcumuladoresSerie, diseno.iAcumuladoresParalelo, acumuladores.bExcluir,
                             acumuladores.bEscala, acumuladores.iRotulos);
}

// As many entries as inverters: the schematic fixes them.
void EditarCaja(const CSFVAsistenteRed& diseno, Elementos& elementos)
{
    int nEntradas = std::clamp(diseno.iInversores, 1, kEntradasDeCaja);
    phShowPropertyCajaConexion(elementos.caja.csReferencia, nEntradas, 1, elementos.bCajaTrifasica,
                               elementos.caja.bExcluir, elementos.caja.iRotulos);
}

void EditarDeAislada(Sesion& sesion, Clase clase)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    CSFVAsistenteAislada& diseno = proyecto.aislada;
    Elementos& elementos = proyecto.elementos;
    switch (clase) {
        case Clase::paneles:
            EditarPaneles(proyecto, elementos.panelesAislada, PanelesDe(diseno), {});
            return;
        case Clase::regulador:
            return EditarRegulador(diseno, elementos);
        case Clase::acumuladores:
            return EditarAcumuladores(diseno, elementos.acumuladores);
        case Clase::inversor:
            EditarInversor(elementos.salida, elementos.csIdSalida);
            return;
        case Clase::cargas:
            return EditarConsumo(sesion);
        case Clase::caja:
        case Clase::red:
        case Clase::puntos:
            return;
    }
}

void EditarDeRed(CProyectoEstudio& proyecto, Clase clase)
{
    CSFVAsistenteRed& diseno = proyecto.red;
    Elementos& elementos = proyecto.elementos;
    switch (clase) {
        case Clase::paneles:
            EditarPaneles(proyecto, elementos.panelesRed, PanelesDe(diseno),
                          StringsDe(elementos.inversor, diseno.iPanelesParalelo));
            return;
        case Clase::inversor:
            return EditarInversorDeRed(proyecto);
        case Clase::caja:
            return EditarCaja(diseno, elementos);
        case Clase::red:
            phShowPropertyRedElectrica(elementos.red.csReferencia, elementos.red.bExcluir,
                                       elementos.red.iRotulos);
            return;
        case Clase::regulador:
        case Clase::acumuladores:
        case Clase::cargas:
        case Clase::puntos:
            return;
    }
}

// The same for data that may be changed and for others.
template <class ELEMENTOS>
auto Hallar(ELEMENTOS& elementos, const ElementoDeDiseno& elemento) -> decltype(&elementos.red)
{
    const bool bAislada = elemento.diseno == Diseno::aislada;
    switch (elemento.clase) {
        case Clase::paneles:
            return bAislada ? &elementos.panelesAislada : &elementos.panelesRed;
        case Clase::regulador:
            return &elementos.regulador;
        case Clase::acumuladores:
            return &elementos.acumuladores;
        case Clase::inversor:
            return bAislada ? &elementos.salida : &elementos.inversor;
        case Clase::caja:
            return &elementos.caja;
        case Clase::red:
            return &elementos.red;
        case Clase::cargas:
        case Clase::puntos:
            break;
    }
    return nullptr;
}

}  // namespace

void EditarElemento(Sesion& sesion, const ElementoDeDiseno& elemento)
{
    if (elemento.diseno == Diseno::aislada)
        EditarDeAislada(sesion, elemento.clase);
    else
        EditarDeRed(sesion.Proyecto(), elemento.clase);
    sesion.Cambiado();
}

std::wstring_view ClaseDeDialogo(const CProyectoEstudio& proyecto, const ElementoDeDiseno& elemento)
{
    switch (elemento.clase) {
        case Clase::paneles:
            return L"CDlgDatosPanelFotovoltaico";
        case Clase::regulador:
            return proyecto.aislada.bSalidaCA == 0 ? L"" : L"CDlgDatosReguladorAuto";
        case Clase::acumuladores:
            return L"CDlgDatosAcumulador";
        case Clase::inversor:
            return L"CDlgDatosInversor";
        case Clase::caja:
            return L"CDlgDatosCajaConexion";
        case Clase::red:
            return L"CDlgDatosRedElectrica";
        case Clase::cargas:
        case Clase::puntos:
            break;
    }
    return {};
}

const DatosElemento* DatosDe(const Elementos& elementos, const ElementoDeDiseno& elemento)
{
    return Hallar(elementos, elemento);
}

DatosElemento* DatosDe(Elementos& elementos, const ElementoDeDiseno& elemento)
{
    return Hallar(elementos, elemento);
}

void RotularElemento(Sesion& sesion, const ElementoDeDiseno& elemento)
{
    const std::wstring_view clase = ClaseDeDialogo(sesion.Proyecto(), elemento);
    DatosElemento* const datos = DatosDe(sesion.Proyecto().elementos, elemento);
    if (clase.empty() || datos == nullptr)
        return;
    elements::EditarRotulos(clase, datos->iRotulos);
    sesion.Cambiado();
}

}  // namespace efv::estudio

#include "assistants/calculo_red.h"

#include "assistants/aritmetica.h"
#include "assistants/busqueda_ramales.h"
#include "platform/numero/tolerancia.h"
#include "solar/angulos.h"
#include "solar/filas.h"

namespace efv::assistants {

namespace {

using V = ValoresRed;

void ProponerPosicionEInversores(V& v, double dPotencia, bool bForzar)
{
    v.dInclinacionP = std::abs(v.dLatitud) - 10;
    v.dOrientacionP = v.csHemisferio == L"N" ? 0.0 : 180.0;
    v.iInversoresP = Techo(dPotencia / v.inversor.dPCANom);
    if (bForzar) {
        v.dInclinacion = v.dInclinacionP;
        v.dOrientacion = v.dOrientacionP;
        v.iInversores = v.iInversoresP;
    }
}

// The field nearest to one inverter's share; without one inside the limits, branches for the middle of the
// voltage window.
Ramales ProponerRamales(const V& v, double dParte)
{
    const InversorLeido& inversor = v.inversor;
    const DatosPanel& panel = v.panel;
    const int iSerieMaxima = SueloDesdeUno(ElMenor(dParte / panel.dPmpm, inversor.dVMPPMax / panel.dVmpm));
    const auto mejor = BuscarRamales({.dPotencia = dParte,
                                      .dPmpm = panel.dPmpm,
                                      .dVmpm = panel.dVmpm,
                                      .dImpm = panel.dImpm,
                                      .dVoc = panel.dVoc,
                                      .dVMPPMin = inversor.dVMPPMin,
                                      .dVMPPMax = inversor.dVMPPMax,
                                      .dVCCMax = inversor.dVCCMax,
                                      .dIMaxEntrada = inversor.dIMaxEntrada,
                                      .iSerieMaxima = iSerieMaxima});
    if (mejor)
        return *mejor;
    const int iSerie = SueloDesdeUno(((inversor.dVMPPMin + inversor.dVMPPMax) * 0.5) / panel.dVoc);
    return {iSerie, SueloDesdeUno(dParte / (iSerie * panel.dPmpm))};
}

// The results that follow from one set of counts: those in force, or the proposal's.
struct Juego {
    int V::*iInversores;
    int V::*iSerie;
    int V::*iParalelo;
    double V::*dInclinacion;
    int V::*iPanelesInversor;
    double V::*dPotenciaCampo;
    double V::*dTensionRamal;
    int V::*iTotalPaneles;
    double V::*dSuperficie;
    double V::*dProyectada;
    double V::*dPotenciaTotal;
    double V::*dPotenciaInversores;
};

constexpr Juego kEnVigor = {&V::iInversores,           &V::iPanelesSerie,    &V::iPanelesParalelo,
                            &V::dInclinacion,          &V::iPanelesInversor, &V::dPotenciaInversorCampo,
                            &V::dTensionRamal,         &V::iTotalPaneles,    &V::dSuperficieTotal,
                            &V::dSuperficieProyectada, &V::dPotenciaTotal,   &V::dPotenciaInversores};
constexpr Juego kPropuesta = {&V::iInversoresP,           &V::iPanelesSerieP,    &V::iPanelesParaleloP,
                              &V::dInclinacionP,          &V::iPanelesInversorP, &V::dPotenciaInversorCampoP,
                              &V::dTensionRamalP,         &V::iTotalPanelesP,    &V::dSuperficieTotalP,
                              &V::dSuperficieProyectadaP, &V::dPotenciaTotalP,   &V::dPotenciaInversoresP};

void CalcularTotales(V& v, const Juego& j)
{
    v.*j.iPanelesInversor = Producto(v.*j.iSerie, v.*j.iParalelo);
    v.*j.dPotenciaCampo = v.*j.iPanelesInversor * v.panel.dPmpm;
    v.*j.dTensionRamal = v.*j.iSerie * v.panel.dVmpm;
    v.*j.iTotalPaneles = Producto(v.*j.iPanelesInversor, v.*j.iInversores);
    v.*j.dSuperficie = v.*j.iTotalPaneles * v.panel.dAreaPanel;
    v.*j.dProyectada = std::cos(solar::ARadianes(v.*j.dInclinacion)) * v.*j.dSuperficie;
    v.*j.dPotenciaTotal = v.*j.iTotalPaneles * v.panel.dPmpm / 1000;
    v.*j.dPotenciaInversores = v.*j.iInversores * v.inversor.dPCANom / 1000;
}

bool TieneLargo(const V& v)
{
    return numero::MayorIgual(v.panel.dLargoPanel, 1.0);
}

// mm, on level ground.
double DistanciaFilas(const V& v, double dInclinacion)
{
    const double dLargo = v.panel.dLargoPanel;
    const double k = solar::CoeficienteSombra(std::abs(v.dLatitud));
    const double b = solar::ARadianes(dInclinacion);
    return std::sin(b) * dLargo * k / solar::DivisorPendiente(0.0, k) + std::cos(b) * dLargo;
}

}  // namespace

InversorLeido LeerInversor(const CBaseInversorModelo& m)
{
    return {.dPCANom = m.dPCANom,
            .dPCAMax = m.dPCAMax,
            .dVMPPMax = m.dVMPPMax,
            .dVMPPMin = m.dVMPPMin,
            .dVCCMax = m.dVCCMax,
            .dIMaxEntrada = CorrienteLimite(m.dICCMax, m.csICCMaxMPPT),
            .iNumMPPT = m.iNumMPPT,
            .iNumEntradas = m.iNumEntradas,
            .iUsoPrincipal = m.iUsoPrincipal,
            .iTipoSalida = m.iTipoSalida};
}

void RecalcularRed(ValoresRed& v, bool bForzar)
{
    const double dPotencia = v.dPotenciaObjetivo * 1000;
    ProponerPosicionEInversores(v, dPotencia, bForzar);
    // The proposal's count of inverters shares the power out, whatever count is in force.
    const Ramales propuestos = ProponerRamales(v, dPotencia / v.iInversoresP);
    v.iPanelesSerieP = propuestos.iSerie;
    v.iPanelesParaleloP = propuestos.iParalelo;
    if (bForzar) {
        v.iPanelesSerie = v.iPanelesSerieP;
        v.iPanelesParalelo = v.iPanelesParaleloP;
    }
    CalcularTotales(v, kEnVigor);
    CalcularTotales(v, kPropuesta);
    if (TieneLargo(v))
        v.dDistanciaFilasP = DistanciaFilas(v, v.dInclinacionP);
    if (bForzar)
        v.dDistanciaFilas = v.dDistanciaFilasP;
}

bool EspaciarFilas(ValoresRed& v)
{
    if (!TieneLargo(v))
        return false;
    v.dDistanciaFilas = DistanciaFilas(v, v.dInclinacion);
    return true;
}

}  // namespace efv::assistants

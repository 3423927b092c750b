// Exported functions of the solar resource. The calendar and the sun position touch no resource and
// have no scope.
#include <algorithm>
#include <optional>
#include <tuple>

#include <quorvel/solar.h>

#include "frame/recursos.h"
#include "module/singletons.h"
#include "solar/calendario.h"
#include "solar/energia.h"
#include "solar/filas.h"
#include "solar/posicion_sol.h"

using efv::frame::AmbitoRecursos;
using efv::module::BaseFactorK;

// ---------------------------------------------------------------------------------------------------
// Calendar
// ---------------------------------------------------------------------------------------------------

int phGetHora(int iHoraAno)
{
    return efv::solar::HoraDelDia(iHoraAno);
}
int phGetDia(int iHoraAno)
{
    return efv::solar::DiaDelMes(iHoraAno);
}
int phGetMes(int iHoraAno)
{
    return efv::solar::MesDeHora(iHoraAno);
}
int phGetAnoActual()
{
    return efv::solar::AnoActual();
}
int phIsAnoBisiesto(int iAno)
{
    return efv::solar::EsBisiesto(iAno) ? 1 : 0;
}
int phGetNumDiasMes(int iAno, int iMes)
{
    return efv::solar::DiasMes(iAno, iMes);
}
int phGetTipoDiaMes(short nAno, short nMes, short nDia)
{
    return efv::solar::TipoDia(nAno, nMes, nDia);
}
int phGetTipoDiaMes2(short nAno, int iDiaAno)
{
    return efv::solar::TipoDiaDelAno(nAno, iDiaAno);
}
int phGetTipoDiaSemana(int iMes, int iDia)
{
    return efv::solar::TipoDiaReferencia(iMes, iDia);
}

void phGetNombreDiaMes(CString& csDia, CString& csMes, int iAno, int iMes, int iDia)
{
    csDia = efv::solar::NombreDia(efv::solar::TipoDia(iAno, iMes, iDia));
    csMes = efv::solar::NombreMes(iMes);
}

void phGetNombreDiaSemana(CString& csNombre, int iTipoDia)
{
    csNombre = efv::solar::NombreDia(iTipoDia);
}
void phGetNombreMes(int iMes, CString& csNombre)
{
    csNombre = efv::solar::NombreMes(iMes);
}
void phGetNombreMesLT(int iMes, CString& csNombre)
{
    csNombre = efv::solar::NombreMesCorto(iMes);
}

// ---------------------------------------------------------------------------------------------------
// Sun position
// ---------------------------------------------------------------------------------------------------

double phGetDEC(double dDia)
{
    return efv::solar::Declinacion(dDia);
}
double phGetHOR(double dHora)
{
    return efv::solar::AnguloHorario(dHora);
}

double phGetALT(double dLatitud, double dDeclinacion, double dAnguloHorario)
{
    return efv::solar::Altura(dLatitud, dDeclinacion, dAnguloHorario);
}

double phGetALT2(double dLatitud, int iMes, int iDia, int iHora)
{
    return efv::solar::AlturaEnFecha(dLatitud, iMes, iDia, iHora);
}

double phGetAZI(double dLatitud, double dDeclinacion, double dAltura, double dAnguloHorario)
{
    return efv::solar::Azimut(dLatitud, dDeclinacion, dAltura, dAnguloHorario);
}

// ---------------------------------------------------------------------------------------------------
// Radiation and energy
// ---------------------------------------------------------------------------------------------------

namespace {

// Writes the result of a query that succeeded.
int Entregar(double& dResultado, std::optional<double> valor)
{
    if (!valor)
        return 0;
    dResultado = *valor;
    return 1;
}

// The kJ form of a query in kWh: its value is multiplied in place.
int EnKJ(double& dResultado, int iExito)
{
    if (iExito != 0)
        dResultado *= 3600;
    return iExito;
}

}  // namespace

int phGetRI_kWh_m2_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                       double dRadHorizontal, double dInclinacion, double /*dOrientacion*/, double dPR,
                       double dFactorAdicional)
{
    const AmbitoRecursos ambito;
    return Entregar(dResultado, efv::solar::RadiacionDia(
                                    {iMetodo, dLatitud, iHemisferio, dInclinacion, 1.0, dPR, dFactorAdicional},
                                    iMes, dRadHorizontal, BaseFactorK()));
}

int phGetRI_kJ_m2_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                      double dRadHorizontal, double dInclinacion, double dOrientacion, double dPR,
                      double dFactorAdicional)
{
    return phGetRI_kWh_m2_dia(dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, dInclinacion,
                              dOrientacion, dPR, dFactorAdicional);
}

int phGetEIR_kWh_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                     double dRadHorizontal, double dInclinacion, double /*dOrientacion*/, double dPotenciaPico,
                     double dPR, double dFactorAdicional)
{
    const AmbitoRecursos ambito;
    return Entregar(dResultado, efv::solar::EnergiaDia({iMetodo, dLatitud, iHemisferio, dInclinacion,
                                                        dPotenciaPico, dPR, dFactorAdicional},
                                                       iMes, dRadHorizontal, BaseFactorK()));
}

int phGetEIR_kWh_mes(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                     double dRadHorizontal, double dInclinacion, double /*dOrientacion*/, double dPotenciaPico,
                     double dPR, double dFactorAdicional)
{
    const AmbitoRecursos ambito;
    return Entregar(dResultado, efv::solar::EnergiaMes({iMetodo, dLatitud, iHemisferio, dInclinacion,
                                                        dPotenciaPico, dPR, dFactorAdicional},
                                                       iMes, dRadHorizontal, BaseFactorK()));
}

int phGetEIR_kWh_ano(double& dResultado, int iMetodo, double dLatitud, int iHemisferio,
                     const double (&adRadHorizontal)[12], double dInclinacion, double /*dOrientacion*/,
                     double dPotenciaPico, double dPR, double dFactorAdicional)
{
    const AmbitoRecursos ambito;
    const auto ano = efv::solar::EnergiaAno(
        {iMetodo, dLatitud, iHemisferio, dInclinacion, dPotenciaPico, dPR, dFactorAdicional}, adRadHorizontal,
        BaseFactorK());
    // The only way to fail is at the first month, where the sum is still 0: it is what stays.
    if (!ano)
        dResultado = 0.0;
    return Entregar(dResultado, ano);
}

int phGetEIR_kJ_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                    double dRadHorizontal, double dInclinacion, double dOrientacion, double dPotenciaPico,
                    double dPR, double dFactorAdicional)
{
    return EnKJ(dResultado, phGetEIR_kWh_dia(dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal,
                                             dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional));
}

int phGetEIR_kJ_mes(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                    double dRadHorizontal, double dInclinacion, double dOrientacion, double dPotenciaPico,
                    double dPR, double dFactorAdicional)
{
    return EnKJ(dResultado, phGetEIR_kWh_mes(dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal,
                                             dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional));
}

int phGetEIR_kJ_ano(double& dResultado, int iMetodo, double dLatitud, int iHemisferio,
                    const double (&adRadHorizontal)[12], double dInclinacion, double dOrientacion,
                    double dPotenciaPico, double dPR, double dFactorAdicional)
{
    return EnKJ(dResultado, phGetEIR_kWh_ano(dResultado, iMetodo, dLatitud, iHemisferio, adRadHorizontal,
                                             dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional));
}

// ---------------------------------------------------------------------------------------------------
// Table of factors K
// ---------------------------------------------------------------------------------------------------

int phCargarBaseFactorK(CString csPath)
{
    const AmbitoRecursos ambito;
    return BaseFactorK().Cargar(csPath) != 0 ? BaseFactorK().Comprobar() : 0;
}

CBaseFactorK& phGetBaseFactorK()
{
    return BaseFactorK();
}

int phGetDataFactorK(double dLatitud, int iHemisferio, double dAlpha, double (&adK)[12])
{
    const AmbitoRecursos ambito;
    const auto k = efv::solar::FactoresK(BaseFactorK(), dLatitud, iHemisferio, dAlpha);
    if (!k)
        return 0;
    std::ranges::copy(*k, adK);
    return 1;
}

// ---------------------------------------------------------------------------------------------------
// Row spacing
// ---------------------------------------------------------------------------------------------------

void phGetDistanciaMinimaGEN(int iNumPaneles, double dLongitudPanel, double dInclinacion, double dAlturaSolar,
                             double& dDistanciaFilas, double& dDistanciaLibre, double& dAlturaPanel,
                             double& dAlturaFila)
{
    const auto s =
        efv::solar::SeparacionPorAlturaSolar(iNumPaneles, dLongitudPanel, dInclinacion, dAlturaSolar);
    std::tie(dDistanciaFilas, dDistanciaLibre, dAlturaPanel, dAlturaFila) =
        std::tie(s.dDistanciaFilas, s.dDistanciaLibre, s.dAlturaPanel, s.dAlturaFila);
}

void phGetDistanciaMinimaPCT(int iNumPaneles, double dLongitudPanel, double dInclinacion, double dPendiente,
                             double dLatitud, double& dDistanciaFilas, double& dDistanciaLibre,
                             double& dAlturaPanel, double& dAlturaFila)
{
    const auto s = efv::solar::SeparacionPorCondicionesTecnicas(iNumPaneles, dLongitudPanel, dInclinacion,
                                                                dPendiente, dLatitud);
    std::tie(dDistanciaFilas, dDistanciaLibre, dAlturaPanel, dAlturaFila) =
        std::tie(s.dDistanciaFilas, s.dDistanciaLibre, s.dAlturaPanel, s.dAlturaFila);
}

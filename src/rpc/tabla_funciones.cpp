#include "rpc/tabla_funciones.h"

#include <array>
#include <unordered_map>

#include <QuorvelEFV.h>

#include "rpc/errores.h"

namespace efv::rpc {

namespace {

// Studies that take their record by its root: here by the class that they work on.
int ViabilidadRed(int iMetodo, double dLatitud, int iHemisferio, const double (&adRadHorizontal)[12],
                  double dInclinacion, double dOrientacion, double dFactorAdicional,
                  CSFVCalculoEconomico& estudio)
{
    return phCalcularViabilidadEconomicaRed(iMetodo, dLatitud, iHemisferio, adRadHorizontal, dInclinacion,
                                            dOrientacion, dFactorAdicional, &estudio);
}
int ViabilidadRed2(const double (&adHorizontal)[12], const double (&adInclinada)[12],
                   const double (&adSinUso)[12], CSFVCalculoEconomico& estudio)
{
    return phCalcularViabilidadEconomicaRed2(adHorizontal, adInclinada, adSinUso, &estudio);
}
int ViabilidadRed3(const double (&adHorizontal)[12], const double (&adInclinada)[12],
                   const double (&adEnergia)[12], CSFVCalculoEconomico& estudio)
{
    return phCalcularViabilidadEconomicaRed3(adHorizontal, adInclinada, adEnergia, &estudio);
}

int AbrirGeneradorTarifa(const CString& /*csDialogo*/)
{
    return economics::AbrirGeneradorTarifa();
}

int AbrirRotulacion(const CString& /*csDialogo*/, const CString& csClase, int& iRotulos)
{
    if (!elements::PropiedadesDe(csClase))
        throw ErrorValor("csClase: se esperaba la clase del diálogo de un elemento");
    return elements::EditarRotulos(csClase, iRotulos);
}

// Dialogs that no function reaches, by their class, which is their first argument.
constexpr auto kDialogos = std::to_array<Funcion>({
    Funcion::De<&AbrirGeneradorTarifa>("CDlgGeneradorTarifa", "csDialogo"),
    Funcion::De<&AbrirRotulacion>("CDlgRotulacion", "csDialogo, csClase, iRotulos"),
});

constexpr auto kFunciones = std::to_array<Funcion>({
    // Module and host
    Funcion::De<&phSetQuorvelBIMCtrl>("phSetQuorvelBIMCtrl", "ctrl"),
    Funcion::De<&phGetFirstPositionTypeAlimentacionInSmartBlockRef>(
        "phGetFirstPositionTypeAlimentacionInSmartBlockRef", "iBloque"),
    Funcion::De<&phGetFirstPositionTypeDistribucionInSmartBlockRef>(
        "phGetFirstPositionTypeDistribucionInSmartBlockRef", "iBloque"),
    Funcion::De<&phSetPathApp>("phSetPathApp", "csPath"),
    Funcion::De<&phGetPathApp>("phGetPathApp", ""),
    Funcion::De<&phSetPathModHE5>("phSetPathModHE5", "csPath"),
    Funcion::De<&phGetPathModHE5>("phGetPathModHE5", ""),
    Funcion::De<&phSetPathHE5BD>("phSetPathHE5BD", "csPath"),
    Funcion::De<&phGetPathHE5BD>("phGetPathHE5BD", ""),
    Funcion::De<&phShowVersion>("phShowVersion", ""),

    // Calendar
    Funcion::De<&phGetHora>("phGetHora", "iHoraAno"),
    Funcion::De<&phGetDia>("phGetDia", "iHoraAno"),
    Funcion::De<&phGetMes>("phGetMes", "iHoraAno"),
    Funcion::De<&phGetAnoActual>("phGetAnoActual", ""),
    Funcion::De<&phIsAnoBisiesto>("phIsAnoBisiesto", "iAno"),
    Funcion::De<&phGetNumDiasMes>("phGetNumDiasMes", "iAno, iMes"),
    Funcion::De<&phGetTipoDiaMes>("phGetTipoDiaMes", "nAno, nMes, nDia"),
    Funcion::De<&phGetTipoDiaMes2>("phGetTipoDiaMes2", "nAno, iDiaAno"),
    Funcion::De<&phGetTipoDiaSemana>("phGetTipoDiaSemana", "iMes, iDia"),
    Funcion::De<&phGetNombreDiaMes>("phGetNombreDiaMes", "csDia, csMes, iAno, iMes, iDia"),
    Funcion::De<&phGetNombreDiaSemana>("phGetNombreDiaSemana", "csNombre, iTipoDia"),
    Funcion::De<&phGetNombreMes>("phGetNombreMes", "iMes, csNombre"),
    Funcion::De<&phGetNombreMesLT>("phGetNombreMesLT", "iMes, csNombre"),

    // Sun position
    Funcion::De<&phGetDEC>("phGetDEC", "dDia"),
    Funcion::De<&phGetHOR>("phGetHOR", "dHora"),
    Funcion::De<&phGetALT>("phGetALT", "dLatitud, dDeclinacion, dAnguloHorario"),
    Funcion::De<&phGetALT2>("phGetALT2", "dLatitud, iMes, iDia, iHora"),
    Funcion::De<&phGetAZI>("phGetAZI", "dLatitud, dDeclinacion, dAltura, dAnguloHorario"),

    // Radiation and energy
    Funcion::De<&phGetRI_kWh_m2_dia>("phGetRI_kWh_m2_dia",
                                     "dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, "
                                     "dInclinacion, dOrientacion, dPR, dFactorAdicional"),
    Funcion::De<&phGetRI_kJ_m2_dia>("phGetRI_kJ_m2_dia",
                                    "dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, "
                                    "dInclinacion, dOrientacion, dPR, dFactorAdicional"),
    Funcion::De<&phGetEIR_kWh_dia>("phGetEIR_kWh_dia",
                                   "dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, "
                                   "dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional"),
    Funcion::De<&phGetEIR_kWh_mes>("phGetEIR_kWh_mes",
                                   "dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, "
                                   "dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional"),
    Funcion::De<&phGetEIR_kWh_ano>("phGetEIR_kWh_ano",
                                   "dResultado, iMetodo, dLatitud, iHemisferio, adRadHorizontal, "
                                   "dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional"),
    Funcion::De<&phGetEIR_kJ_dia>("phGetEIR_kJ_dia",
                                  "dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, "
                                  "dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional"),
    Funcion::De<&phGetEIR_kJ_mes>("phGetEIR_kJ_mes",
                                  "dResultado, iMetodo, iMes, dLatitud, iHemisferio, dRadHorizontal, "
                                  "dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional"),
    Funcion::De<&phGetEIR_kJ_ano>("phGetEIR_kJ_ano",
                                  "dResultado, iMetodo, dLatitud, iHemisferio, adRadHorizontal, "
                                  "dInclinacion, dOrientacion, dPotenciaPico, dPR, dFactorAdicional"),

    // Table of factors K
    Funcion::De<&phCargarBaseFactorK>("phCargarBaseFactorK", "csPath"),
    Funcion::De<&phGetBaseFactorK>("phGetBaseFactorK", ""),
    Funcion::De<&phGetDataFactorK>("phGetDataFactorK", "dLatitud, iHemisferio, dAlpha, adK"),

    // Row spacing
    Funcion::De<&phGetDistanciaMinimaGEN>("phGetDistanciaMinimaGEN",
                                          "iNumPaneles, dLongitudPanel, dInclinacion, dAlturaSolar, "
                                          "dDistanciaFilas, dDistanciaLibre, dAlturaPanel, dAlturaFila"),
    Funcion::De<&phGetDistanciaMinimaPCT>("phGetDistanciaMinimaPCT",
                                          "iNumPaneles, dLongitudPanel, dInclinacion, dPendiente, dLatitud, "
                                          "dDistanciaFilas, dDistanciaLibre, dAlturaPanel, dAlturaFila"),

    // Tilt and orientation, minimum power
    Funcion::De<&phCalcularOrientacionInclinacionOptima>(
        "phCalcularOrientacionInclinacionOptima",
        "iMes, dDatoSitio, dLatitud, dHumedad, aTemperaturas, dInclinacion, dOrientacion"),
    Funcion::De<&phCalcularPerdidasOrientacionInclinacion>(
        "phCalcularPerdidasOrientacionInclinacion",
        "iMes, dDatoSitio, dLatitud, dHumedad, aTemperaturas, dInclinacion, dOrientacion, dRadOptima"),
    Funcion::De<&phCalcFactorK>(
        "phCalcFactorK",
        "iMes, iDia, dInclinacion, dLatitud, dOrientacion, dDatoSitio, dHumedad, dTemperatura"),
    Funcion::De<&phGetPotMinInstalarCTE>(
        "phGetPotMinInstalarCTE",
        "iZona, iTipoUso1, dSuperficie1, iTipoUso2, dSuperficie2, bFormulaCoeficientes"),
    Funcion::De<&phDownloadFilePVGIS>("phDownloadFilePVGIS",
                                      "csArchivo, csNombre, dLatitud, dLongitud, dValorCabecera, csError"),
    Funcion::De<&phDownloadMonthRadPVGIS>("phDownloadMonthRadPVGIS",
                                          "dLatitud, dLongitud, adRadiacion, csError, bAvisarSinDatos"),
    Funcion::De<&phShowMapaZonaHE5>("phShowMapaZonaHE5", ""),
    Funcion::De<&phGetCoefA>("phGetCoefA", "iTipoUso"),
    Funcion::De<&phGetCoefB>("phGetCoefB", "iTipoUso"),
    Funcion::De<&phGetCoefC>("phGetCoefC", "iZona"),
    Funcion::De<&phGetCsTipoUso>("phGetCsTipoUso", "iTipoUso, csNombre"),
    Funcion::De<&phGetCsDisposicion>("phGetCsDisposicion", "iDisposicion, csNombre"),

    // Economics
    Funcion::De<&ViabilidadRed>("phCalcularViabilidadEconomicaRed",
                                "iMetodo, dLatitud, iHemisferio, adRadHorizontal, dInclinacion, dOrientacion, "
                                "dFactorAdicional, estudio"),
    Funcion::De<&ViabilidadRed2>("phCalcularViabilidadEconomicaRed2",
                                 "adHorizontal, adInclinada, adSinUso, estudio"),
    Funcion::De<&ViabilidadRed3>("phCalcularViabilidadEconomicaRed3",
                                 "adHorizontal, adInclinada, adEnergia, estudio"),
    Funcion::De<&phViabilidadEconomicaRed>("phViabilidadEconomicaRed", "estudio, adMesA, adMesB, dDato"),
    Funcion::De<&phViabilidadEconomicaAutoconsumo, BloquesPorRegistro{0, 10}, BloquesPorRegistro{1, 10},
                BloquesPorRegistro{2, 10, true}, BloquesPorRegistro{3, 10, true},
                BloquesPorRegistro{4, 10, true}, BloquesPorRegistro{5, 10, true},
                BloquesPorRegistro{6, 10, true}>(
        "phViabilidadEconomicaAutoconsumo",
        "adProduccion, adConsumo, adCargaFV, adAutoconsumoBat, adVertidoBat, adCargaRed, adDescarga, "
        "dCosteDegradacion, adPrecioConsumo, adPrecioVertido, aEstudios"),
    Funcion::De<&phPrecioEconomicoEnergetico>("phPrecioEconomicoEnergetico",
                                              "adPrecioConsumo, adPrecioVertido"),
    Funcion::De<&phShowDlgHorasDia>("phShowDlgHorasDia", "aiHoras"),

    // Module curves
    Funcion::De<&phCalcValoresTipicos>(
        "phCalcValoresTipicos",
        "dIsc, dVoc, dImpm, dVmpm, dPmpm, dG, dT, dCTVoc, dCTIsc, dCTPmpm, pdIsc, "
        "pdVoc, pdImp, pdVmp, pdPmp"),
    Funcion::De<&phCalcCurve>("phCalcCurve", "aI, aV, aP, dIsc, dVoc, dImp, dVmp, dT, dNs, dNp, dN, iN"),

    // Cables
    Funcion::De<&phGetSeccionCable>("phGetSeccionCable",
                                    "iMetodo, iMaterial, iAislante, bTrifasico, dTemperatura, dCorriente"),
    Funcion::De<&phGetSeccProx>("phGetSeccProx", "dSeccion"),
    Funcion::De<&phCalcSeccCorriente>("phCalcSeccCorriente", "dCorriente"),
    Funcion::De<&phGetSection1>("phGetSection1", "dLongitud, dPotencia, dCaida, dTension, dConductividad"),
    Funcion::De<&phGetSection2>("phGetSection2",
                                "dLongitud, dCorriente, dCosFi, dTensionOrigen, dTensionFinal, dConductividad"),
    Funcion::De<&phGetSection3>("phGetSection3",
                                "dLongitud, dCorriente, dCosFi, dTension, dCaida, dConductividad"),
    Funcion::De<&phGetSection4>("phGetSection4",
                                "dLongitud, dCorriente, dCosFi, dSeccionOCaida, dConductividad"),
    Funcion::De<&phGetCaidaTension>("phGetCaidaTension",
                                    "dLongitud, dCorriente, dCosFi, dSeccion, dConductividad"),
    Funcion::De<&phGetSection1T>("phGetSection1T", "dLongitud, dPotencia, dCaida, dTension, dConductividad"),
    Funcion::De<&phGetSection2T>(
        "phGetSection2T", "dLongitud, dCorriente, dCosFi, dTensionOrigen, dTensionFinal, dConductividad"),
    Funcion::De<&phGetSection3T>("phGetSection3T",
                                 "dLongitud, dCorriente, dCosFi, dTension, dCaida, dConductividad"),
    Funcion::De<&phGetSection4T>("phGetSection4T",
                                 "dLongitud, dCorriente, dCosFi, dSeccionOCaida, dConductividad"),
    Funcion::De<&phGetCaidaTensionT>("phGetCaidaTensionT",
                                     "dLongitud, dCorriente, dCosFi, dSeccion, dConductividad"),
    Funcion::De<&phGetConductividad>("phGetConductividad", "dTemperatura, dResistividad, dCoeficiente"),
    Funcion::De<&phGetConductividadCobre>("phGetConductividadCobre", "dTemperatura"),
    Funcion::De<&phGetConductividadAluminio>("phGetConductividadAluminio", "dTemperatura"),
    Funcion::De<&phCalcKa_>("phCalcKa_", "dTemperatura, dKa"),
    Funcion::De<&phCalcR>("phCalcR", "dKaAjustado, dKb, dKc, dKv, dProfundidad, dDias"),
    Funcion::De<&phGetCsTipoTramo>("phGetCsTipoTramo", "iTipo, csNombre"),
    Funcion::De<&phGetCsTipoInstalacion>("phGetCsTipoInstalacion", "iMetodo, csNombre"),
    Funcion::De<&phGetCsTipoInstalacionLT>("phGetCsTipoInstalacionLT", "iMetodo, csNombre"),
    Funcion::De<&phGetCsTipoAislante>("phGetCsTipoAislante", "iAislante, csNombre"),
    Funcion::De<&phGetCsTipoAislanteLT>("phGetCsTipoAislanteLT", "iAislante, csNombre"),
    Funcion::De<&phGetCsTipoMatCable>("phGetCsTipoMatCable", "iMaterial, csNombre"),
    Funcion::De<&phGetCsTipoMatCableLT>("phGetCsTipoMatCableLT", "iMaterial, csNombre"),
    Funcion::De<&phShowPropertyConductor>(
        "phShowPropertyConductor",
        "iModo, iIdGrafico, dLongitud, dDesnivel, csReferencia, iTipoTramo, bForzarLongitud, dLongitudForzada, "
        "dLongitudAdicional, bNoContabilizar, bForzarSeccion, dSeccionForzada, dSeccionMaxima, "
        "bConductoresFase, iConductoresFase, dFactorCorrector, iTipoInstalacion, iTipoAislante, iTipoCable, "
        "bTipoCable, bExcluir, iAux"),
    Funcion::De<&phShowDatosConductor>("phShowDatosConductor", "adResistividad, adCoeficiente"),
    Funcion::De<&phShowDatosMargenSeguridadCableado>("phShowDatosMargenSeguridadCableado",
                                                     "dPaneles, dAcumuladores, dReceptores"),

    // Inputs of an inverter
    Funcion::De<&phAsignArrayInverterInputs>("phAsignArrayInverterInputs",
                                             "iNumeroInversor, iNumMPPT, iNumEntradas, aEntradas, bForzar"),
    Funcion::De<&phCopyArrayInverterInputs>("phCopyArrayInverterInputs", "aOrigen, aDestino"),
    Funcion::De<&phIsChangedArrayInverterInputs>("phIsChangedArrayInverterInputs", "aA, aB"),

    // Design assistants
    Funcion::De<&phSeleccionAsistenteSFV>("phSeleccionAsistenteSFV", ""),
    Funcion::De<&phAsistenteSFVAislada>("phAsistenteSFVAislada",
                                        "csLugar, dLatitud, iHemisferio, adRadiacion, asistente"),
    Funcion::De<&phAsistenteSFVRed>("phAsistenteSFVRed", "csLugar, dLatitud, iHemisferio, asistente"),
    Funcion::De<&phDatosPerdidasAislada>("phDatosPerdidasAislada",
                                         "dPerdidaCableado, dPerdidaAcumulador, dPerdidaAcoplamiento"),

    // Catalogue of PV modules
    Funcion::De<&phCargarBasePanelesFotovoltaicos>("phCargarBasePanelesFotovoltaicos", "csPath"),
    Funcion::De<&phEditarBasePanelesFotovoltaicos>("phEditarBasePanelesFotovoltaicos", "iModo"),
    Funcion::De<&phSeleccionPanelFoto>("phSeleccionPanelFoto", "csId"),
    Funcion::De<&phGetBasePanelFoto>("phGetBasePanelFoto", ""),
    Funcion::De<&phGetFabricantePanelFoto>("phGetFabricantePanelFoto", "csId, csFamilia"),
    Funcion::De<&phCadenaIdentificacionModeloPanelFoto>("phCadenaIdentificacionModeloPanelFoto",
                                                        "csModelo, csId"),
    Funcion::De<&phGetDataPanelFoto>(
        "phGetDataPanelFoto",
        "csId, csFamilia, dVsmax, dPmpm, dVmpm, dImpm, dVoc, dIsc, dCTVoc, dCTIsc, "
        "dCTPmpm, dCEf, iNp, iNs, dAcel, iTipoCelula, dH, dB, dA, dP, csCodPrecio"),
    Funcion::De<&phGetDimPanelFoto>("phGetDimPanelFoto", "csId, csFamilia, dH, dB, dA, dP"),
    Funcion::De<&phGetCsTipoCelula>("phGetCsTipoCelula", "iTipoCelula, csNombre"),
    Funcion::De<&phTranslateValor>("phTranslateValor", "iModo, dValor, dRef"),

    // Catalogue of batteries
    Funcion::De<&phCargarBaseAcumuladores>("phCargarBaseAcumuladores", "csPath"),
    Funcion::De<&phEditarBaseAcumuladores>("phEditarBaseAcumuladores", "iModo"),
    Funcion::De<&phSeleccionAcumulador>("phSeleccionAcumulador", "csId"),
    Funcion::De<&phGetBaseAcumuladores>("phGetBaseAcumuladores", ""),
    Funcion::De<&phGetFabricanteAcumulador>("phGetFabricanteAcumulador", "csId, csFamilia"),
    Funcion::De<&phCadenaIdentificacionModeloAcumulador>("phCadenaIdentificacionModeloAcumulador",
                                                         "csModelo, csId"),
    Funcion::De<&phGetDataAcumulador>(
        "phGetDataAcumulador",
        "csId, csFamilia, iTipo, dCapC1, dVccC1, dCapC5, dVccC5, dCapC10, dVccC10, dCapC20, dVccC20, dCapC100, "
        "dVccC100, dCapC120, dVccC120, dImax, dVnom, iVidaUtil, dH, dW, dL, dPeso, csCodPrecio"),
    Funcion::De<&phGetDimAcumulador>("phGetDimAcumulador", "csId, csFamilia, dH, dW, dL, dPeso"),

    // Catalogue of inverters
    Funcion::De<&phCargarBaseInversores>("phCargarBaseInversores", "csPath"),
    Funcion::De<&phEditarBaseInversores>("phEditarBaseInversores", "iModo"),
    Funcion::De<&phSeleccionInversor>("phSeleccionInversor", "csId"),
    Funcion::De<&phGetBaseInversores>("phGetBaseInversores", ""),
    Funcion::De<&phGetFabricanteInversor>("phGetFabricanteInversor", "csId, csFamilia"),
    Funcion::De<&phCadenaIdentificacionModeloInversor>("phCadenaIdentificacionModeloInversor",
                                                       "csModelo, csId"),
    Funcion::De<&phGetDataInversor>(
        "phGetDataInversor",
        "csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, dICCMax, "
        "dICCMin, dIScMax, iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax, "
        "dAncho, dLargo, dAlto, dPeso, csCodPrecio"),
    Funcion::De<&phGetDataInversor2>(
        "phGetDataInversor2",
        "csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, aICCMax, "
        "aICCMin, dIScMax, iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax, "
        "dAncho, dLargo, dAlto, dPeso, csCodPrecio"),
    Funcion::De<&phGetDataInversor3>(
        "phGetDataInversor3",
        "csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, aICCMax, "
        "aICCMin, dICCMax, dICCMin, dIScMax, iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, "
        "dICAMin, dFP, dRendMax, dAncho, dLargo, dAlto, dPeso, csCodPrecio"),
    Funcion::De<&phGetDataInversorCorrientesMPPT>("phGetDataInversorCorrientesMPPT",
                                                  "csId, csICCMaxMPPT, csICCMinMPPT"),
    Funcion::De<&phGetDataInversorDim>("phGetDataInversorDim",
                                       "csId, csFamilia, iNumMPPT, iNumEntradas, dAncho, dLargo, dAlto, dPeso"),

    // Catalogue of micro-inverters
    Funcion::De<&phCargarBaseMicroInversores>("phCargarBaseMicroInversores", "csPath"),
    Funcion::De<&phEditarBaseMicroInversores>("phEditarBaseMicroInversores", "iModo"),
    Funcion::De<&phSeleccionMicroInversor>("phSeleccionMicroInversor", "csId"),
    Funcion::De<&phGetBaseMicroInversores>("phGetBaseMicroInversores", ""),
    Funcion::De<&phGetFabricanteMicroInversor>("phGetFabricanteMicroInversor", "csId, csFamilia"),
    Funcion::De<&phCadenaIdentificacionModeloMicroInversor>("phCadenaIdentificacionModeloMicroInversor",
                                                            "csModelo, csId"),
    Funcion::De<&phGetDataMicroInversor>(
        "phGetDataMicroInversor",
        "csId, csFamilia, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, dICCMax, dICCMin, "
        "dIScMax, iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax, dAncho, "
        "dLargo, dAlto, dPeso, csCodPrecio"),
    Funcion::De<&phGetDataMicroInversorDim>(
        "phGetDataMicroInversorDim", "csId, csFamilia, iNumMPPT, iNumEntradas, dAncho, dLargo, dAlto, dPeso"),

    // Catalogue of DC/DC converters
    Funcion::De<&phCargarBaseConvertidoresCC>("phCargarBaseConvertidoresCC", "csPath"),
    Funcion::De<&phEditarBaseConvertidorCC>("phEditarBaseConvertidorCC", "iModo"),
    Funcion::De<&phSeleccionConvertidor>("phSeleccionConvertidor", "csId"),
    Funcion::De<&phGetBaseConvertidores>("phGetBaseConvertidores", ""),
    Funcion::De<&phGetFabricanteConvertidor>("phGetFabricanteConvertidor", "csId, csFamilia"),
    Funcion::De<&phCadenaIdentificacionModeloConvertidor>("phCadenaIdentificacionModeloConvertidor",
                                                          "csModelo, csId"),
    Funcion::De<&phGetDataConvertidor>("phGetDataConvertidor",
                                       "csId, csFamilia, dVInMin, dVInMax, dPAutoCons, dVOutNom, dPOutNom, "
                                       "dRendMax, dAncho, dLargo, dAlto, dPeso"),

    // Catalogue of electrical loads
    Funcion::De<&phCargarBaseReceptores>("phCargarBaseReceptores", "csPath"),
    Funcion::De<&phEditarBaseReceptores>("phEditarBaseReceptores", "iModo"),
    Funcion::De<&phSeleccionReceptor>("phSeleccionReceptor", "csId"),
    Funcion::De<&phGetBaseReceptores>("phGetBaseReceptores", ""),
    Funcion::De<&phGetFabricanteReceptor>("phGetFabricanteReceptor", "csId, csFamilia"),
    Funcion::De<&phCadenaIdentificacionModeloReceptor>("phCadenaIdentificacionModeloReceptor",
                                                       "csModelo, csId"),
    Funcion::De<&phGetDataReceptor>("phGetDataReceptor",
                                    "csId, csFamilia, dP, dVs, dVsMin, dRend, iTipoRed, bIlum"),

    // All catalogues
    Funcion::De<&phCargarBasesHE5>("phCargarBasesHE5", "lista"),

    // Elements of the drawing
    Funcion::De<&phShowPropertyPanelFoto>(
        "phShowPropertyPanelFoto",
        "csReferencia, csId, nPaneles, bModelo, bInclinacion, dInclinacion, iOrientacion, iMontaje, "
        "dRendimiento, iOptimizador, bAutoDesconexion, dAutoDesconexion, bOptimizadorMPPT, csOptimizadorMPPT, "
        "acsOptimizadores, csString, bInformarSombra, dSombreado, bExcluir, bNoSombras, iAux, dLatitud, "
        "dOrientacion, dDatoSitio, bClima, iFuente, bMicroInversor, csIdMicro, bMicroModelo, iConexion, "
        "adHorizontal, bForzado, nColor"),

    // Consumption
    Funcion::De<&phShowPropertyConsumo>(
        "phShowPropertyConsumo",
        "csReferencia, lReceptores, iTipoEntrada, iPatron, dPotMaxima, adHoras, adMes, aiPeriodoHora, "
        "bExcluir, iRotulacion, iAux, dHusoHorario"),
    Funcion::De<&phShowPropertyReceptor>(
        "phShowPropertyReceptor",
        "csReferencia, csModelo, bModelo, dHorario, bExcluir, iReservado, iCantidad, bPedirCantidad, "
        "iReservado1, iReservado2"),

    // Elements of the drawing
    Funcion::De<&phShowPropertyRedElectrica>("phShowPropertyRedElectrica", "csReferencia, bExcluir, iRotulos"),
    Funcion::De<&phShowPropertyRegulador>(
        "phShowPropertyRegulador",
        "csReferencia, csAux, iAux, dVNom, dPPanelMax, dIPanelMax, dVPanelMax, dVPanelMin, dAux1, dAux2, "
        "dAux3, "
        "dAux4, dAux5, dAux6, dPerdidas, dAux7, dAux8, iTipoRegulador, dTensionSalida, dPotenciaSalida, "
        "iTipoSalida, bExcluir, iRotulos, iTipo"),
    Funcion::De<&phShowPropertyAcumulador>(
        "phShowPropertyAcumulador",
        "csReferencia, csId, bModelo, dAux, nSerie, nParalelo, bExcluir, bEscala, iRotulos"),
    Funcion::De<&phShowPropertyInversor>(
        "phShowPropertyInversor",
        "csReferencia, csId, bModelo, aEntradas, bExcluir, bEscala, iRotulos, iAux, iNumMPPT, iNumEntradas"),
    Funcion::De<&phShowPropertyConvertidorCC>("phShowPropertyConvertidorCC",
                                              "csReferencia, csId, bModelo, bExcluir, iRotulos"),
    Funcion::De<&phShowPropertyCajaConexion>("phShowPropertyCajaConexion",
                                             "csReferencia, nEntradas, bFijo, bTrifasica, bExcluir, iRotulos"),
    Funcion::De<&phShowPropertyElementoAux>("phShowPropertyElementoAux", "csReferencia, bExcluir, iRotulos"),
    Funcion::De<&phShowPropertyPageNudo>("phShowPropertyPageNudo", "csReferencia, bCaja, iRotulos"),
});

}  // namespace

std::span<const Funcion> Funciones()
{
    return kFunciones;
}

const Funcion* BuscarFuncion(std::string_view nombre)
{
    static const auto indice = [] {
        std::unordered_map<std::string_view, const Funcion*> porNombre;
        for (const Funcion& funcion : kFunciones)
            porNombre.emplace(funcion.GetNombre(), &funcion);
        return porNombre;
    }();
    const auto fila = indice.find(nombre);
    return fila == indice.end() ? nullptr : fila->second;
}

const Funcion* BuscarDialogo(std::string_view clase)
{
    for (const Funcion& dialogo : kDialogos)
        if (dialogo.GetNombre() == clase)
            return &dialogo;
    return nullptr;
}

}  // namespace efv::rpc

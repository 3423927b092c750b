// Cables: section for a current, section and voltage drop of a stretch, conductivity, and what stretches,
// installation methods, insulations and materials are called.
//
// No argument is checked. Lengths, voltages and conductivity come in consistent units: m, V and m/(Ω·mm²)
// for a section in mm².
#pragma once

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

// ---------------------------------------------------------------------------------------------------
// Section for a current
// ---------------------------------------------------------------------------------------------------

/// The least standard section, mm², that takes a current, by the tables of IEC 60364-5-52 that the low-voltage
/// rules (ITC-BT-19) refer to.
///
/// The reference temperatures are 30 ºC of the air and 20 ºC of the ground, so printed tables for 40 ºC don't
/// agree cell by cell. Below 10 ºC the factor is that of 10 ºC.
/// @param iMetodo       0 A1, 1 A2, 2 B1, 3 B2, 4 C, 5 D1, 6 D2, 7 E, 8 F
/// @param iMaterial     0 copper, any other aluminium
/// @param iAislante     0 PVC, 1 XLPE, 2 EPR, 3 and 4 bare, accessible and not; in the ground all but PVC count
///                      as XLPE, and in the air one outside 0 to 4 has no answer
/// @param bTrifasico    not 0: three loaded conductors, else two
/// @param dTemperatura  of the air, or of the ground for D1 and D2, ºC
/// @param dCorriente    A
/// @return 0 when no section takes it, the method doesn't exist or the insulation doesn't bear the temperature
EFV_API double phGetSeccionCable(int iMetodo, int iMaterial, int iAislante, int bTrifasico, double dTemperatura,
                                 double dCorriente);

/// The least standard section from `dSeccion` upward, mm². @return 0 above 300
EFV_API double phGetSeccProx(double dSeccion);

/// The least section whose reference current reaches `dCorriente`, mm². @return 0 above 328 A
EFV_API double phCalcSeccCorriente(double dCorriente);

// ---------------------------------------------------------------------------------------------------
// Section and voltage drop of a stretch. The three-phase forms, with a T, have the factor 1.739130435 in the
// place of 2; it is the system's own and not the square root of 3.
// ---------------------------------------------------------------------------------------------------

/// Section from power, drop and voltage: 2·L·P / (U·γ·U·(e/100)).
/// @param dLongitud m  @param dPotencia W  @param dCaida %  @param dTension V  @param dConductividad m/(Ω·mm²)
EFV_API double phGetSection1(double dLongitud, double dPotencia, double dCaida, double dTension,
                             double dConductividad);
EFV_API double phGetSection1T(double dLongitud, double dPotencia, double dCaida, double dTension,
                              double dConductividad);

/// Section from current and the voltages at both ends: 2·L·I·cos φ / ((U1 − U2)·γ).
EFV_API double phGetSection2(double dLongitud, double dCorriente, double dCosFi, double dTensionOrigen,
                             double dTensionFinal, double dConductividad);
EFV_API double phGetSection2T(double dLongitud, double dCorriente, double dCosFi, double dTensionOrigen,
                              double dTensionFinal, double dConductividad);

/// Section from current and drop: 2·L·I·cos φ / ((e/100)·γ·U).
/// @param dCaida %
EFV_API double phGetSection3(double dLongitud, double dCorriente, double dCosFi, double dTension, double dCaida,
                             double dConductividad);
EFV_API double phGetSection3T(double dLongitud, double dCorriente, double dCosFi, double dTension,
                              double dCaida, double dConductividad);

/// Section, mm², from the drop in V, or the drop from the section: 2·L·I·cos φ / (X·γ).
EFV_API double phGetSection4(double dLongitud, double dCorriente, double dCosFi, double dSeccionOCaida,
                             double dConductividad);
EFV_API double phGetSection4T(double dLongitud, double dCorriente, double dCosFi, double dSeccionOCaida,
                              double dConductividad);
/// The same under second names: the drop in V.
EFV_API double phGetCaidaTension(double dLongitud, double dCorriente, double dCosFi, double dSeccion,
                                 double dConductividad);
EFV_API double phGetCaidaTensionT(double dLongitud, double dCorriente, double dCosFi, double dSeccion,
                                  double dConductividad);

/// Conductivity, m/(Ω·mm²), at a temperature; below absolute zero it is that of absolute zero.
/// @param dTemperatura ºC  @param dResistividad at 20 ºC, Ω·mm²/m  @param dCoeficiente 1/K
EFV_API double phGetConductividad(double dTemperatura, double dResistividad, double dCoeficiente);
/// Of copper: 0.018 Ω·mm²/m, 0.00392 1/K.
EFV_API double phGetConductividadCobre(double dTemperatura);
/// Of aluminium: 0.029 Ω·mm²/m, 0.00403 1/K.
EFV_API double phGetConductividadAluminio(double dTemperatura);

// ---------------------------------------------------------------------------------------------------
// Losses of a battery
// ---------------------------------------------------------------------------------------------------

/// Self-discharge at a temperature: (0.0014·T² + 0.0001·T + 0.4)·Ka.
/// @param dTemperatura ºC  @param dKa at 20 ºC, fraction
EFV_API double phCalcKa_(double dTemperatura, double dKa);
/// Overall performance: 1 − (1 − Kb − Kc − Kv)·K'a·N/Pd − Kb − Kc − Kv.
/// @param dKaAjustado result of phCalcKa_  @param dKb, dKc, dKv losses, fractions
/// @param dProfundidad depth of discharge, fraction  @param dDias days of autonomy
EFV_API double phCalcR(double dKaAjustado, double dKb, double dKc, double dKv, double dProfundidad,
                       double dDias);

// ---------------------------------------------------------------------------------------------------
// Names. Each writes the name into `csNombre`, empty for an index that it doesn't know, and returns its text.
// "LT" is the long text.
// ---------------------------------------------------------------------------------------------------

/// @param iTipo 0 automatic, 1 to 9 between which elements the stretch runs
EFV_API const wchar_t* phGetCsTipoTramo(int iTipo, CString& csNombre);
/// @param iMetodo as in phGetSeccionCable
EFV_API const wchar_t* phGetCsTipoInstalacion(int iMetodo, CString& csNombre);
EFV_API const wchar_t* phGetCsTipoInstalacionLT(int iMetodo, CString& csNombre);
/// @param iAislante as in phGetSeccionCable
EFV_API const wchar_t* phGetCsTipoAislante(int iAislante, CString& csNombre);
EFV_API const wchar_t* phGetCsTipoAislanteLT(int iAislante, CString& csNombre);
/// @param iMaterial 0 copper; every other index is aluminium
EFV_API const wchar_t* phGetCsTipoMatCable(int iMaterial, CString& csNombre);
EFV_API const wchar_t* phGetCsTipoMatCableLT(int iMaterial, CString& csNombre);

// ---------------------------------------------------------------------------------------------------
// Dialogs. Lengths in m. What comes in is shown; what goes back is written at OK alone.
// ---------------------------------------------------------------------------------------------------

/// Opens the dialog of a conductor. It calculates nothing.
/// @param iModo             0 the data of new conductors, 1 one conductor, else how many are edited together
/// @param iIdGrafico        the drawing's number of the conductor, here and below shown with `iModo` 1
/// @param dLongitud         drawn length
/// @param dDesnivel         difference of level in the drawing
/// @param iTipoTramo        as in phGetCsTipoTramo
/// @param bForzarLongitud   not 0: `dLongitudForzada` in the drawn one's place, else `dLongitudAdicional` is
/// added
/// @param bNoContabilizar   not 0: the stretch doesn't count
/// @param bForzarSeccion    not 0: `dSeccionForzada`, mm², which may not exceed `dSeccionMaxima` then
/// @param dSeccionForzada, dSeccionMaxima  standard sections; any other goes back as 1.5
/// @param bConductoresFase  not 0: `iConductoresFase` may be edited, 1 to 100; else it goes back as it came
/// @param dFactorCorrector  %, 0 to 100
/// @param iTipoInstalacion, iTipoAislante, iTipoCable  method, insulation (PVC, XLPE and EPR are offered) and
///                          material as in phGetSeccionCable; one that isn't offered stays unless another is
///                          chosen
/// @param bTipoCable        not 0: the material may be chosen
/// @param bExcluir          not 0: left out of the calculation
/// @param iAux              handed back as it came
/// @return 1 when accepted, else 2
EFV_API int phShowPropertyConductor(int iModo, int iIdGrafico, double dLongitud, double dDesnivel,
                                    CString& csReferencia, int& iTipoTramo, int& bForzarLongitud,
                                    double& dLongitudForzada, double& dLongitudAdicional, int& bNoContabilizar,
                                    int& bForzarSeccion, double& dSeccionForzada, double& dSeccionMaxima,
                                    int& bConductoresFase, int& iConductoresFase, double& dFactorCorrector,
                                    int& iTipoInstalacion, int& iTipoAislante, int& iTipoCable, int& bTipoCable,
                                    int& bExcluir, int& iAux);

/// Lets the person edit what copper and aluminium, in that order, resist.
/// @param adResistividad at 20 ºC, Ω·mm²/m, 0.01 to 0.05  @param adCoeficiente 1/K, 0.001 to 0.01
/// @return 1 when accepted, else 0
EFV_API int phShowDatosConductor(double (&adResistividad)[2], double (&adCoeficiente)[2]);

/// Lets the person edit the margins of safety of the conductors of panels, batteries and loads, %, 0 to 100.
/// @return 1 when accepted, else 0
EFV_API int phShowDatosMargenSeguridadCableado(double& dPaneles, double& dAcumuladores, double& dReceptores);

// Electrical models: operating values and curves of a photovoltaic module.
#pragma once

#include <quorvel/catalogues.h>
#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/ui/grafica.h>

// ---------------------------------------------------------------------------------------------------
// Module curves. No argument is checked: what has no answer is infinite or not-a-number, or leaves points
// out of the curve.
// ---------------------------------------------------------------------------------------------------

/// Typical values of a module at an irradiance and a cell temperature, from its data sheet.
///
/// The temperature acts on current and power as the mean of two corrections, one whole and one in
/// proportion to the irradiance; it doesn't act on the current of maximum power. Open-circuit voltage
/// falls by 5.8 % from 1000 to 200 W/m², in a straight line that goes on beyond both.
///
/// @param dIsc     short-circuit current at 1000 W/m² and 25 ºC, A
/// @param dVoc     open-circuit voltage there, V
/// @param dImpm    current of maximum power there, A
/// @param dVmpm    voltage of maximum power there, V; **not read**: Vmp is power over current
/// @param dPmpm    maximum power there, W
/// @param dG       irradiance, W/m²
/// @param dT       cell temperature, ºC
/// @param dCTVoc   temperature coefficient of Voc, mV/ºC
/// @param dCTIsc   temperature coefficient of Isc, mA/ºC
/// @param dCTPmpm  temperature coefficient of the power, mW/ºC
/// @param pdIsc    out: Isc at dG and dT, A. Of this and the next four, those that are null are skipped.
/// @param pdVoc    out: Voc at dG and dT, V
/// @param pdImp    out: current of maximum power at dG, A
/// @param pdVmp    out: voltage of maximum power at dG and dT, V; infinite or not-a-number when dG is 0
/// @param pdPmp    out: maximum power at dG and dT, W
/// @return 1
EFV_API int phCalcValoresTipicos(double dIsc, double dVoc, double dImpm, double dVmpm, double dPmpm, double dG,
                                 double dT, double dCTVoc, double dCTIsc, double dCTPmpm, double* pdIsc,
                                 double* pdVoc, double* pdImp, double* pdVmp, double* pdPmp);

/// Curve of a module as parallel arrays, in order of rising voltage from 0 to Voc.
///
/// Up to Vmp the current solves I = Isc·(1 − e^((V + Rs·I − Voc)/a)), with the scale voltage a =
/// n·k·T·Ns/(q·Np) and the series term Rs that makes it pass through (Vmp, Imp), by fixed-point iteration from
/// 0; from Vmp it is the straight line to (Voc, 0). The iteration isn't one to convergence: where it hasn't
/// converged after iN rounds, the value reached is the curve.
///
/// @param aI   out: currents, A; emptied first
/// @param aV   out: voltages, V; emptied first
/// @param aP   out: powers, W; **appended to**, so pass an empty one to have the three alike
/// @param dIsc short-circuit current, A. Where it doesn't exceed dImp the part up to Vmp has no points.
/// @param dVoc open-circuit voltage, V
/// @param dImp current of maximum power, A
/// @param dVmp voltage of maximum power, V. Where it exceeds dVoc there is no straight part.
/// @param dT   cell temperature, ºC; acts in the scale voltage only, none of the other arguments is corrected
/// @param dNs  cells in series
/// @param dNp  branches of cells in parallel; below 1 counts as 1
/// @param dN   ideality factor of the diode, usually 1
/// @param iN   number of intervals of the voltage axis (iN + 1 points, of which those with a negative
///             current are left out) and number of iterations a point; usually 100. 0 or below gives
///             no points.
/// @return 1
/// @throws CInvalidArgException, the arrays untouched, above 100000 intervals. The work grows with the
/// square of iN, up to (iN + 1)·iN powers, and beyond that number would no longer end in useful time.
EFV_API int phCalcCurve(CArray<double, double&>& aI, CArray<double, double&>& aV, CArray<double, double&>& aP,
                        double dIsc, double dVoc, double dImp, double dVmp, double dT, double dNs, double dNp,
                        double dN, int iN);

namespace efv {

/// The two charts of a family of curves.
struct GraficasPanel {
    CCtrlCurva2D corriente;  ///< current over voltage
    CCtrlCurva2D potencia;   ///< power over current
};

/// Curves of a module at 25 ºC for 1000, 800, 600, 400 and 200 W/m².
EFV_API GraficasPanel GraficasATemperaturaConstante(const CBasePanelFotoModelo& modelo);
/// Curves of a module at 1000 W/m² for 0, 50, 75 and 25 ºC.
EFV_API GraficasPanel GraficasAIrradiacionConstante(const CBasePanelFotoModelo& modelo);

}  // namespace efv

// Operating values of a photovoltaic module and its I-V and P-V curve, from its data sheet: one diode
// with a series term up to the maximum-power voltage, a straight line from there to open circuit.
#pragma once

#include <vector>

namespace efv::electrical {

/// What the data sheet gives, at standard test conditions (1000 W/m², 25 ºC).
struct HojaModulo {
    double dPmpm = 0.0;    ///< W
    double dVmpm = 0.0;    ///< V
    double dImpm = 0.0;    ///< A
    double dVoc = 0.0;     ///< V
    double dIsc = 0.0;     ///< A
    double dCTVoc = 0.0;   ///< mV/ºC
    double dCTIsc = 0.0;   ///< mA/ºC
    double dCTPmpm = 0.0;  ///< mW/ºC
    int iNs = 0;           ///< cells in series
    int iNp = 0;           ///< branches in parallel
};

struct ValoresTipicos {
    double dIsc, dVoc, dImp, dVmp, dPmp;  // A, V, A, V, W
};

/// Values at irradiance `dG` (W/m²) and cell temperature `dT` (ºC). The sheet's dVmpm, iNs and iNp are
/// not read. Without irradiance Vmp is infinite or not-a-number.
ValoresTipicos CalcularValoresTipicos(const HojaModulo& hoja, double dG, double dT);

/// What a curve is worked out from.
struct EntradaCurva {
    double dIsc = 0.0, dVoc = 0.0, dImp = 0.0, dVmp = 0.0;  ///< A, V, A, V
    double dT = 25.0;         ///< cell temperature, ºC; acts in the thermal voltage only
    double dNs = 1.0;         ///< cells in series
    double dNp = 1.0;         ///< branches in parallel; below 1 counts as 1
    double dIdealidad = 1.0;  ///< ideality factor of the diode
};

/// Points of a curve: the same index is the same point, in order of the voltage axis.
struct Curva {
    std::vector<double> adI, adV, adP;  // A, V, W
};

/// Most intervals that a curve may have. They are its iterations a point as well, so that the work grows
/// with the square: without any early end this many would take minutes, while ordinary input takes
/// milliseconds.
inline constexpr int kIntervalosMaximos = 100000;

/// Curve over `iN` intervals of 0 to Voc, with `iN` iterations a point. Points without a current of 0 or
/// above (one that is negative or not a number) are left out; `iN` of 0 or below gives no points. Throws
/// CInvalidArgException above kIntervalosMaximos.
Curva CalcularCurva(const EntradaCurva& entrada, int iN);

}  // namespace efv::electrical

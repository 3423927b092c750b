// The currents of a module's single-diode equation with a series term, as its iteration of a stated length
// gives them.
#pragma once

#include <span>

namespace efv::electrical {

/// I = Isc · (1 − B^((V + Rs·I − Voc)/a)), as far as it is the same for all points of a curve.
struct Diodo {
    double dIsc, dVoc;  ///< A, V
    double dA;          ///< scale voltage, V
    double dRs;         ///< ohm

    double Exponente(double dV, double dI) const { return (dV + dRs * dI - dVoc) / dA; }
    double Corriente(double dExponente) const;
};

/// Puts into each `adI` the current after `iN` iterations from 0 at the voltage of the same place, in V and A.
/// To the bit that of the plain loop, whether it converges or not.
void IterarCorrientes(const Diodo& diodo, int iN, std::span<const double> adV, std::span<double> adI);

}  // namespace efv::electrical

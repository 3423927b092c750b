// Sizing of cables: section for a current or a voltage drop, drop of a section, conductivity. Free functions
// that check no argument.
#pragma once

#include <array>

#include "electrical/cables_tablas.h"

namespace efv::electrical {

/// How a cable lies.
struct CasoCable {
    int iMetodo = 0;             ///< 0 A1, 1 A2, 2 B1, 3 B2, 4 C, 5 D1, 6 D2, 7 E, 8 F
    int iMaterial = 0;           ///< 0 copper, else aluminium
    int iAislante = 0;           ///< 0 PVC, 1 XLPE, 2 EPR, 3 and 4 bare, accessible and not
    bool bTrifasico = false;     ///< three loaded conductors, else two
    double dTemperatura = 30.0;  ///< of the air or the ground, ºC
};

/// The currents that a case's sections take at the reference temperature; null for an unknown method.
const ColumnaCorrientes* CorrientesDe(const CasoCable& caso);

/// What the ambient temperature leaves of the current: 1 at 30 ºC in air and 20 ºC in the ground, that of
/// 10 ºC below, 0 above the table. Between entries a straight line. An insulation outside its table counts
/// as XLPE in the ground and gives 0 in air.
double FactorTemperatura(const CasoCable& caso);

/// The least section that takes `dCorriente`, mm²; 0 when none does.
double SeccionPorCorriente(const CasoCable& caso, double dCorriente);

/// The least standard section from `dSeccion` upward, mm²; 0 above 300.
double SeccionNormal(double dSeccion);

/// The least section whose reference current reaches `dCorriente`; 0 above 328 A.
double SeccionDeReferencia(double dCorriente);

/// Conductors that a stretch's drop counts. The three-phase factor isn't the square root of 3: results of this
/// system rest on it as it is.
inline constexpr double kIdaYVuelta = 2.0;
inline constexpr double kTresFases = 1.739130435;

// Sections and drops. Lengths, voltages and conductivity in consistent units: m, V, m/(Ω·mm²) for mm².
// `dHilos` is one of the two factors above.

double SeccionPorPotencia(double dHilos, double dLongitud, double dPotencia, double dCaidaPct, double dTension,
                          double dConductividad);
double SeccionEntreTensiones(double dHilos, double dLongitud, double dCorriente, double dCosFi,
                             double dTension1, double dTension2, double dConductividad);
double SeccionPorCaida(double dHilos, double dLongitud, double dCorriente, double dCosFi, double dTension,
                       double dCaidaPct, double dConductividad);
/// Section from the drop in V, or the drop from the section.
double SeccionOCaida(double dHilos, double dLongitud, double dCorriente, double dCosFi, double dCaidaOSeccion,
                     double dConductividad);

struct MaterialConductor {
    double dResistividad;  ///< at 20 ºC, Ω·mm²/m
    double dCoeficiente;   ///< 1/K
};
inline constexpr MaterialConductor kCobre{0.018, 0.00392};
inline constexpr MaterialConductor kAluminio{0.029, 0.00403};

/// m/(Ω·mm²). A temperature below absolute zero counts as it.
double Conductividad(double dTemperatura, const MaterialConductor& material);

/// Self-discharge of a battery at a temperature, from that at 20 ºC. The stand-alone sizing has the same
/// polynomial in another order of its factors; results of the two may differ in their last bit, and each
/// keeps its own.
double AutodescargaAjustada(double dTemperatura, double dKa);

/// What is left of a battery's energy after all losses, as a fraction.
/// @param dProfundidad depth of discharge, fraction
double RendimientoBateria(double dKaAjustado, double dKb, double dKc, double dKv, double dProfundidad,
                          double dDias);

}  // namespace efv::electrical

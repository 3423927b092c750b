// A stretch of cable sized as an installer does: by heating and by voltage drop, at the larger section of the
// two.
#pragma once

#include <array>
#include <optional>

#include <quorvel/exportar.h>

namespace efv::electrical {

/// A stretch. Methods, materials and insulations as in phGetSeccionCable.
struct TramoCable {
    double dLongitud = 0.0;   ///< one way, m
    double dCorriente = 0.0;  ///< of the line, A
    double dTension = 230.0;  ///< V
    double dCosFi = 1.0;
    bool bTrifasico = false;  ///< three loaded conductors, else two
    int iMetodo = 2;
    int iMaterial = 0;
    int iAislante = 1;
    std::optional<double> dTemperatura = {};           ///< of the air or the ground, ºC; none: 30 and 20
    std::optional<double> dTemperaturaConductor = {};  ///< for the drop, ºC; none: what the insulation bears
    int iConductoresFase = 1;                          ///< in parallel
    double dMargen = 0.0;                              ///< that heating counts above the current, %
    double dLimiteCaida = 1.5;                         ///< %
    std::optional<double> dSeccion = {};               ///< standard section to be held; none: it is chosen
};

struct TramoCalculado {
    double dTemperatura = 0.0, dTemperaturaConductor = 0.0;  ///< as they count, ºC
    double dConductividad = 0.0;                             ///< m/(Ω·mm²)
    double dFactor = 0.0;                                    ///< what the temperature leaves of the current
    double dCorrienteCalculo = 0.0;                          ///< of one conductor with the margin, A
    double dPorCorriente = 0.0;                              ///< section by heating, mm²; 0: none is enough
    double dMinimaPorCaida = 0.0;  ///< at which the drop is the limit, mm², of one conductor
    double dPorCaida = 0.0;        ///< section by the drop, mm²; 0: none is enough
    double dSeccion = 0.0;         ///< in force, mm²; 0: none
    // Of the section in force; 0 without one.
    double dAdmisible = 0.0;  ///< current that the line bears, A; 0 where the method's table lacks the section
    double dReserva = 0.0;    ///< what that leaves over the current with its margin, A
    double dCaida = 0.0;      ///< V
    double dCaidaPct = 0.0;   ///< %
    bool bCorriente = false;  ///< it bears the current
    bool bCaida = false;      ///< it keeps the limit of the drop

    bool Cumple() const { return bCorriente && bCaida; }
};

/// Heating counts I·(1 + margin)/conductors at the ambient temperature; the drop I/conductors, at the
/// conductor's. Both sections are such as the method's table has. Nothing is checked.
EFV_API TramoCalculado Dimensionar(const TramoCable& tramo);

/// Current of a power: P/(U·cos φ), of three phases P/(√3·U·cos φ), A.
EFV_API double CorrienteDePotencia(double dPotencia, double dTension, double dCosFi, bool bTrifasico);

/// What a conductor bears at a section.
struct CorrienteSeccion {
    double dSeccion;    ///< mm²
    double dTabla;      ///< at the reference temperature, A; 0: the section doesn't exist
    double dCorregida;  ///< at the stretch's, A
};
/// Those of a stretch's method, material, insulation, phases and temperature, for one conductor a phase.
EFV_API std::array<CorrienteSeccion, 16> CorrientesPorSeccion(const TramoCable& tramo);

}  // namespace efv::electrical

// Radiation on a tilted plane by the correlation of Liu and Jordan (1962) between clearness and diffuse
// fraction, with the isotropic sky of the same authors, for a plane facing the equator.
#pragma once

#include <array>

#include <quorvel/framework/CString.h>

namespace efv::solar {

/// A value for each month of the year.
using DocePorMes = std::array<double, 12>;

/// Work record of a query. Preparation fills the constant blocks and zeroes the rest; CalcularMes fills
/// one month and keeps every intermediate in that month's slot.
struct RegistroRadiacion {
    CString csNombre;
    std::array<int, 5> aiAjustes = {0, 0, 5, 100, 1};  // kept, read by no formula

    DocePorMes dRadHorizontal{};       ///< kJ/m²·day
    DocePorMes dRadPlano{};            ///< kJ/m²·day
    DocePorMes dRadHorizontalKWh{};    ///< kWh/m²·day
    DocePorMes dRadPlanoKWh{};         ///< kWh/m²·day, the RI result
    DocePorMes dEnergiaDia{};          ///< kWh, the EIR result a day
    DocePorMes dEnergiaMes{};          ///< kWh, the EIR result a month
    std::array<int, 12> iDiasMes{};    ///< February after the clock's year
    std::array<int, 12> iCalculado{};  ///< 1 once the month was calculated

    // Intermediates, radians unless said.
    DocePorMes dDeclinacion{};
    DocePorMes dOcaso{};       ///< sunset hour angle on the horizontal
    DocePorMes dOcasoPlano{};  ///< sunset hour angle on the tilted plane
    DocePorMes dFactorB{};
    DocePorMes dRadExtraterrestre{};  ///< kJ/m²·day
    DocePorMes dIndiceClaridad{};     ///< KT
    DocePorMes dFraccionDifusa{};     ///< D
    DocePorMes dOcasoMenor{};
    DocePorMes dRelacionDirecta{};  ///< Rb
    DocePorMes dRelacion{};         ///< R, tilted to horizontal
    DocePorMes dIncidencia{};       ///< degrees, 2.5 hours from noon
    DocePorMes dParteDirecta{};     ///< beam share after both glass polynomials
    DocePorMes dParteConDifusa{};
    DocePorMes dParteTotal{};

    RegistroRadiacion();
};

/// The plain factors on the energy of a field.
struct FactoresEnergia {
    double dPrimero = 1.0;  ///< peak power in kWp, or 1
    double dPR = 1.0;
    double dAdicional = 1.0;
};

/// What depends on site and tilt alone, worked out once for all months.
struct PlanoInclinado {
    double dSenoInclinacion, dCosenoInclinacion;
    double dSenoLatitud, dCosenoLatitud, dTangenteLatitud;
    double dSenoDiferencia, dCosenoDiferencia, dTangenteDiferencia;  ///< of latitude less tilt
};

/// Latitude and tilt in degrees.
PlanoInclinado PrepararPlano(double dLatitud, double dInclinacion);

/// Fills month `iMes` (0 to 11) of the record for a daily horizontal radiation in kJ/m²·day. Where the
/// sun doesn't rise or set the results are not-a-number.
void CalcularMes(RegistroRadiacion& r, int iMes, const PlanoInclinado& plano, double dRadHorizontal,
                 const FactoresEnergia& factores);

}  // namespace efv::solar

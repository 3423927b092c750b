// Minimum photovoltaic power of a building by the building code of 2006 (section HE 5), and beside it by the
// one of 2022 (section HE 5, after the Royal Decree 450/2022).
#pragma once

#include <optional>
#include <string_view>

namespace efv::solar {

inline constexpr int kUsosHE5 = 7;

/// Coefficients of a use of the building; 0 for an unknown one.
double CoeficienteA(int iTipoUso);
double CoeficienteB(int iTipoUso);
/// Coefficient of a climate zone, 1 to 5; 0 for an unknown one.
double CoeficienteC(int iZona);

std::wstring_view NombreUso(int iTipoUso);
std::wstring_view NombreDisposicion(int iDisposicion);

/// kW of one use: by the coefficients of the use, or by the form without it. Never negative.
double PotenciaMinima(int iZona, int iTipoUso, double dSuperficie, bool bFormulaCoeficientes);

/// Climate zone, 1 to 5, from the year's mean daily horizontal radiation, kWh/m²: below 3.8, 4.2, 4.6 and 5.0.
int ZonaDeRadiacion(double dRadiacionMedia);

/// kW by the code of 2022: the smaller of 0.005 kW/m² for dwellings or 0.010 for other uses times the built
/// surface and a tenth of half the roof less what thermal collectors take; nothing up to 1,000 m² built.
std::optional<double> PotenciaMinima2022(bool bResidencial, double dSuperficieConstruida,
                                         double dSuperficieCubierta, double dSuperficieCaptadores);

}  // namespace efv::solar

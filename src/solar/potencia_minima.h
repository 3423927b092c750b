// Minimum photovoltaic power of a building by the building code of 2006 (section HE 5).
#pragma once

#include <string_view>

#include <quorvel/solar/he5.h>

namespace efv::solar {

/// Coefficients of a use of the building; 0 for an unknown one.
double CoeficienteA(int iTipoUso);
double CoeficienteB(int iTipoUso);
/// Coefficient of a climate zone, 1 to 5; 0 for an unknown one.
double CoeficienteC(int iZona);

std::wstring_view NombreUso(int iTipoUso);
std::wstring_view NombreDisposicion(int iDisposicion);

/// kW of one use: by the coefficients of the use, or by the form without it. Never negative.
double PotenciaMinima(int iZona, int iTipoUso, double dSuperficie, bool bFormulaCoeficientes);

}  // namespace efv::solar

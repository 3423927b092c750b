// Families of curves of a module and the two charts that show each: current over voltage and power over
// current, at constant temperature for five irradiances or at constant irradiance for four temperatures.
#pragma once

#include <string_view>
#include <vector>

#include <quorvel/electrical.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/grafica.h>

#include "electrical/curvas.h"

namespace efv::electrical {

/// One curve of a family.
struct NivelCurva {
    double dNivel = 0.0;  ///< irradiance, W/m², or temperature, ºC
    ui::Color color = ui::kNegro;
    int iAncho = 0;
    Curva curva;
};

/// Curves at 25 ºC for 1000, 800, 600, 400 and 200 W/m².
std::vector<NivelCurva> CurvasTConstante(const HojaModulo& hoja);

/// Curves at 1000 W/m² for 0, 50, 75 and 25 ºC. Temperature acts through Isc, Voc and Vmp; the thermal
/// voltage of all four is that of 25 ºC.
std::vector<NivelCurva> CurvasGConstante(const HojaModulo& hoja);

/// Charts at constant temperature; `csTemperatura` is 25 ºC as the project's temperature unit writes it.
GraficasPanel GraficasTConstante(const HojaModulo& hoja, std::wstring_view csModelo,
                                 std::wstring_view csTemperatura);

/// Charts at constant irradiance.
GraficasPanel GraficasGConstante(const HojaModulo& hoja, std::wstring_view csModelo);

}  // namespace efv::electrical

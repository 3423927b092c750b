// Numbers as the person reads them.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>
#include <quorvel/unidades.h>

namespace efv::estudio {

/// With the decimal mark; a dash for what has no value.
CString Decimal(double d, int iDecimales);

inline constexpr std::wstring_view kEnergia = L"Energía", kRadiacion = L"Radiación solar";

/// A stored value in the person's unit of its magnitude.
double AlUsuario(std::wstring_view magnitud, double d);
/// The decimals that tell as much in that unit.
int DecimalesEn(std::wstring_view magnitud, int iDecimales);
CString SimboloDe(std::wstring_view magnitud);
/// "12300 kWh"
CString EnUnidad(std::wstring_view magnitud, double d, int iDecimales);
/// The same without the unit, which stands above the column.
CString SoloCifra(std::wstring_view magnitud, double d, int iDecimales);

/// A number as a person writes it, without the points between its thousands: "1.234,5" is "1234,5". Where a
/// single point may as well be the decimal mark the limits decide: "40.417" degrees are no 40417. Nothing when
/// they don't.
std::optional<CString> SinMillares(const CString& csEscrito, const std::optional<ui::Intervalo>& limites);

}  // namespace efv::estudio

// Numbers as the person reads them.
#pragma once

#include <optional>

#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>

namespace efv::estudio {

/// With a decimal comma; a dash for what has no value.
CString Decimal(double d, int iDecimales);

/// A number as a person writes it, without the points between its thousands: "1.234,5" is "1234,5". Where a
/// single point may as well be the decimal mark the limits decide: "40.417" degrees are no 40417. Nothing when
/// they don't.
std::optional<CString> SinMillares(const CString& csEscrito, const std::optional<ui::Intervalo>& limites);

}  // namespace efv::estudio

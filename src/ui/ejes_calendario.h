// Axes that count months, days of the week, hours or dates.
#pragma once

#include <optional>

#include "ui/ejes.h"

namespace efv::ui {

/// Nothing for numbers and for an extent that can't be of the class. `iDivisiones` is at least 1.
std::optional<Eje> EjeDeCalendario(ClaseEje clase, double dMin, double dMax, int iDivisiones);

/// A value along such an axis as its mark and as a reading say it; the value lies within the axis.
CString RotuloDeCalendario(const Eje& eje, double d, bool bLargo);
CString LecturaDeCalendario(const Eje& eje, double d, bool bConHora);

}  // namespace efv::ui

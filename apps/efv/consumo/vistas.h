// Charts of an hourly year as SVG documents.
#pragma once

#include <string>

#include "consumo/ano.h"

namespace efv::orden {

enum class Vista { dia, semana, ano };

/// A day or a week from `iMes`, `iDia` (both from 0) as a stepped curve, a day of loads minute by minute; or
/// the year as a map of 24 rows by 365 columns, the darker the more.
std::string DibujarAno(const AnoConsumo& ano, Vista vista, int iMes, int iDia);

}  // namespace efv::orden

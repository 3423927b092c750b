// Names of the calendar as entries of a choice.
#pragma once

#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::consumption {

/// "Lunes" to "Domingo".
std::vector<CString> NombresDeDias();
/// "Enero" to "Diciembre".
std::vector<CString> NombresDeMeses();
/// "1 (Lunes)" and so on: the days of a month with their weekdays in 2018, the year on view. A month outside 0
/// to 11 throws CInvalidArgException.
std::vector<CString> DiasDelMes(int iMes);

}  // namespace efv::consumption

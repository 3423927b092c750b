// Names of the calendar as entries of a choice.
#pragma once

#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::consumption {

/// "Lunes" to "Domingo".
std::vector<CString> NombresDeDias();
/// "Enero" to "Diciembre".
std::vector<CString> NombresDeMeses();

}  // namespace efv::consumption

// The table of factors K of the data folder.
#pragma once

#include <string>

namespace efv::orden {

/// Loads it into the library. @param csDatos option --datos
/// @throws ErrorEjecucion when it can't be read or has gaps
void CargarTablaK(const std::string& csDatos);

}  // namespace efv::orden

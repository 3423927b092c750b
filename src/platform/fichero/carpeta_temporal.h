// Where the system keeps what nobody needs for long.
#pragma once

#include <string>

namespace efv::fichero {

/// The folder of TMPDIR, else /tmp; without a final slash.
std::string CarpetaTemporal();

}  // namespace efv::fichero

#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv inversores`: those of the catalogue that suit so many panels, and how the strings go.
std::unique_ptr<Suborden> CrearSubordenInversores();

}  // namespace efv::orden

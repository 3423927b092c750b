#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv inclinacion`: the best tilts of a place, what a plane loses, how far rows stand apart.
std::unique_ptr<Suborden> CrearSubordenInclinacion();

}  // namespace efv::orden

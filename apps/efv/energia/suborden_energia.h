#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv energia`: monthly energy of a field of panels at a place.
std::unique_ptr<Suborden> CrearSubordenEnergia();

}  // namespace efv::orden

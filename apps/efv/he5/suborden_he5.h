#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv he5`: the minimum photovoltaic power of a building.
std::unique_ptr<Suborden> CrearSubordenHE5();

}  // namespace efv::orden

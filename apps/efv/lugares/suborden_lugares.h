#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv lugares`: the places that the other commands know by name.
std::unique_ptr<Suborden> CrearSubordenLugares();

}  // namespace efv::orden

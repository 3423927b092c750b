#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv cable`: sections, voltage drops and currents of cables.
std::unique_ptr<Suborden> CrearSubordenCable();

}  // namespace efv::orden

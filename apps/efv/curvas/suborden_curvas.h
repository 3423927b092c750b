#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv curvas`: typical values and curves of a PV module.
std::unique_ptr<Suborden> CrearSubordenCurvas();

}  // namespace efv::orden

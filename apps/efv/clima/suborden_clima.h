#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv clima`: climate years and radiations from PVGIS, and what a record or the sky gives on a plane.
std::unique_ptr<Suborden> CrearSubordenClima();

}  // namespace efv::orden

#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv tarifa`: hourly prices out of a tariff.
std::unique_ptr<Suborden> CrearSubordenTarifa();

}  // namespace efv::orden

#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv consumo`: hourly years of consumption from patterns, files, monthly energies or loads.
std::unique_ptr<Suborden> CrearSubordenConsumo();

}  // namespace efv::orden

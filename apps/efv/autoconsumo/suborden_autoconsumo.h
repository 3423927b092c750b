#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv autoconsumo`: from a meter's file to the payback of an installation.
std::unique_ptr<Suborden> CrearSubordenAutoconsumo();

}  // namespace efv::orden

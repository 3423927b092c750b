#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv completar`: scripts with which shells complete what is typed, and what they ask for.
std::unique_ptr<Suborden> CrearSubordenCompletar();

}  // namespace efv::orden

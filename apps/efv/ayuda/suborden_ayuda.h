#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv ayuda`: the help of an order, or the manual's page of the whole command.
std::unique_ptr<Suborden> CrearSubordenAyuda();

}  // namespace efv::orden

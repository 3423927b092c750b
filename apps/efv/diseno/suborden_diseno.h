#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv aislada`: a stand-alone installation out of a project file.
std::unique_ptr<Suborden> CrearSubordenAislada();
/// `efv red`: a grid-connected one.
std::unique_ptr<Suborden> CrearSubordenRed();
std::unique_ptr<Suborden> CrearSubordenVenta();

}  // namespace efv::orden

#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv esquema`: the schematic of a design on sheets with a title block, as DXF, SVG or PDF.
std::unique_ptr<Suborden> CrearSubordenEsquema();

}  // namespace efv::orden

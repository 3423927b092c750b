#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv catalogo`: the catalogue of PV modules, to be looked up, checked and added to.
std::unique_ptr<Suborden> CrearSubordenCatalogo();

}  // namespace efv::orden

// What a project file says of its cables, and what --json writes of them.
#pragma once

#include <span>

#include <quorvel/report/cableado.h>

#include "diseno/lectura.h"
#include "diseno/salida.h"

namespace efv::orden {

/// The project's member `cableado`, if it is there: figures of all stretches, and of one under its key.
/// @param bLongitudes whether a stretch's length stands there @throws rpc::ErrorValor
void LeerCableado(Objeto& proyecto, std::span<const char* const> tramos, bool bLongitudes,
                  report::CriteriosCableado& criterios);

JsonEscrito CableadoJson(const report::Cableado& cableado);

}  // namespace efv::orden

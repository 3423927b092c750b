// What a project file says of its cables, and what --json writes of them.
#pragma once

#include <span>
#include <string>

#include <quorvel/report/cableado.h>

#include "diseno/lectura.h"
#include "diseno/salida.h"

namespace efv::orden {

/// The project's member `cableado`, if it is there: figures of all stretches, and of one under its key.
/// @param bLongitudes whether a stretch's length stands there @throws rpc::ErrorValor
void LeerCableado(Objeto& proyecto, std::span<const char* const> tramos, bool bLongitudes,
                  report::CriteriosCableado& criterios);

/// The same of that member's text, as a project of the desktop program keeps it: stretches of either kind of
/// design. Without a text, the usual criteria. @throws rpc::ErrorValor
report::CriteriosCableado CriteriosDeTexto(const std::string& texto);

/// That text without the stretches that a kind of design hasn't. @throws rpc::ErrorValor
JsonLeido CableadoDe(const std::string& texto, std::span<const char* const> tramos);

JsonEscrito CableadoJson(const report::Cableado& cableado);

}  // namespace efv::orden

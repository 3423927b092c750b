// What the project's elements add to the schematic of a design: what is written beside them, the strings'
// colours.
#pragma once

#include <optional>

#include "diseno/comprobaciones.h"
#include "elementos/dialogos.h"

namespace efv::estudio {

/// The schematic of a design of the project, with the checks that fail. Empty while there is no accepted one.
/// @param calculado of the same design
Esquema EsquemaDe(const CProyectoEstudio& proyecto, Diseno diseno,
                  const std::optional<DisenoCalculado>& calculado,
                  report::Detalle detalle = report::Detalle::extremos);
inline Esquema EsquemaDe(const CProyectoEstudio& proyecto, Diseno diseno)
{
    return EsquemaDe(proyecto, diseno, CalcularDiseno(proyecto, diseno));
}

}  // namespace efv::estudio

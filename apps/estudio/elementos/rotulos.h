// What the project's elements add to the schematic of a design: what is written beside them, the strings'
// colours.
#pragma once

#include "elementos/dialogos.h"

namespace efv::estudio {

/// The schematic of a design of the project. Empty while there is no accepted one.
Esquema EsquemaDe(const CProyectoEstudio& proyecto, Diseno diseno);

}  // namespace efv::estudio

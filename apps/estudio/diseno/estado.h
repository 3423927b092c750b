// How the project stands, in a line.
#pragma once

#include <optional>
#include <vector>

#include "diseno/comprobaciones.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

/// Model, number and power of a design's field: "48 × CS3U-350P, 4 × SB5.0-1AV-40 · 16,8 kWp". Empty without
/// one.
CString EquipoDe(const CProyectoEstudio& proyecto, Diseno diseno);

/// How the checks went, behind a title: " ✓", ": ✗ 2"; empty without any.
CString MarcaDe(const std::vector<LineaComprobacion>& lineas);

/// Place, equipment and checks of that design.
CString LineaDeEstado(const CProyectoEstudio& proyecto, Diseno diseno,
                      const std::vector<LineaComprobacion>& lineas);

/// What was done last to the project: a step, one back, a file written.
CString UltimaAccion(const Sesion& sesion);

}  // namespace efv::estudio

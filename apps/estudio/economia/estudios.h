// The economic studies of the project: their dialogs over its grid-connected installation.
#pragma once

#include <quorvel/report/documento.h>

#include "diseno/resumen.h"
#include "paneles/panel_resumen.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

// Without a design to take power and energy from, the person is told, and nothing opens.
void EstudiarVenta(Sesion& sesion);
void EstudiarAutoconsumo(Sesion& sesion);
void EditarPrecios(Sesion& sesion);

/// Their reports. @throws std::runtime_error with a Spanish text when there is no study
report::Documento DocumentoDeVenta(const CProyectoEstudio& proyecto);
report::Documento DocumentoDeAutoconsumo(const CProyectoEstudio& proyecto);

// What they come to: no lines and an empty chart while there is nothing to study.
PanelResumen::Contenido VentaDe(const CProyectoEstudio& proyecto);
PanelResumen::Contenido AutoconsumoDe(const CProyectoEstudio& proyecto);

}  // namespace efv::estudio

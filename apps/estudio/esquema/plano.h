// The schematic of a design on paper: sheets with a title block, saved, printed and shown before that.
#pragma once

#include <quorvel/report/plano.h>

#include "esquema/lamina.h"
#include "informe/informe.h"

namespace efv::estudio {

/// Marked where the design is out of date; without sheets while there is no accepted one.
/// @throws std::invalid_argument with a Spanish text when it doesn't fit
report::Plano PlanoDe(const CProyectoEstudio& proyecto, Diseno diseno, const report::Pagina& pagina);

/// The bytes of a file of that ending, ".dxf", ".svg" or ".pdf" in any case.
/// @throws std::runtime_error with a Spanish text
std::string BytesDePlano(const report::Plano& plano, const CString& csRuta);

/// Asks for a file: the sheets as PDF, DXF or SVG, the drawing on view as a picture.
/// @throws std::exception with a Spanish text
void GuardarEsquema(const CProyectoEstudio& proyecto, Diseno diseno, const Lamina& aLaVista);

/// @throws std::exception with a Spanish text
void ImprimirEsquema(const CProyectoEstudio& proyecto, Diseno diseno);
void VerEsquemaImpreso(const CProyectoEstudio& proyecto, Diseno diseno);

}  // namespace efv::estudio

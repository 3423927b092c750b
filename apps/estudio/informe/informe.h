// The report of a design of the project: the same that the command writes.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace efv::estudio {

enum class Diseno { aislada, red };

/// A page of its own, HTML.
/// @throws std::runtime_error with a Spanish text when the assistant hasn't been accepted or a model isn't in
/// its catalogue
std::string InformeHtml(const CProyectoEstudio& proyecto, Diseno diseno);

/// Asks for a file and writes the report into it. @throws std::runtime_error with a Spanish text
void GuardarInforme(const CProyectoEstudio& proyecto, Diseno diseno);

}  // namespace efv::estudio

// The report of a design of the project: the same that the command writes.
#pragma once

#include <string>

#include <quorvel/report/hojas.h>
#include <quorvel/report/informe.h>

#include "proyecto/proyecto.h"

namespace efv::estudio {

enum class Diseno { aislada, red };

/// The project's name, place and planes, as its designs take them.
report::Portada PortadaDe(const CProyectoEstudio& proyecto);

/// The report of a design.
/// @throws std::runtime_error with a Spanish text when the assistant hasn't been accepted or a model isn't in
/// its catalogue
report::Documento DocumentoDe(const CProyectoEstudio& proyecto, Diseno diseno);

/// Says in a report that its figures don't go with the project any more, where they don't.
void MarcarDesfase(report::Documento& documento, const CProyectoEstudio& proyecto, Diseno diseno);

/// The sheets that the person has set up for reports.
report::Papel PapelDeInformes();

/// Asks for a file and writes the report into it. @throws std::runtime_error with a Spanish text
void GuardarInforme(const report::Documento& documento);

/// Asks for a file, an HTML page or a PDF, and writes a document into it. @param csNombre proposed, without its
/// ending @throws std::runtime_error with a Spanish text
void GuardarDocumento(const report::Documento& documento, const CString& csNombre);

}  // namespace efv::estudio

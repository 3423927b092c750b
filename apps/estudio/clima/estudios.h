// The studies of sun and place that the menus offer, on the open project.
#pragma once

#include "proyecto/sesion.h"

namespace efv::estudio {

/// Asks for a file and downloads the place's typical year into it, which becomes the project's climate record.
void DescargarRegistro(Sesion& sesion);
/// Asks for a climate record for the project.
void ElegirRegistro(Sesion& sesion);
void QuitarRegistro(Sesion& sesion);
/// Loads the project's climate record into the climate library, or none. A file that can't be read is told
/// once.
void CargarRegistroDelProyecto(const Sesion& sesion);
/// Puts it back after a study has loaded another, or none.
void RecargarRegistro();

/// The study of a plane's tilt. @param dInclinacion,dOrientacion of the plane; the tilt that the person accepts
/// @return whether one was accepted
bool EstudiarInclinacion(const Sesion& sesion, double& dInclinacion, double dOrientacion);

/// The building code's minimum power.
void CalcularPotenciaMinima(const Sesion& sesion);

}  // namespace efv::estudio

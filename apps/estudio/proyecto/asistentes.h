// The module's assistants run on the open project; what the person accepts changes it.
#pragma once

#include "informe/informe.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

/// Asks for the kind of installation, then runs its assistant.
void Disenar(Sesion& sesion);
void DisenarAislada(Sesion& sesion);
void DisenarRed(Sesion& sesion);
void EditarConsumo(Sesion& sesion);
/// Redoes a design that is out of date and tells what changed.
void RecalcularDiseno(Sesion& sesion, Diseno diseno);

}  // namespace efv::estudio

// The module's assistants run on the open project; what the person accepts changes it.
#pragma once

#include <optional>

#include "informe/informe.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

/// Asks for the kind of installation, then runs its assistant.
/// @return the design that the person accepted
std::optional<Diseno> Disenar(Sesion& sesion);
std::optional<Diseno> DisenarAislada(Sesion& sesion);
std::optional<Diseno> DisenarRed(Sesion& sesion);
void EditarConsumo(Sesion& sesion);
/// Redoes a design that is out of date and tells what changed.
void RecalcularDiseno(Sesion& sesion, Diseno diseno);

}  // namespace efv::estudio

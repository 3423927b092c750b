// Whether the accepted designs still go with the place, the models and the loads, and how they are redone.
#pragma once

#include <vector>

#include "informe/informe.h"
#include "proyecto/proyecto.h"

namespace efv::estudio {

/// Takes down what the design stands on now: it counts as accepted with that.
void AnotarAceptado(CProyectoEstudio& proyecto, Diseno diseno);
/// The same for designs of which nothing is known, as those of earlier programs.
void AnotarLoQueFalte(CProyectoEstudio& proyecto);

/// Why the accepted design is out of date, a sentence each; none while it isn't.
std::vector<CString> Desfases(const CProyectoEstudio& proyecto, Diseno diseno);
/// "Desactualizado" and why, on one line; empty while the design is up to date.
CString AvisoDeDesfase(const CProyectoEstudio& proyecto, Diseno diseno);

/// Models that no catalogue has any more and whose data the project keeps.
std::vector<CString> ModelosSoloDelProyecto(const CProyectoEstudio& proyecto, Diseno diseno);

/// Redoes the design as its assistant proposes it now, but for what the person overruled, and takes it as
/// accepted.
/// @return what changed, "Paneles: 14 → 16"
/// @throws std::runtime_error with a Spanish text, the project untouched: a model is missing, or nothing can be
/// proposed
std::vector<CString> Recalcular(CProyectoEstudio& proyecto, Diseno diseno);

/// From now on the catalogues of designs have the models of the project that the module's lack.
void UsarModelosDe(const CProyectoEstudio& proyecto);

}  // namespace efv::estudio

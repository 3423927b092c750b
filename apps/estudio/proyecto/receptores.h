// One list of loads: that of the stand-alone assistant is that of the consumption.
#pragma once

#include <memory>

#include "proyecto/proyecto.h"

namespace efv::estudio {

/// A load with the data of its catalogue; null when that doesn't have it.
std::unique_ptr<CSFVDataReceptor> NuevoReceptor(const CString& csId);

/// The loads of the consumption as an assistant's record holds them.
CSFVAsistenteAislada DelConsumo(const CProyectoEstudio& proyecto);
/// Whether both lists say the same: models, units and bands of use in order.
bool MismosReceptores(const CProyectoEstudio& proyecto);

/// The assistant takes the loads of the consumption.
void ReceptoresALaAislada(CProyectoEstudio& proyecto);
/// The consumption takes those of the assistant. A load that it has already keeps its other data; one whose
/// model no catalogue has, which the assistant can't show, stays.
void ReceptoresAlConsumo(CProyectoEstudio& proyecto);

}  // namespace efv::estudio

// A project that shows what the program does, made from the shipped catalogues.
#pragma once

#include <memory>

#include "proyecto/proyecto.h"

namespace efv::estudio {

/// A farmhouse with a stand-alone installation and a grid-connected one, as the assistants propose them, and
/// the consumption of its loads. Models that a catalogue lacks are left out.
std::unique_ptr<CProyectoEstudio> ProyectoDeEjemplo(const Lugar& lugar);

}  // namespace efv::estudio

// A project of the desktop program out of the command's JSON.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "proyecto/proyecto.h"

namespace efv::orden {

struct ProyectoDeJson {
    std::unique_ptr<estudio::CProyectoEstudio> proyecto;
    std::vector<std::string> notas;  ///< what the project can't keep, and where a study stands, a sentence each
};

/// The design or study that the command makes of the file, with the place and all else that the file says. A
/// design that the file brings models for has these in its acceptance, whose other members are still to be
/// taken down. @param csDatos option --datos
/// @throws std::exception with the command's text; a climate record that the file names stays loaded
ProyectoDeJson AbrirProyectoJson(const std::string& ruta, const std::string& csDatos);

/// The criteria of the cables that a project keeps. @throws std::exception for a damaged one
report::CriteriosCableado CriteriosDe(const estudio::CProyectoEstudio& proyecto);

}  // namespace efv::orden

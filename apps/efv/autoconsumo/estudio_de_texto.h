// The study of self-consumption for a program with a form of its own: it writes the study's JSON, this reads it
// as the command does.
#pragma once

#include <string>

#include <quorvel/report/autoconsumo.h>

namespace efv::orden {

/// @param json text of the study, whose relative files stand beside `ruta`
/// @throws std::exception with a Spanish text that names the member at fault; a climate record that the study
/// names stays loaded, and without one none is
report::ProyectoAutoconsumo ProyectoDeTexto(const std::string& json, const std::string& ruta);

/// The text of a study's file, checked by reading the whole study, with the files that it names by their whole
/// paths and its cost by its parts. @throws like that
std::string TextoDeEstudio(const std::string& ruta);

}  // namespace efv::orden

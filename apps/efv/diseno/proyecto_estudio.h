// Projects of the desktop program where the command takes a project file.
#pragma once

#include <string>
#include <string_view>

#include "diseno/lectura.h"

namespace efv::orden {

/// Whether a file begins as a project of the desktop program does, which may have several designs. A pipe is
/// JSON: its beginning can't be looked at.
bool EsProyectoDeEstudio(const std::string& ruta);

/// The project of a file: its JSON, or what a project of the desktop program says of a design of that kind in
/// the same form. @param tipo "aislada", "red", "venta", "autoconsumo"
/// @throws ErrorEjecucion also when the program's project has no such design
JsonLeido LeerFicheroProyecto(const std::string& ruta, std::string_view tipo);

}  // namespace efv::orden

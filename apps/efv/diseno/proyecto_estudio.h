// Projects of the desktop program where the command takes a project file.
#pragma once

#include <string>
#include <string_view>

#include "diseno/lectura.h"

namespace efv::orden {

/// The project of a file: its JSON, or what a project of the desktop program says of a design of that kind in
/// the same form, with the models that it keeps. @param tipo "aislada", "red", "venta", "autoconsumo", or
/// "consumo" for its loads @param otro what is taken of a project that has no `tipo`; empty: nothing
/// @throws ErrorEjecucion also when the program's project has no such design
JsonLeido LeerFicheroProyecto(const std::string& ruta, std::string_view tipo, std::string_view otro = {});

}  // namespace efv::orden

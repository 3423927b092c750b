// The folder of the shipped data.
#pragma once

#include <string>

#include <quorvel/framework/CString.h>

namespace efv::orden {

/// Text of the option --datos, the same in every command.
inline constexpr const char* kAyudaDatos =
    "Carpeta de los datos; si falta, la de la variable EFV_DATOS, y si no la instalada con el programa";

/// Path of a shipped file. Its folder is `opcion` when that isn't empty, else the environment variable
/// EFV_DATOS, else the installed folder, else the source tree's. @throws ErrorEjecucion when it is no folder
CString RutaDatos(const std::string& opcion, const char* archivo);

/// The same of a catalogue, over which that of the person's own lies from now on: in the folder "propios" of
/// CarpetaPropia. @throws ErrorEjecucion
CString RutaCatalogo(const std::string& opcion, const char* archivo);

/// The folder of the person's own files, with its trailing separator: `opcion`, else EFV_DATOS, else the one of
/// efv-estudio among the person's data. It may not exist yet; empty when the person has none.
CString CarpetaPropia(const std::string& opcion);

}  // namespace efv::orden

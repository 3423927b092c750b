// Where the catalogues, the factor table and the places stand.
#pragma once

#include <filesystem>
#include <string>

#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>

namespace efv::estudio {

/// The folder of shipped data: beside the installed program, else that of the source tree.
std::filesystem::path CarpetaDistribuida();

/// The folder to work on: `opcion`, else the environment's EFV_DATOS, else the person's own, into which
/// shipped files that it lacks are copied, so that editing a catalogue changes no installed file.
/// @throws std::runtime_error with a Spanish text when it doesn't exist or can't be made.
std::filesystem::path CarpetaDeTrabajo(const std::string& opcion);

/// Where copies of unsaved work stand, in the person's folder of states; it may be missing.
std::string CarpetaDeRecuperacion();

/// Tells the library its paths and loads its catalogues.
/// @return the files that couldn't be loaded.
CStringArray PonerDatos(const std::filesystem::path& carpeta);

/// A file of the folder, as the library takes it.
CString Ruta(const std::filesystem::path& carpeta, const char* archivo);

}  // namespace efv::estudio

// Where the catalogues, the factor table and the places stand.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>

namespace efv::estudio {

/// The folder of shipped data: beside the installed program, else that of the source tree.
std::filesystem::path CarpetaDistribuida();

/// The folder of the manual's pages: beside those data.
std::filesystem::path CarpetaDeAyuda();

/// Where the data stand, and where the person's own go; none of the first is ever written.
struct Carpetas {
    std::filesystem::path datos;    ///< catalogues, table of factors K, places
    std::filesystem::path propios;  ///< the person's own places, and their catalogues in a folder there
};

/// Where copies of unsaved work stand, in the person's folder of states; it may be missing.
std::string CarpetaDeRecuperacion();

/// Both are `opcion`, else the environment's EFV_DATOS; else the shipped data and the person's own folder.
/// @throws std::runtime_error with a Spanish text when the data's doesn't exist
Carpetas CarpetasDeTrabajo(const std::string& opcion);

/// What putting the data in use came to.
struct DatosPuestos {
    CStringArray fallidas;  ///< files that couldn't be loaded
    std::vector<CString>
        adoptadas;  ///< catalogues whose former copy went over to the person's own, a line each
};

/// Tells the library its paths and loads its catalogues.
DatosPuestos PonerDatos(const Carpetas& carpetas);

/// A file of the folder, as the library takes it.
CString Ruta(const std::filesystem::path& carpeta, const char* archivo);

}  // namespace efv::estudio

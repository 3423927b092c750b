// Files that a command writes into a folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace efv::orden {

struct FicheroNuevo {
    std::string nombre;
    std::string contenido;
};

/// A name of ASCII letters, digits, "-", "_" and "." that every file system takes as the beginning of a
/// file's; any other character becomes "_".
std::string NombreDeFichero(std::wstring_view texto);

/// Writes the files, each as a whole: one that exists stays as it was until all successors are complete.
/// The folder is made when it is missing. @return their paths @throws ErrorEjecucion
std::vector<std::filesystem::path> EscribirFicheros(const std::filesystem::path& carpeta,
                                                    const std::vector<FicheroNuevo>& ficheros);

}  // namespace efv::orden

// Pictures of all registered screens.
#pragma once

#include <filesystem>
#include <vector>

#include "capturas/registro.h"

namespace efv::estudio {

class VentanaPrincipal;

/// Writes "name-Class.png" into `carpeta` for every dialog that the screens open.
/// @return how many.
/// @throws std::runtime_error when a file can't be written.
int Capturar(const std::vector<Pantalla>& pantallas, const std::filesystem::path& carpeta);

/// Writes a picture of the program's window with each of its tabs, and of both schematics in both themes.
/// @return how many.
int CapturarPrograma(VentanaPrincipal& ventana, const std::filesystem::path& carpeta);

}  // namespace efv::estudio

// Pictures of all registered screens.
#pragma once

#include <filesystem>
#include <vector>

#include "capturas/registro.h"

class QWidget;

namespace efv::estudio {

/// Writes "name-Class.png" into `carpeta` for every dialog that the screens open.
/// @return how many.
/// @throws std::runtime_error when a file can't be written.
int Capturar(const std::vector<Pantalla>& pantallas, const std::filesystem::path& carpeta);

/// Writes a picture of the window.
void CapturarVentana(QWidget& ventana, const std::filesystem::path& archivo);

}  // namespace efv::estudio

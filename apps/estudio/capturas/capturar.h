// Pictures of all registered screens.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "capturas/registro.h"

namespace efv::estudio {

class VentanaPrincipal;

struct ResultadoCapturas {
    int nCapturas = 0;
    std::set<std::string> clases;     ///< of the dialogs that opened
    std::vector<std::string> faltas;  ///< what isn't as it has to be, in Spanish: a dialog that didn't open
};

/// Writes "name-Class.png" into `carpeta` for every dialog that the screens open, and "name-Class-oscuro.png"
/// in a dark theme.
/// @throws std::runtime_error when a file can't be written.
ResultadoCapturas Capturar(const std::vector<Pantalla>& pantallas, const std::filesystem::path& carpeta);

/// The same of the program's window with each of its tabs, of the presenter's own windows and of both
/// schematics; of a design that fails its checks and of a field at fault.
ResultadoCapturas CapturarPrograma(VentanaPrincipal& ventana, const std::filesystem::path& carpeta);

}  // namespace efv::estudio

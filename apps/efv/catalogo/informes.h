// What the commands that check or extend a catalogue tell of their work.
#pragma once

#include <ostream>
#include <string>

#include "catalogo/ficha.h"
#include "catalogo/importacion.h"
#include "catalogo/importacion_cec.h"

namespace efv::orden {

/// Exit status when models have findings.
inline constexpr int kConHallazgos = 1;

/// Checks all models and writes what is found as it is found. @return whether there are findings
bool EscribirValidacionTexto(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos);
bool EscribirValidacionJson(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos);

std::string ImportacionTexto(const Importacion& importacion, const std::string& catalogo);
Json ImportacionJson(const TipoCatalogo& tipo, const Importacion& importacion, const std::string& catalogo);

std::string CecTexto(const ResultadoCec& resultado, const OpcionesCec& opciones, const std::string& catalogo);
Json CecJson(const ResultadoCec& resultado, const OpcionesCec& opciones, const std::string& catalogo);

}  // namespace efv::orden

// What the commands that check or extend a catalogue tell of their work.
#pragma once

#include <string>
#include <vector>

#include "catalogo/ficha.h"
#include "catalogo/importacion.h"
#include "catalogo/importacion_cec.h"

namespace efv::orden {

/// Exit status when models have findings.
inline constexpr int kConHallazgos = 1;

std::string HallazgosTexto(const std::vector<HallazgoModelo>& hallazgos);
Json HallazgosJson(const std::vector<HallazgoModelo>& hallazgos);

std::string ImportacionTexto(const Importacion& importacion, const std::string& catalogo);
Json ImportacionJson(const TipoCatalogo& tipo, const Importacion& importacion, const std::string& catalogo);

std::string CecTexto(const ResultadoCec& resultado, const OpcionesCec& opciones, const std::string& catalogo);
Json CecJson(const ResultadoCec& resultado, const OpcionesCec& opciones, const std::string& catalogo);

}  // namespace efv::orden

// Stretches of cable and tables of currents as text, JSON and CSV.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cable/lista.h"

namespace efv::orden {

enum class FormatoCable { texto, json, csv };

/// A stretch with what was asked for and what came out.
struct TramoEscrito {
    int iLinea = 0;  ///< of the list; 0 for one by itself
    TramoPedido pedido = {};
    electrical::TramoCable tramo = {};
    electrical::TramoCalculado calculo = {};
    std::string error = {};  ///< of a bad row; nothing is calculated then
};

/// Why its sections aren't enough; empty where all is well, and of a bad row.
std::string Motivo(const TramoEscrito& tramo);

/// Its figures by their names; null for what isn't known.
nlohmann::ordered_json TramoJson(const TramoEscrito& tramo);

std::string EscribirTramo(const TramoEscrito& tramo, FormatoCable formato);
std::string EscribirLista(const std::vector<TramoEscrito>& tramos, FormatoCable formato);
std::string EscribirTabla(const electrical::TramoCable& tramo, FormatoCable formato);

}  // namespace efv::orden

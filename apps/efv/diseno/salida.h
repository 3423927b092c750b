// What the two designs write alike.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <nlohmann/json.hpp>

#include <quorvel/registros.h>
#include <quorvel/report/disenos.h>

namespace efv::orden {

using JsonEscrito = nlohmann::ordered_json;

/// null for what isn't finite.
JsonEscrito NumeroJson(double d);
/// Every value by its name in the code.
JsonEscrito ValoresJson(const std::vector<CampoRegistroConst>& valores);
JsonEscrito AvisosJson(const std::vector<report::Aviso>& avisos);
/// Whether none of them tells of something that falls short or passes a limit.
bool SinFaltas(const std::vector<report::Aviso>& avisos);
/// Temperatures and limits, each {nombre, tipo, valor, limite, unidad, resultado}.
JsonEscrito ComprobacionJson(const report::TemperaturasCelulas& temperaturas,
                             const assistants::ComprobacionCampo& comprobacion);
/// The same with the ratio of the panels' power to the inverter's.
JsonEscrito ConRatio(const report::TemperaturasCelulas& temperaturas,
                     const assistants::ComprobacionCampo& comprobacion);
/// Null where the assistant's own proposal reaches the power and keeps to every limit. On a regulator there are
/// no inverters.
JsonEscrito PropuestaJson(const report::TemperaturasCelulas& temperaturas,
                          const std::optional<assistants::PropuestaComprobada>& propuesta);
/// @param necesaria kWh of each month; null without loads
JsonEscrito AnoJson(const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria);
JsonEscrito PlanosJson(const solar::EnergiaPlanos& energia);
JsonEscrito LugarJson(const report::LugarDiseno& lugar);

/// The record's items alone, as its Serialize writes them.
std::vector<std::byte> Archivar(CObject& registro);

}  // namespace efv::orden

// A study of self-consumption written for programs and spreadsheets.
#pragma once

#include <span>
#include <string>
#include <vector>

#include <quorvel/report/autoconsumo.h>

#include "diseno/salida.h"

namespace efv::orden {

JsonEscrito EstudioJson(const report::ProyectoAutoconsumo& proyecto, const report::EstudioAutoconsumo& estudio,
                        const std::vector<report::Aviso>& avisos,
                        std::span<const report::PuntoBarrido> barrido);

/// The 8760 hours.
std::string HorasCsv(const report::EstudioAutoconsumo& estudio);

}  // namespace efv::orden

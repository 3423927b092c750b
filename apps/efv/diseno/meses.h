// Month by month: radiation on the plane of the panels, energy of the field, what the loads need.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "diseno/documento.h"
#include "diseno/proyecto.h"

namespace efv::orden {

struct MesDiseno {
    double dHorizontal = 0.0;               ///< kWh/m²·day
    double dPlano = 0.0;                    ///< peak sun hours, kWh/m²·day
    double dProducida = 0.0;                ///< kWh of the month
    std::optional<double> dNecesaria = {};  ///< kWh of the month; nothing without loads
};

using AnoDiseno = std::array<MesDiseno, kMeses>;

/// The factors K of a place and tilt; empty where the table, which must be loaded, doesn't reach.
std::optional<std::array<double, kMeses>> FactoresK(const LugarProyecto& lugar, double dInclinacion);

/// The year of a field: peak sun hours × peak power × performance × days.
/// @param dPotencia kWp  @param dRendimiento fraction
AnoDiseno CalcularAno(const std::array<double, kMeses>& adHorizontal, const std::array<double, kMeses>& adPlano,
                      double dPotencia, double dRendimiento);

/// Table and charts of it.
Seccion SeccionMeses(const AnoDiseno& ano);

double TotalProducido(const AnoDiseno& ano);

/// Where the place stands and where its radiation comes from.
Seccion SeccionLugar(const LugarProyecto& lugar);

}  // namespace efv::orden

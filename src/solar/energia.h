// Radiation on a tilted field and energy of it, by correlation or by the table of factors K. Units and
// oddities stand with the exported functions.
#pragma once

#include <optional>
#include <span>

#include <quorvel/solar.h>
#include <quorvel/solar/energia.h>

namespace efv::solar {

/// What a query is asked. The orientation isn't here: no formula uses it.
struct ConsultaRadiacion {
    int iMetodo;
    double dLatitud;
    int iHemisferio;
    double dInclinacion;
    double dPotenciaPico;
    double dPR;
    double dFactorAdicional;
};

/// Peak sun hours of a plane: a horizontal radiation in kJ/m²·day by its factor, kWh/m²·day.
constexpr double HorasPico(double dRadHorizontal, double dK)
{
    return dRadHorizontal * dK / 3600;
}

// Each gives nothing when its query fails.

/// kWh/m²·day.
std::optional<double> RadiacionDia(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                   const CBaseFactorK& tabla);
/// kWh.
std::optional<double> EnergiaDia(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                 const CBaseFactorK& tabla);
/// kWh.
std::optional<double> EnergiaMes(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                 const CBaseFactorK& tabla);
/// kWh, from twelve radiations.
std::optional<double> EnergiaAno(const ConsultaRadiacion& c, std::span<const double, 12> adRadHorizontal,
                                 const CBaseFactorK& tabla);

}  // namespace efv::solar

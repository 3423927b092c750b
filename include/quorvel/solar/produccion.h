// What a field of panels gives in each hour of the year.
#pragma once

#include <span>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/solar/planos.h>

namespace efv::solar {

/// kWh of the 8760 hours from 1 January, by the sun: radiation on each plane × its share of the power,
/// performance ratio and factor. The months of a clear sky are scaled to the place's twelve radiations, so that
/// they sum to those of CalcularPlanos; a month whose radiation contradicts the latitude is not-a-number.
/// @param campo its own tilt isn't used  @param dAltitud m
EFV_API std::vector<double> HorasDeLosPlanos(const CampoSolar& campo, double dAltitud,
                                             std::span<const PlanoCampo> planos, OrigenHoras origen);

}  // namespace efv::solar

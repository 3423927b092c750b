// One year of a sale to the grid, out of the year before it.
#pragma once

#include <quorvel/economics.h>

namespace efv::economics {

/// What a year takes over from the one before.
struct AnoAnterior {
    double dEnergia, dPrima, dAcumulado;
};

struct AnoVenta {
    double dEnergia, dPrima, dIngresos, dCuota, dMantenimiento, dCashFlow, dAcumulado;
};

/// @param iAno from 0  @param anterior null in the first year
AnoVenta CalcularAno(const CSFVCalculoEconomico& estudio, int iAno, const AnoAnterior* anterior);

}  // namespace efv::economics

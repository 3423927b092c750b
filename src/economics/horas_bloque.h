// Walk over the hours that exist in an hourly year block, in calendar order.
#pragma once

#include <cstddef>

#include "solar/calendario.h"

namespace efv::economics {

inline constexpr std::size_t kHorasMesBloque = std::size_t{31} * 24;

struct TramoHoras {
    std::size_t iPrimera, iFin;
};

/// Hours of month `m` (0 to 11): its days stand one after the other from the month's start.
constexpr TramoHoras HorasDelMes(std::size_t m)
{
    const std::size_t iPrimera = m * kHorasMesBloque;
    return {iPrimera, iPrimera + static_cast<std::size_t>(solar::kDiasMesReferencia[m]) * 24};
}

/// Place of the first hour of day `iDia` (from 0) of month `iMes`.
constexpr std::size_t PrimeraHora(int iMes, int iDia)
{
    return static_cast<std::size_t>(iMes) * kHorasMesBloque + static_cast<std::size_t>(iDia) * 24;
}

/// The day stands in the reference year.
constexpr bool ExisteDia(int iMes, int iDia)
{
    return iMes >= 0 && iMes < 12 && iDia >= 0 &&
           iDia < solar::kDiasMesReferencia[static_cast<std::size_t>(iMes)];
}

}  // namespace efv::economics

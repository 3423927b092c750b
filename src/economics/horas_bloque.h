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

}  // namespace efv::economics

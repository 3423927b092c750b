// The readings of a day's bands of use. Four questions, four rules that differ on purpose at the edges of
// the bands and in which band is compared with which: none may stand in for another.
#pragma once

#include <array>
#include <span>

namespace efv::consumption {

/// Start and end of three bands, minutes since midnight.
using Franjas = std::span<const double, 6>;

/// Hours of use of the day, the energy of a load. An invalid band, or one that starts before the first has
/// ended, ends the sum: later bands aren't looked at. The third is compared with the first, never with the
/// second, and counts in full where they overlap.
double HorasDeUso(Franjas f);

/// Fraction of the hour in use by whole minutes, the hourly year. Bands exclude their end. An invalid band
/// stops nothing; the third must start after both others have ended.
double FraccionDeHora(Franjas f, int iHora);

/// FraccionDeHora of the 24 hours at once, the same bits.
std::array<double, 24> FraccionesDelDia(Franjas f);

/// In use at the minute, the chart of a day. Bands **include** their end; else as FraccionDeHora.
bool EnUsoAlMinuto(Franjas f, int iMinuto);

/// Hours that the load's own dialog shows. An empty band stops nothing, and the third is compared with the
/// second alone.
double HorasMostradas(Franjas f);

}  // namespace efv::consumption

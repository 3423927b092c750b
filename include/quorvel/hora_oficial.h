// Civil dates and the official time of Spain against the hours of the sun.
//
// A day is counted from 1 January 1970, an hour of universal time likewise. Summer time runs from the last
// Sunday of March to that of October, from 1 to 1 of universal time, as since 1996.
#pragma once

#include <quorvel/exportar.h>

namespace efv {

struct FechaCivil {
    int iAno = 1970;
    int iMes = 1;  ///< 1 to 12
    int iDia = 1;  ///< 1 to 31

    bool operator==(const FechaCivil&) const = default;
};

/// True for a date that the calendar has, of the years 1970 to 9999.
EFV_API bool EsFechaCivil(const FechaCivil& fecha);
/// @pre EsFechaCivil(fecha)
EFV_API int DiaDeFecha(const FechaCivil& fecha);
EFV_API FechaCivil FechaDeDia(int iDia);
/// 0 Monday to 6 Sunday.
EFV_API int TipoDeDiaCivil(int iDia);

enum class HusoOficial {
    peninsula,  ///< the Balearic Islands, Ceuta and Melilla too
    canarias
};

/// Hours that the official day has: 24, the last Sunday of March 23, that of October 25.
EFV_API int HorasDelDiaOficial(int iDia);

/// The hour of universal time in which the `iOrden`-th hour (from 0) of an official day begins.
EFV_API int HoraUniversal(int iDia, int iOrden, HusoOficial huso);

/// What the clock says at the beginning of an hour of universal time.
struct HoraOficial {
    int iDia;
    int iHora;  ///< 0 to 23
};
EFV_API HoraOficial RelojOficial(int iHoraUniversal, HusoOficial huso);

/// Whole hours from universal time to the sun's mean time at a longitude (degrees, east positive), the nearest:
/// no hour of a meter is split.
EFV_API int DesfaseSolar(double dLongitud);

/// The zone of a Spanish longitude.
EFV_API HusoOficial HusoDeLongitud(double dLongitud);

/// Longitude that counts where none is given: the middle of Spain.
inline constexpr double kLongitudHabitual = -3.7;

}  // namespace efv

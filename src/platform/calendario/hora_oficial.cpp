#include <quorvel/hora_oficial.h>

#include <chrono>
#include <cmath>

namespace efv {

namespace {

using namespace std::chrono;

constexpr int kHorasDia = 24;
constexpr double kGradosHora = 15.0;
// Between Cádiz, -7, and La Palma and Lanzarote, -18 to -13.4.
constexpr double kLimiteCanarias = -12.0;
// Hour of universal time in which summer time begins and ends.
constexpr int kHoraDelCambio = 1;

int UltimoDomingo(int iAno, month mes)
{
    return static_cast<int>(sys_days{year{iAno} / mes / Sunday[last]}.time_since_epoch().count());
}

int EnteroHaciaAbajo(int iDividendo, int iDivisor)
{
    const int iResto = iDividendo % iDivisor;
    return iDividendo / iDivisor - (iResto < 0 ? 1 : 0);
}

bool EsVerano(int iHoraUniversal)
{
    const int iAno = FechaDeDia(EnteroHaciaAbajo(iHoraUniversal, kHorasDia)).iAno;
    return iHoraUniversal >= UltimoDomingo(iAno, March) * kHorasDia + kHoraDelCambio &&
           iHoraUniversal < UltimoDomingo(iAno, October) * kHorasDia + kHoraDelCambio;
}

int DesfaseInvierno(HusoOficial huso)
{
    return huso == HusoOficial::peninsula ? 1 : 0;
}

}  // namespace

bool EsFechaCivil(const FechaCivil& fecha)
{
    // std::chrono keeps a month and a day in a byte: 275 would be 19.
    if (fecha.iAno < 1970 || fecha.iAno > 9999 || fecha.iMes < 1 || fecha.iMes > 12 || fecha.iDia < 1 ||
        fecha.iDia > 31)
        return false;
    return year_month_day{year{fecha.iAno}, month{static_cast<unsigned>(fecha.iMes)},
                          day{static_cast<unsigned>(fecha.iDia)}}
        .ok();
}

int DiaDeFecha(const FechaCivil& fecha)
{
    const year_month_day dia{year{fecha.iAno}, month{static_cast<unsigned>(fecha.iMes)},
                             day{static_cast<unsigned>(fecha.iDia)}};
    return static_cast<int>(sys_days{dia}.time_since_epoch().count());
}

FechaCivil FechaDeDia(int iDia)
{
    const year_month_day fecha{sys_days{days{iDia}}};
    return {static_cast<int>(fecha.year()), static_cast<int>(static_cast<unsigned>(fecha.month())),
            static_cast<int>(static_cast<unsigned>(fecha.day()))};
}

int TipoDeDiaCivil(int iDia)
{
    return static_cast<int>(weekday{sys_days{days{iDia}}}.iso_encoding()) - 1;
}

int HorasDelDiaOficial(int iDia)
{
    const int iAno = FechaDeDia(iDia).iAno;
    if (iDia == UltimoDomingo(iAno, March))
        return kHorasDia - 1;
    return iDia == UltimoDomingo(iAno, October) ? kHorasDia + 1 : kHorasDia;
}

int HoraUniversal(int iDia, int iOrden, HusoOficial huso)
{
    // A day begins before the change that it may bring.
    const int iMedianoche = iDia * kHorasDia - DesfaseInvierno(huso);
    return iMedianoche - (EsVerano(iMedianoche - 1) ? 1 : 0) + iOrden;
}

HoraOficial RelojOficial(int iHoraUniversal, HusoOficial huso)
{
    const int iHora = iHoraUniversal + DesfaseInvierno(huso) + (EsVerano(iHoraUniversal) ? 1 : 0);
    const int iDia = EnteroHaciaAbajo(iHora, kHorasDia);
    return {iDia, iHora - iDia * kHorasDia};
}

int DesfaseSolar(double dLongitud)
{
    return static_cast<int>(std::lround(dLongitud / kGradosHora));
}

HusoOficial HusoDeLongitud(double dLongitud)
{
    return dLongitud < kLimiteCanarias ? HusoOficial::canarias : HusoOficial::peninsula;
}

}  // namespace efv

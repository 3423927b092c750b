#include "solar/calendario.h"

#include <array>
#include <chrono>
#include <span>

#include <quorvel/reloj.h>

#include "platform/calendario/ano_comun.h"

namespace efv::solar {

int HoraDelDia(int iHoraAno)
{
    return iHoraAno >= kHorasAno ? -1 : iHoraAno % 24;
}

int MesDeHora(int iHoraAno)
{
    if (iHoraAno >= kHorasAno)
        return -1;
    int iMes = 0;
    for (int fin = kDiasMesReferencia[0] * 24; iHoraAno >= fin;
         fin += kDiasMesReferencia[static_cast<std::size_t>(iMes)] * 24)
        ++iMes;
    return iMes;
}

int DiaDelMes(int iHoraAno)
{
    if (iHoraAno >= kHorasAno)
        return -1;
    int iDia = iHoraAno / 24;
    for (int iMes = MesDeHora(iHoraAno) - 1; iMes >= 0; --iMes)
        iDia -= kDiasMesReferencia[static_cast<std::size_t>(iMes)];
    return iDia;
}

int AnoActual()
{
    const auto ahora = LeerReloj();
    return ahora ? ahora->iAno : -1;
}

bool EsBisiesto(int iAno)
{
    return iAno % 4 == 0;
}

int DiasMes(int iAno, int iMes)
{
    if (iMes < 0 || iMes > 11)
        return 0;
    return iMes == 1 && EsBisiesto(iAno) ? 29 : kDiasMesReferencia[static_cast<std::size_t>(iMes)];
}

int TipoDia(int iAno, int iMes, int iDia)
{
    using namespace std::chrono;
    if (iAno < 1 || iAno > 9999 || iMes < 0 || iMes > 11 || iDia < 0 || iDia > 30)
        return -1;
    const year_month_day fecha{year{iAno}, month{static_cast<unsigned>(iMes) + 1},
                               day{static_cast<unsigned>(iDia) + 1}};
    if (!fecha.ok())
        return -1;
    return static_cast<int>(weekday{sys_days{fecha}}.iso_encoding()) - 1;
}

int TipoDiaDelAno(int iAno, int iDiaAno)
{
    int acumulado = 0;
    for (int iMes = 0; iMes < 12; ++iMes) {
        acumulado += kDiasMesReferencia[static_cast<std::size_t>(iMes)];
        if (acumulado < iDiaAno)
            continue;
        // Counted back from the month's end: its first day of the year is its last of the month. The day
        // from 0 is beyond any month for a day of the year of 0 or below.
        return iDiaAno > 0 ? TipoDia(iAno, iMes, acumulado - iDiaAno) : -1;
    }
    return 0;
}

int TipoDiaReferencia(int iMes, int iDia)
{
    if (iMes < 0 || iMes > 11 || iDia < 0 || iDia >= kDiasMesReferencia[static_cast<std::size_t>(iMes)])
        return 0;
    int dias = iDia;
    for (int i = 0; i < iMes; ++i)
        dias += kDiasMesReferencia[static_cast<std::size_t>(i)];
    return dias % 7;
}

namespace {

static_assert(calendario::kDiasMes == kDiasMesReferencia);

// What stands behind the twelve months in lists of them.
constexpr auto kTrasLosMeses = std::to_array<std::wstring_view>({L"Anual", L"Favorable", L"Desfavorable"});

constexpr auto kNombresMesCorto =
    std::to_array<std::wstring_view>({L"ENE", L"FEB", L"MAR", L"ABR", L"MAY", L"JUN", L"JUL", L"AGO", L"SEP",
                                      L"OCT", L"NOV", L"DIC", L"ANU", L"FAV", L"DFA"});

std::wstring_view Nombre(std::span<const std::wstring_view> nombres, int i)
{
    return i >= 0 && static_cast<std::size_t>(i) < nombres.size() ? nombres[static_cast<std::size_t>(i)]
                                                                  : std::wstring_view();
}

}  // namespace

std::wstring_view NombreDia(int iTipoDia)
{
    return Nombre(calendario::kNombresDia, iTipoDia);
}

std::wstring_view NombreMes(int iMes)
{
    constexpr int nMeses = calendario::kNombresMes.size();
    return iMes < nMeses ? Nombre(calendario::kNombresMes, iMes) : Nombre(kTrasLosMeses, iMes - nMeses);
}

std::wstring_view NombreMesCorto(int iMes)
{
    return Nombre(kNombresMesCorto, iMes);
}

}  // namespace efv::solar

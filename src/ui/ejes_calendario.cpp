#include "ui/ejes_calendario.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include <fmt/xchar.h>

#include "platform/calendario/ano_comun.h"

namespace efv::ui {

namespace {

using calendario::kDiasAno;
using calendario::kDiasMes;
using calendario::kNombresDia;
using calendario::kNombresMes;

// Extents beyond these aren't of the class: marks would be without end or counts no longer exact.
constexpr double kMayorCuenta = 1e6;
constexpr double kBandasMax = 120.0;
constexpr double kHorasMax = 400.0;
constexpr double kHorasMin = 2.0;
constexpr double kFechasMax = 1100.0;
constexpr double kFechasMin = 2.0;
constexpr double kFechasPorDias = 62.0;
constexpr std::size_t kLetrasCortas = 3;
// A value this near to a mark, in steps, stands on it.
constexpr double kHolgura = 1e-9;

// The smallest of the steps, or a multiple of the last, that leaves about as many divisions as asked for.
double PasoContado(std::span<const double> pasos, double dAncho, int iDivisiones)
{
    const double dBruto = 0.8 * dAncho / iDivisiones;
    for (const double dPaso : pasos)
        if (dPaso >= dBruto)
            return dPaso;
    return pasos.back() * std::ceil(dBruto / pasos.back());
}

void PonerMultiplos(Eje& eje)
{
    for (double d = std::ceil(eje.dMin / eje.dPaso - kHolgura) * eje.dPaso;
         d <= eje.dMax + kHolgura * eje.dPaso; d += eje.dPaso)
        eje.adMarcas.push_back(d + 0.0);
}

// Place of a count from 1 in a cycle, from 0.
std::size_t EnCiclo(double d, std::size_t n)
{
    const auto iCuantos = static_cast<long long>(n);
    const long long i = (static_cast<long long>(std::floor(d)) - 1) % iCuantos;
    return static_cast<std::size_t>(i < 0 ? i + iCuantos : i);
}

Eje EjeDeBandas(ClaseEje clase, double dMin, double dMax)
{
    const auto dCiclo = static_cast<double>(clase == ClaseEje::mes ? kNombresMes.size() : kNombresDia.size());
    Eje eje;
    eje.clase = clase;
    eje.dPaso = 1.0;
    eje.dMin = std::floor(dMin + 0.5) - 0.5;
    eje.dMax = std::max(std::ceil(dMax - 0.5) + 0.5, eje.dMin + 1.0);
    if (eje.dMin >= 0.5 && eje.dMax <= dCiclo + 0.5) {
        eje.dMin = 0.5;
        eje.dMax = dCiclo + 0.5;
    }
    PonerMultiplos(eje);
    return eje;
}

Eje EjeDeHoras(double dMin, double dMax, int iDivisiones)
{
    static constexpr std::array<double, 6> kPasos{1, 2, 3, 6, 12, 24};
    Eje eje;
    eje.clase = ClaseEje::hora;
    eje.dMin = dMin;
    eje.dMax = dMax;
    eje.dPaso = PasoContado(kPasos, dMax - dMin, iDivisiones);
    PonerMultiplos(eje);
    return eje;
}

Eje EjeDeFechas(double dMin, double dMax, int iDivisiones)
{
    static constexpr std::array<double, 5> kPasos{1, 2, 5, 7, 14};
    Eje eje;
    eje.clase = ClaseEje::fecha;
    eje.dMin = dMin;
    eje.dMax = dMax;
    if (dMax - dMin <= kFechasPorDias) {
        eje.dPaso = PasoContado(kPasos, dMax - dMin, iDivisiones);
        PonerMultiplos(eje);
        return eje;
    }
    eje.dPaso = static_cast<double>(*std::ranges::min_element(kDiasMes));
    double d = std::floor((dMin - 1.0) / kDiasAno) * kDiasAno + 1.0;
    for (std::size_t iMes = 0; d <= dMax; d += kDiasMes[iMes], iMes = (iMes + 1) % kDiasMes.size())
        if (d >= dMin)
            eje.adMarcas.push_back(d);
    return eje;
}

struct Fecha {
    int iDia;  // from 1
    std::wstring_view mes;
};

Fecha FechaDe(double d)
{
    int iDia = static_cast<int>(EnCiclo(d, kDiasAno));
    std::size_t iMes = 0;
    for (; iDia >= kDiasMes[iMes]; ++iMes)
        iDia -= kDiasMes[iMes];
    return {iDia + 1, kNombresMes[iMes]};
}

CString EnMinusculas(std::wstring_view nombre)
{
    CString texto(nombre);
    // A month's first letter is plain ASCII.
    texto[0] = static_cast<wchar_t>(texto[0] - L'A' + L'a');
    return texto;
}

// "8 h"; minutes only where there are some.
CString RotuloHora(double dHoras)
{
    const auto iMinutos = static_cast<long long>(std::lround(dHoras * 60.0));
    if (iMinutos % 60 == 0)
        return fmt::format(L"{} h", iMinutos / 60);
    return fmt::format(L"{}{}:{:02} h", iMinutos < 0 ? L"-" : L"", std::abs(iMinutos / 60),
                       std::abs(iMinutos % 60));
}

std::wstring_view NombreDeBanda(const Eje& eje, double d)
{
    return eje.clase == ClaseEje::mes ? kNombresMes[EnCiclo(d + 0.5, kNombresMes.size())]
                                      : kNombresDia[EnCiclo(d + 0.5, kNombresDia.size())];
}

}  // namespace

std::optional<Eje> EjeDeCalendario(ClaseEje clase, double dMin, double dMax, int iDivisiones)
{
    const double dAncho = dMax - dMin;
    if (!(dAncho >= 0.0) || std::abs(dMin) > kMayorCuenta || std::abs(dMax) > kMayorCuenta)
        return std::nullopt;
    if ((clase == ClaseEje::mes || clase == ClaseEje::diaSemana) && dAncho <= kBandasMax)
        return EjeDeBandas(clase, dMin, dMax);
    if (clase == ClaseEje::hora && dAncho >= kHorasMin && dAncho <= kHorasMax)
        return EjeDeHoras(dMin, dMax, iDivisiones);
    if (clase == ClaseEje::fecha && dAncho >= kFechasMin && dAncho <= kFechasMax)
        return EjeDeFechas(dMin, dMax, iDivisiones);
    return std::nullopt;
}

CString RotuloDeCalendario(const Eje& eje, double d, bool bLargo)
{
    if (eje.DeBandas())
        return CString(NombreDeBanda(eje, d).substr(0, bLargo ? CString::npos : kLetrasCortas));
    if (eje.clase == ClaseEje::hora)
        return RotuloHora(d);
    const Fecha fecha = FechaDe(d);
    return fmt::format(L"{} {}", fecha.iDia, EnMinusculas(fecha.mes.substr(0, kLetrasCortas)));
}

CString LecturaDeCalendario(const Eje& eje, double d, bool bConHora)
{
    if (eje.DeBandas()) {
        CString csBanda(NombreDeBanda(eje, d));
        if (eje.clase == ClaseEje::mes || !bConHora)
            return csBanda;
        return csBanda + L", " + RotuloHora(24.0 * (d + 0.5 - std::floor(d + 0.5)));
    }
    if (eje.clase == ClaseEje::hora)
        return RotuloHora(d);
    const Fecha fecha = FechaDe(d);
    return fmt::format(L"{} de {}", fecha.iDia, EnMinusculas(fecha.mes));
}

}  // namespace efv::ui

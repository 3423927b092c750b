#include "consumption/nombres.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/framework/CArray.h>

#include "solar/calendario.h"

namespace efv::consumption {

namespace {

constexpr int kAnoReferencia = 2018;  // of the weekdays on view: 365 days from a Monday

}  // namespace

std::vector<CString> NombresDeDias()
{
    std::vector<CString> nombres;
    nombres.reserve(7);
    for (int i = 0; i < 7; ++i)
        nombres.emplace_back(solar::NombreDia(i));
    return nombres;
}

std::vector<CString> NombresDeMeses()
{
    std::vector<CString> nombres;
    nombres.reserve(12);
    for (int i = 0; i < 12; ++i)
        nombres.emplace_back(solar::NombreMes(i));
    return nombres;
}

std::vector<CString> DiasDelMes(int iMes)
{
    efv::ComprobarIndice(iMes, solar::kDiasMesReferencia.size());
    const int nDias = solar::kDiasMesReferencia[static_cast<std::size_t>(iMes)];
    std::vector<CString> dias;
    dias.reserve(static_cast<std::size_t>(nDias));
    for (int iDia = 0; iDia < nDias; ++iDia)
        dias.push_back(
            fmt::format(L"{} ({})", iDia + 1, solar::NombreDia(solar::TipoDia(kAnoReferencia, iMes, iDia))));
    return dias;
}

}  // namespace efv::consumption

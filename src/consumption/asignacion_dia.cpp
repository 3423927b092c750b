#include "consumption/asignacion_dia.h"

#include <algorithm>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "solar/calendario.h"

namespace efv::consumption {

std::vector<CString> TextosDeAlcance(int iMes, int iDia)
{
    const std::wstring_view mes = solar::NombreMes(iMes);
    return {fmt::format(L"Solo el día {} de {}", iDia + 1, mes),
            fmt::format(L"Todos los días {}", mes),
            fmt::format(L"Todos los días laborables de {}", mes),
            fmt::format(L"Todos los fines de semana de {}", mes),
            L"Todos los días del año",
            L"Todos los días laborables del año",
            L"Todos los fines de semana del año"};
}

bool EsDestino(Alcance alcance, int iMes, int iDia, int iMesDestino, int iDiaDestino)
{
    const bool bEnMes = iMesDestino == iMes;
    const bool bLaborable = solar::TipoDiaReferencia(iMesDestino, iDiaDestino) < 5;
    switch (alcance) {
        case Alcance::dia:
            return bEnMes && iDiaDestino == iDia;
        case Alcance::mes:
            return bEnMes;
        case Alcance::laborablesDelMes:
            return bEnMes && bLaborable;
        case Alcance::finesDeSemanaDelMes:
            return bEnMes && !bLaborable;
        case Alcance::ano:
            return true;
        case Alcance::laborablesDelAno:
            return bLaborable;
        case Alcance::finesDeSemanaDelAno:
            return !bLaborable;
    }
    return false;
}

void AsignarDia(DiaHorarioVista dia, Alcance alcance, int iMes, int iDia, const HorasDelDia& horas)
{
    for (int h = 0; h < solar::kHorasAno; h += 24) {
        const int m = solar::MesDeHora(h);
        const int d = solar::DiaDelMes(h);
        if (EsDestino(alcance, iMes, iDia, m, d))
            std::ranges::copy(dia, horas(m, d).begin());
    }
}

std::array<std::optional<CString>, 24> CeldasPegadas(std::wstring_view texto)
{
    std::array<std::optional<CString>, 24> celdas;
    std::size_t i = 0;
    CString celda;
    const auto cerrar = [&] {
        if (!celda.empty())
            celdas[i] = std::exchange(celda, {});
        ++i;
    };
    while (!texto.empty() && i < celdas.size()) {
        const bool bFinDeLinea = texto.starts_with(L"\r\n");
        if (bFinDeLinea || texto[0] == L'\t')
            cerrar();
        else if (texto[0] != L'\r' && texto[0] != L'\n')
            celda += texto[0];
        texto.remove_prefix(bFinDeLinea ? 2 : 1);
    }
    if (i < celdas.size())
        cerrar();
    return celdas;
}

}  // namespace efv::consumption

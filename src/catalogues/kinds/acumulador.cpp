#include "catalogues/kinds/acumulador.h"

#include <utility>

#include "catalogues/format/catalogo.h"

namespace efv::catalogues {

std::optional<CCtrlCurva2D> FormatoCatalogo<CBaseAcumuladorModelo>::Grafica(const M& modelo)
{
    constexpr auto kHoras = std::to_array<std::pair<double, double M::*>>({{1.0, &M::dCapC1},
                                                                           {5.0, &M::dCapC5},
                                                                           {10.0, &M::dCapC10},
                                                                           {20.0, &M::dCapC20},
                                                                           {100.0, &M::dCapC100},
                                                                           {120.0, &M::dCapC120}});
    ui::SerieCurva serie{.adX = {}, .adY = {}, .color = ui::kAzul, .iAncho = 2};
    for (const auto& [dHoras, capacidad] : kHoras) {
        if (modelo.*capacidad <= 0.0)
            continue;
        serie.adX.push_back(dHoras);
        serie.adY.push_back(modelo.*capacidad);
    }
    if (serie.adX.size() < 2)
        return std::nullopt;
    CCtrlCurva2D grafica;
    grafica.csTitulo = L"Capacidad según la descarga";
    grafica.csTituloX = L"Descarga (h)";
    grafica.csTituloY = L"Capacidad (Ah)";
    grafica.aSeries.push_back(std::move(serie));
    return grafica;
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBaseAcumuladorModelo>;
template class CFamiliaCatalogo<CBaseAcumuladorModelo>;
template class CBaseCatalogo<CBaseAcumuladorModelo>;

#include "module/ordenes.h"

#include <utility>

#include <quorvel/electrical.h>

#include "electrical/graficas_dialogo.h"

namespace efv::module {

namespace {

void Mostrar(GraficasPanel graficas)
{
    CDlgItemDatosGraficaPanelFoto(std::move(graficas)).Mostrar();
}

}  // namespace

template <>
catalogues::OrdenesModelo<CBasePanelFotoModelo> Ordenes()
{
    return {
        .curvasATemperaturaConstante =
            [](const CBasePanelFotoModelo& m) { Mostrar(GraficasATemperaturaConstante(m)); },
        .curvasAIrradiacionConstante =
            [](const CBasePanelFotoModelo& m) { Mostrar(GraficasAIrradiacionConstante(m)); },
    };
}

}  // namespace efv::module

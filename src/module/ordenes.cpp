#include "module/ordenes.h"

#include <utility>

#include <quorvel/electrical.h>

#include "electrical/graficas_dialogo.h"
#include "platform/unidades/unidades.h"

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
        .grafica =
            [](const CBasePanelFotoModelo& m) {
                CCtrlCurva2D grafica = GraficasATemperaturaConstante(m).corriente;
                grafica.csTitulo = L"Curvas I-V a " + unidades::cuCadena(L"Temperatura", 25.0, 0);
                return grafica;
            },
    };
}

}  // namespace efv::module

// Commands of a dialog that belong to a later layer than the dialog.
#include <quorvel/electrical.h>

#include "catalogues/panel_foto_dialogo.h"
#include "electrical/graficas_dialogo.h"

namespace {

void Mostrar(efv::GraficasPanel graficas)
{
    CDlgItemDatosGraficaPanelFoto(std::move(graficas)).Mostrar();
}

bool ConectarOrdenes()
{
    CDlgItemDatosPanelFoto::ComandosGraficos() = {
        [](const CBasePanelFotoModelo& m) { Mostrar(efv::GraficasATemperaturaConstante(m)); },
        [](const CBasePanelFotoModelo& m) { Mostrar(efv::GraficasAIrradiacionConstante(m)); },
    };
    return true;
}

const bool kConectadas = ConectarOrdenes();

}  // namespace

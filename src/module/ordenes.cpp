// Commands of a dialog that belong to a later layer than the dialog.
#include "catalogues/panel_foto_dialogo.h"
#include "electrical/graficas_dialogo.h"

namespace {

using efv::electrical::GraficasModulo;
using efv::electrical::HojaModulo;

HojaModulo HojaDe(const CBasePanelFotoModelo& m)
{
    return {.dPmpm = m.dPmpm,
            .dVmpm = m.dVmpm,
            .dImpm = m.dImpm,
            .dVoc = m.dVoc,
            .dIsc = m.dIsc,
            .dCTVoc = m.dCTVoc,
            .dCTIsc = m.dCTIsc,
            .dCTPmpm = m.dCTPmpm,
            .iNs = m.iNs,
            .iNp = m.iNp};
}

void Mostrar(GraficasModulo graficas)
{
    CDlgItemDatosGraficaPanelFoto(std::move(graficas)).Mostrar();
}

bool ConectarOrdenes()
{
    CDlgItemDatosPanelFoto::ComandosGraficos() = {
        [](const CBasePanelFotoModelo& m) {
            Mostrar(efv::electrical::GraficasTConstante(HojaDe(m), m.csModelo, L"25 ºC"));
        },
        [](const CBasePanelFotoModelo& m) {
            Mostrar(efv::electrical::GraficasGConstante(HojaDe(m), m.csModelo));
        },
    };
    return true;
}

const bool kConectadas = ConectarOrdenes();

}  // namespace

// Rows of a PV module that more than one dialog shows.
#pragma once

#include <quorvel/catalogues/panel_foto.h>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/panel_foto.h"

namespace efv::catalogues {

/// The values at standard conditions.
inline constexpr auto kElectricosPanel = ui::Campos<CBasePanelFotoModelo>({
    {&CBasePanelFotoModelo::dVsmax, L"Tensión máxima del sistema [Vsmax] (V):", {0, 10000}},
    {&CBasePanelFotoModelo::dPmpm, L"Potencia máxima [Pmpm] (W):", {0, 15000}},
    {&CBasePanelFotoModelo::dVmpm, L"Tensión en máxima potencia [Vmpm] (V):", {0, 15000}},
    {&CBasePanelFotoModelo::dImpm, L"Corriente en máxima potencia [Impm] (A):", {0, 5000}},
    {&CBasePanelFotoModelo::dVoc, L"Tensión a circuito abierto [Voc] (V):", {0, 15000}},
    {&CBasePanelFotoModelo::dIsc, L"Corriente en cortocircuito [Isc] (A):", {0, 5000}},
});

}  // namespace efv::catalogues

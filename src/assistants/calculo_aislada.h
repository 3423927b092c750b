// What only the dialog needs of the sizing of a stand-alone installation, a steady-state balance between
// loads, batteries and panels.
#pragma once

#include <quorvel/assistants_calculo.h>

#include "assistants/equipos.h"

namespace efv::assistants {

/// The shorter calculation of row spacing and areas at the tilt in force, from the panel's own length,
/// however it is disposed.
void EspaciarFilas(ValoresAislada& v, const CBasePanelFotoModelo& panel);

/// The battery's self-discharge at its temperature (`dKaAjustado`) and overall performance (`dR`), from
/// its coefficients. No other result depends on them.
void CalcularCoeficientes(CSFVAsistenteAislada& v);

}  // namespace efv::assistants

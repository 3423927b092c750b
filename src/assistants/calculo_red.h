// What only the dialog needs of the sizing of a grid-connected installation: how many inverters for a
// power, and which panel field on each.
#pragma once

#include <quorvel/assistants_calculo.h>

#include "assistants/equipos.h"

namespace efv::assistants {

/// Row spacing at the tilt in force. False, with nothing changed, for a panel without length.
bool EspaciarFilas(ValoresRed& v);

}  // namespace efv::assistants

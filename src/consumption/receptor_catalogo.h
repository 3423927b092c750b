// What the load catalogue knows of a load.
#pragma once

#include <quorvel/consumption.h>

class CBaseReceptores;

namespace efv::consumption {

/// Fills manufacturer, power, voltages, efficiency, supply and luminaire from the catalogue's model.
/// @return false, nothing written, when the catalogue doesn't have it
bool RefrescarDeCatalogo(CSFVDataReceptor& receptor, const CBaseReceptores& base);

}  // namespace efv::consumption

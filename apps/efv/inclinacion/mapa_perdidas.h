// What every tilt and azimuth loses in a year, as a picture.
#pragma once

#include <string>

#include "inclinacion/sitio.h"

namespace efv::orden {

/// An SVG document of the losses in % against `dRadOptima` (Wh/m² of the year) over azimuths from -180 to 180
/// and tilts from 0 to 90. @param csTitulo its heading
std::string MapaDePerdidas(const SitioPedido& sitio, double dRadOptima, const std::string& csTitulo);

}  // namespace efv::orden

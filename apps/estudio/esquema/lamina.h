// The library's drawing of a schematic, named here.
#pragma once

#include <quorvel/report/lamina.h>

#include "esquema/esquema.h"

namespace efv::estudio {

namespace trazo = report::trazo;
using report::Dibujar;
using report::EscribirSvg;
using report::Lamina;
using report::PiezasDibujadas;
using report::Punto;
using report::Tinta;
using report::Trazo;
using report::Zona;

}  // namespace efv::estudio

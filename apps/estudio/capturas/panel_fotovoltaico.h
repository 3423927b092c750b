// An array of panels to take pictures of.
#pragma once

namespace efv::estudio {

/// Opens its dialog: four panels in a square, each pair behind a micro-inverter, in Madrid.
void AbrirPanelFotovoltaico();

}  // namespace efv::estudio

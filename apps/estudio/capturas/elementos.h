// The dialogs of an installation's elements, with data of a house and of a roof.
#pragma once

namespace efv::estudio {

/// Battery with a model, converter, box, node, auxiliary element, grid.
void AbrirElementos();
/// A charge regulator, and a hybrid one.
void AbrirReguladores();
/// An inverter of the grid, and a stand-alone one.
void AbrirInversores();
void AbrirRotulacion();

}  // namespace efv::estudio

// How the panels of an array stand: the picture of it, and what a square takes.
#pragma once

#include <string_view>

namespace efv::elements {

enum Montaje : int { ancho, alto, cuadro };

/// Name of the picture; empty for an orientation or mounting that there isn't. One panel, or fewer, stands
/// alone.
std::wstring_view ImagenDeMontaje(int iOrientacion, int iMontaje, int nPaneles);

/// As many rows as columns.
bool EsCuadrado(int nPaneles);

}  // namespace efv::elements

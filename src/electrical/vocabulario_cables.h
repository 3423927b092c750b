// What stretches, installation methods, insulations and materials of cables are called.
#pragma once

#include <string_view>

namespace efv::electrical {

// Each gives an empty text for an index that it doesn't have, but for materials: 0 is copper, every other
// index aluminium.

std::wstring_view NombreTramo(int iTipo);
std::wstring_view NombreMetodo(int iMetodo);
std::wstring_view NombreLargoMetodo(int iMetodo);
std::wstring_view NombreAislante(int iAislante);
std::wstring_view NombreLargoAislante(int iAislante);
std::wstring_view NombreMaterial(int iMaterial);
std::wstring_view NombreLargoMaterial(int iMaterial);

}  // namespace efv::electrical

// Which views get a place together: a field with what stands on its line, a row of buttons, a group.
#pragma once

#include <string_view>
#include <vector>

#include "qt/vistas.h"

namespace efv::qt {

struct Puesto {
    std::vector<Vista*> vistas;  ///< of a group: all of its content
    std::wstring_view grupo;     ///< its caption; empty for no group
    int iColumna = 0;
};

/// In the order of their first views. Within a group the groups of the hints are no longer looked at.
std::vector<Puesto> Reunir(const std::vector<Vista*>& vistas, bool bDentroDeGrupo);

/// A button, of whatever kind.
bool EsBoton(const Vista& vista);

/// A button that is a picture to be looked at.
bool EsImagenGrande(const Vista& vista);

}  // namespace efv::qt

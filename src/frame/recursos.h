// Texts by number, and the scope that makes this module's texts the ones that are found.
#pragma once

#include <span>
#include <string_view>

#include <quorvel/framework/CString.h>

#include "resources/tabla_cadenas.h"

namespace efv::frame {

/// Resources of one module of the process; here its string table.
using ManejadorRecursos = std::span<const recursos::Cadena>;

/// This module's own resources.
inline constexpr ManejadorRecursos hInstanciaModulo = recursos::kCadenas;

/// The resources in force; empty outside every scope.
ManejadorRecursos& RecursosActuales();

/// Puts this module's resources in force for a block, and what was in force before back at its end.
/// Every exported function that can reach a resource opens one; scopes nest.
class AmbitoRecursos {
public:
    AmbitoRecursos() : m_anterior(RecursosActuales()) { RecursosActuales() = hInstanciaModulo; }
    ~AmbitoRecursos() { RecursosActuales() = m_anterior; }
    AmbitoRecursos(const AmbitoRecursos&) = delete;
    AmbitoRecursos& operator=(const AmbitoRecursos&) = delete;

private:
    ManejadorRecursos m_anterior;
};

/// Entry `iId` of the resources in force; null when they don't have it.
const recursos::Cadena* BuscarCadena(int iId);

/// The entry's text with each "%1" replaced by `csDato`; empty for an unknown number.
CString FormatearCadena(int iId, std::wstring_view csDato);

}  // namespace efv::frame

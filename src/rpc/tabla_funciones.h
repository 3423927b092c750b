// Every exported function, callable by name.
#pragma once

#include <span>
#include <string_view>

#include "rpc/funcion.h"

namespace efv::rpc {

/// The table, in the order of the public headers.
std::span<const Funcion> Funciones();

/// The function of that very name; null when there is none.
const Funcion* BuscarFuncion(std::string_view nombre);

/// The dialog of that class as a function of `rpc.open`; null for one that it doesn't open.
const Funcion* BuscarDialogo(std::string_view clase);

}  // namespace efv::rpc

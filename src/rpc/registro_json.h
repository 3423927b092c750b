// Members and records in the arguments of the host's own methods.
#pragma once

#include <memory>
#include <string_view>

#include <QuorvelEFV.h>

#include "rpc/json.h"

namespace efv::rpc {

/// @throws ErrorValor: `nombre` is missing, `esperado` was expected
const Json& Miembro(const Json& params, std::string_view nombre, std::string_view esperado);

/// A new record of the class that `nombre` says. @throws ErrorValor
std::unique_ptr<CObject> CrearRegistro(const Json& nombre);

}  // namespace efv::rpc

// The methods of the scripted host itself, beside the library's functions.
#pragma once

#include <string>
#include <string_view>

#include "rpc/json.h"

namespace efv::rpc {

/// Appends the method's whole `result` to `salida`. @throws ErrorRpc
using MetodoPropio = void (*)(const Json& params, std::string& salida);

/// `rpc.discover`, `rpc.archive`, `rpc.string`, `rpc.climate`, `rpc.report`; null for another name.
MetodoPropio BuscarMetodoPropio(std::string_view nombre);

}  // namespace efv::rpc

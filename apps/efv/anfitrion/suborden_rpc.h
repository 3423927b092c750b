#pragma once

#include <memory>

#include "comun/suborden.h"

namespace efv::orden {

/// `efv rpc`: any program as host, by JSON-RPC on standard input and output.
std::unique_ptr<Suborden> CrearSubordenRpc();

}  // namespace efv::orden

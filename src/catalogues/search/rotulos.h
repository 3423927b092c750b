// Captions of the fields that share one with their neighbour in a model's dialog.
#pragma once

#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::catalogues {

/// "Tensión de entrada mínima (V)" of dVCCMin; empty for a field whose own caption says what it is.
CString RotuloPropio(std::string_view campo);

}  // namespace efv::catalogues

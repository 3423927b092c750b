// What a person has filled in.
#pragma once

#include <vector>

#include <quorvel/ui/dialogo.h>

namespace efv::qt {

/// The content of the controls that hold data, control by control; two are alike while nothing was changed.
std::vector<CString> LoRellenado(const ui::Dialogo& dialogo);

}  // namespace efv::qt

// What a model's data sheet doesn't say, told beside the tree.
#pragma once

#include <span>

#include <quorvel/framework/CString.h>
#include <quorvel/ui/dialogo.h>

#include "catalogues/format/ausencias.h"

namespace efv::catalogues {

/// "No lo da el fichero: Peso, …. Sin dato: …." by the captions of the model's dialog.
CString TextoDeFaltas(const ui::Dialogo& dialogo, std::span<const SinDato> campos);

}  // namespace efv::catalogues

// The data sheet of a catalogue model as rows.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/tipos_catalogo.h>

namespace efv::report {

using FilasFicha = std::vector<std::pair<std::string, std::string>>;

/// What a model's dialog shows: caption and text. What has no caption stands with the control before it.
EFV_API FilasFicha FilasDeFicha(const ui::Dialogo& dialogo);
EFV_API FilasFicha FilasDeFicha(const TipoCatalogo& tipo, const CModelo& modelo);

}  // namespace efv::report

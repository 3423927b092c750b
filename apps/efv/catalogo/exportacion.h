// Models as CSV for a spreadsheet.
#pragma once

#include <ostream>

#include "catalogo/acceso.h"

namespace efv::orden {

/// Family, then every field by its name. UTF-8 with byte-order mark, lines and quotes after RFC 4180; with
/// ";" numbers have a decimal comma, with "," a point. What isn't finite is an empty cell. A text that a
/// spreadsheet would take for a formula (= + - @, tab or line end first) gets an apostrophe before it.
void EscribirModelosCsv(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos, char separador);

}  // namespace efv::orden

// Texts in the cells of CSV files with semicolons.
#pragma once

#include <string>
#include <string_view>

namespace efv::orden {

/// In quotes; one that a spreadsheet would take for a formula has an apostrophe before it.
std::string EntreComillasCsv(std::string_view texto);

/// The same, and as it is where nothing in it could be misread.
std::string TextoCsv(std::string_view texto);

}  // namespace efv::orden

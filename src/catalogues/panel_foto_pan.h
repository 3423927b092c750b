// Import of a PAN file, the module description of the simulation program PVsyst.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <quorvel/catalogues.h>

namespace efv::catalogues {

/// Fills the module from the file's text; its lines must end in CR LF. An absent key clears its field.
void ImportarPan(std::wstring_view csTexto, CBasePanelFotoModelo& modelo);

/// The keys that the text doesn't hold, in the order of the import.
std::vector<CString> ClavesAusentes(std::wstring_view csTexto);
std::size_t NumeroDeClavesPan();

}  // namespace efv::catalogues

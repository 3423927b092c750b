// Import of a PAN file, the module description of the simulation program PVsyst.
#pragma once

#include <string_view>

#include <quorvel/catalogues.h>

namespace efv::catalogues {

/// Fills the module from the file's text; its lines must end in CR LF. An absent key clears its field.
void ImportarPan(std::wstring_view csTexto, CBasePanelFotoModelo& modelo);

}  // namespace efv::catalogues

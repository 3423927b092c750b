// Import of a PAN file, the module description of the simulation program PVsyst.
#pragma once

#include <span>
#include <string_view>

#include <quorvel/catalogues/panel_foto.h>

#include "catalogues/import/importacion.h"

namespace efv::catalogues {

/// The keys that the import takes as they stand, in its order.
std::span<const ClaveImportada<CBasePanelFotoModelo>> ClavesPan();

/// Fills the module from the file's text; its lines must end in CR LF. An absent key clears its field.
void ImportarPan(std::wstring_view csTexto, CBasePanelFotoModelo& modelo);

}  // namespace efv::catalogues

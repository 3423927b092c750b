// Models added to a catalogue file without a viewer.
#pragma once

#include <utility>
#include <vector>

#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

/// A model's name and its element's attributes.
using ModeloNuevo = std::pair<CString, xml::DocumentoEditable::Atributos>;

/// Adds the models at the end of the family, made when the file lacks it; the file is replaced as a whole
/// or not at all. @throws CFileException
void AnadirModelos(const CString& csFichero, const CString& csFamilia, const std::vector<ModeloNuevo>& modelos);

}  // namespace efv::catalogues

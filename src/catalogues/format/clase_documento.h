// Of which kind a catalogue's document is.
#pragma once

#include <quorvel/tipos_catalogo.h>

#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

/// The kind whose fields the models' attributes are; null when the document has no model, or several kinds fit
/// alike.
const TipoCatalogo* TipoDeDocumento(const xml::DocumentoEditable& documento);

}  // namespace efv::catalogues

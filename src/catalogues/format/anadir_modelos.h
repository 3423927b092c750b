// Models added to a catalogue file without a viewer.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include <quorvel/tipos_catalogo.h>

#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

/// A model's element as attributes, in file order.
using AtributosDeModelo = std::function<xml::DocumentoEditable::Atributos(const CModelo&)>;

/// TipoCatalogo::Anadir for any kind.
std::vector<const CModelo*> AnadirModelos(const TipoCatalogo& tipo, const CString& csFichero,
                                          std::span<const ModelosDeFamilia> familias, Adicion modo,
                                          const AtributosDeModelo& atributosDe);

}  // namespace efv::catalogues

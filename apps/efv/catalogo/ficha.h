// The data sheet of a model for people and for programs.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "catalogo/acceso.h"

namespace efv::orden {

using Json = nlohmann::ordered_json;

/// One line of a terminal each: identification and the columns that the kind's lists have.
std::string ListaTexto(const TipoCatalogo& tipo, const Modelos& modelos);
/// What its dialog shows with the family, a line a caption.
std::string FichaTexto(const TipoCatalogo& tipo, const CModelo& modelo);
/// Every field by its name; what isn't finite is null.
Json FichaJson(const TipoCatalogo& tipo, const CModelo& modelo);
Json ListaJson(const TipoCatalogo& tipo, const Modelos& modelos);

/// Indented, with an end of line.
std::string TextoJson(const Json& json);
/// Text of the catalogue fit for one line of a terminal.
std::string EnTerminal(const CString& csTexto);

}  // namespace efv::orden

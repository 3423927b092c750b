// The data sheet of a PV module for people and for programs.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "catalogo/acceso.h"

namespace efv::orden {

using Json = nlohmann::ordered_json;

/// One line of a terminal each: identification, power, voltage, current, technology.
std::string ListaTexto(const Modelos& modelos);
/// Every field with its label and unit.
std::string FichaTexto(const CBasePanelFotoModelo& modelo);
/// Every field; what isn't finite is null.
Json FichaJson(const CBasePanelFotoModelo& modelo);
Json ListaJson(const Modelos& modelos);

/// Indented, with an end of line.
std::string TextoJson(const Json& json);
/// Text of the catalogue fit for one line of a terminal.
std::string EnTerminal(const CString& csTexto);

}  // namespace efv::orden

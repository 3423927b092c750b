// The data sheet of a model for people and for programs.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include <quorvel/catalogues/consulta.h>

#include "catalogo/acceso.h"

namespace efv::orden {

using Json = nlohmann::ordered_json;

/// One line of a terminal each: identification and the columns. A list as long as a
/// file admits is never held in memory as a whole.
void EscribirListaTexto(std::ostream& salida, const Modelos& modelos,
                        const std::vector<ColumnaCatalogo>& columnas);
/// @param campos names of those that are written; nothing: all
void EscribirListaJson(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos,
                       const std::optional<std::vector<std::string>>& campos);
/// What its dialog shows with the family, a line a caption; "—" for what the file doesn't say, with where the
/// value in force comes from. @param todos all models of its file, in order
std::string FichaTexto(const TipoCatalogo& tipo, const CModelo& modelo, const Modelos& todos);
/// Every field by its name; null for what isn't finite, isn't known ("sin_dato") or isn't in the file
/// ("ausentes").
Json FichaJson(const TipoCatalogo& tipo, const CModelo& modelo);
/// The same with the values in force of what isn't in the file.
Json FichaJson(const TipoCatalogo& tipo, const CModelo& modelo, const Modelos& todos);

/// A JSON list, element by element, as TextoJson would write the whole.
class EscritorListaJson {
public:
    /// @param nSangria blanks before the line that the list ends in
    explicit EscritorListaJson(std::ostream& salida, std::size_t nSangria = 0);
    void Anadir(const Json& elemento);
    void Terminar();

private:
    std::ostream& m_salida;
    std::string m_salto;  // end of line with the list's indentation
    bool m_bVacia = true;
};

/// Indented, with an end of line.
std::string TextoJson(const Json& json);
/// Text of the catalogue fit for one line of a terminal.
std::string EnTerminal(const CString& csTexto);

}  // namespace efv::orden

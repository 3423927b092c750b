// What a list of models is asked for: conditions, order, columns.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/catalogues/consulta.h>

#include "catalogo/acceso.h"

namespace efv::orden {

class PreguntaCatalogo {
public:
    /// Adds --donde. @param ejemplos conditions, as its help gives them
    void DeclararCondiciones(CLI::App& orden, const char* ejemplos = "'dPmpm>=495' o 'familia~solar'");
    /// Adds --ordenar, --descendente and --columnas.
    void DeclararLista(CLI::App& orden);

    bool ConCondiciones() const { return !m_condiciones.empty(); }
    /// Those that keep to the conditions, in the order asked for. @throws ErrorUso for a field that isn't there
    Modelos Responder(const TipoCatalogo& tipo, const Modelos& modelos) const;
    /// The models with all these words in their family or name that keep to the conditions; without words all.
    /// @throws ErrorEjecucion when there is none
    Modelos Buscar(const CatalogoAbierto& catalogo, const std::vector<std::string>& palabras) const;
    /// Those asked for, else the kind's own. @throws ErrorUso
    std::vector<ColumnaCatalogo> Columnas(const TipoCatalogo& tipo) const;
    /// Names of the fields asked for; nothing: all.
    std::optional<std::vector<std::string>> Campos(const TipoCatalogo& tipo) const;

private:
    std::vector<std::size_t> NumerosDeCampo(const TipoCatalogo& tipo) const;

    std::vector<std::string> m_condiciones;
    std::optional<std::string> m_orden, m_columnas;
    bool m_bDescendente = false;
};

/// Names of a kind's fields, the family first.
std::vector<std::string> NombresDeCampos(const TipoCatalogo& tipo);

}  // namespace efv::orden

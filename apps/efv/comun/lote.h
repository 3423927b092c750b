// Several projects in one call: a result each, and what became of them.
#pragma once

#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace efv::orden {

enum class FormatoLote { texto, json, csv };

/// What one project gave, in the form asked for.
struct ResultadoProyecto {
    std::string texto = {};  ///< as text or CSV
    nlohmann::ordered_json valores = {};
    bool bCumple = true;
};

/// The files that were written, as lines under a result; a note.
std::string Escritos(const std::vector<std::string>& rutas);

class Lote {
public:
    /// @param ficheros at least one
    explicit Lote(const std::vector<std::string>& ficheros) : m_ficheros(ficheros) {}

    bool Varios() const { return m_ficheros.size() > 1; }
    /// What an option's path is for one of them: "{}" in it stands for the project's name, without folder and
    /// ending. @throws ErrorUso when several projects have one path
    std::string Ruta(const std::string& opcion, const std::string& ruta, const std::string& fichero);

    /// One project as it is; of several a list, with the project's file in each element, or a text under
    /// another, and a line on each at the end. A fault of one is told there and doesn't stop the others.
    /// @return exit status of a run without fault: `iFaltas` when one doesn't keep to its checks
    /// @throws ErrorEjecucion after all are done, with what went wrong; ErrorUso at once
    int Ejecutar(std::ostream& salida, FormatoLote formato, int iFaltas,
                 const std::function<ResultadoProyecto(const std::string& fichero)>& calcular) const;

private:
    const std::vector<std::string>& m_ficheros;
    std::set<std::string> m_rutas;
};

}  // namespace efv::orden

// A table for the terminal: columns as wide as their widest cell.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace efv::orden {

class TablaTexto {
public:
    enum class Lado { izquierda, derecha };

    explicit TablaTexto(std::vector<Lado> columnas) : m_columnas(std::move(columnas)) {}

    /// Titles over several columns each, centred: text and number of columns.
    void Grupos(std::vector<std::pair<std::string, std::size_t>> grupos) { m_grupos = std::move(grupos); }
    /// A row; missing cells at its end stay empty.
    void Fila(std::vector<std::string> celdas) { m_filas.push_back(std::move(celdas)); }
    /// A rule over the whole width.
    void Raya() { m_filas.emplace_back(); }

    std::string Texto() const;

private:
    std::string LineaDeGrupos(const std::vector<std::size_t>& anchos) const;

    std::vector<Lado> m_columnas;
    std::vector<std::pair<std::string, std::size_t>> m_grupos;
    std::vector<std::vector<std::string>> m_filas;  ///< an empty one is a rule
};

}  // namespace efv::orden

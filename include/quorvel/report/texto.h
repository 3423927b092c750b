// Numbers and tables as people read them, UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>

namespace efv::report {

/// `d` with that many decimals and a comma; "—" when it isn't finite.
EFV_API std::string Decimal(double d, int iDecimales);

/// `d` with as few digits as tell it from any other double, and a comma; empty when it isn't finite.
EFV_API std::string DecimalExacto(double d);

/// "3,50 kW"; no unit, or "°", stands without a blank.
EFV_API std::string Con(double d, int iDecimales, std::string_view unidad);

/// `texto` fit for one line of a terminal: what steers a terminal becomes "?", malformed bytes U+FFFD.
EFV_API std::string EnUnaLinea(std::string_view texto);

/// Number of characters, for alignment. @param utf8 without combining or double-width characters
EFV_API std::size_t Anchura(std::string_view utf8);

/// Columns as wide as their widest cell, of rows that nobody keeps: each is measured first, then written.
class EFV_API ColumnasTexto {
public:
    enum class Lado { izquierda, derecha };

    explicit ColumnasTexto(std::vector<Lado> lados) : m_lados(std::move(lados)), m_anchos(m_lados.size()) {}

    void Medir(const std::vector<std::string>& celdas);
    const std::vector<std::size_t>& Anchos() const { return m_anchos; }
    /// A row in one line with its end; missing cells at its end stay empty.
    std::string Linea(const std::vector<std::string>& celdas) const;
    /// A rule over the whole width.
    std::string Raya() const;

private:
    std::vector<Lado> m_lados;
    std::vector<std::size_t> m_anchos;
};

/// A table for the terminal.
class EFV_API TablaTexto {
public:
    using Lado = ColumnasTexto::Lado;

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

}  // namespace efv::report

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

/// A table for the terminal: columns as wide as their widest cell.
class EFV_API TablaTexto {
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

}  // namespace efv::report

// Numbers and tables as people read them, UTF-8.
#pragma once

#include <cstddef>
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

/// How a report says figures that it has in some unit: in the one that the host has chosen for their magnitude
/// (<quorvel/unidades.h>), in their own while it has chosen none, or where there is no other.
struct Medida {
    double dFactor = 1.0, dOrigen = 0.0;
    int iMasDecimales = 0;  ///< for the same figure; may be negative
    std::string unidad;

    double En(double d) const { return d * dFactor + dOrigen; }
};
/// @param unidad "kWh", "kWh/año", "kWh/m²·día", "m²", "m", "mm", "kg", "ºC"; any other stays as it is
EFV_API Medida MedidaDe(std::string_view unidad);

/// "3,50 kW", in the unit chosen; no unit, or "°", stands without a blank.
EFV_API std::string Con(double d, int iDecimales, std::string_view unidad);
/// The same without the unit, for a column whose heading says it.
EFV_API std::string DecimalEn(double d, int iDecimales, std::string_view unidad);
/// "Energía (kWh)" with the unit chosen in each bracket that holds nothing but a unit.
EFV_API std::string TituloEn(std::string_view titulo);

/// `texto` fit for one line of a terminal: what steers a terminal becomes "?", malformed bytes U+FFFD.
EFV_API std::string EnUnaLinea(std::string_view texto);

/// Number of characters, for alignment. @param utf8 without combining or double-width characters
EFV_API std::size_t Anchura(std::string_view utf8);

/// Numbers of five digits and more in groups of three, parted by a blank that doesn't break: "12 345,60".
/// Digits within a word stay as they are.
EFV_API std::string ConMiles(std::string_view texto);

/// How text is set for whoever reads it: by default as a file has it, as wide as it comes.
struct FormaTexto {
    std::size_t nAnchura = 0;     ///< columns of the terminal; 0: no end
    bool bColor = false;          ///< what fails in red
    bool bMiles = false;          ///< ConMiles in columns of numbers
    bool bSoloResultado = false;  ///< without notes
    bool bTerminal = false;       ///< shown at once: what isn't text would spoil it
};

/// What `texto` becomes in red. @param bColor false: stays as it is
EFV_API std::string EnRojo(std::string texto, bool bColor);
inline constexpr std::string_view kColorRojo = "\x1B[31m", kColorPropio = "\x1B[0m";

/// `texto` in lines of at most `nAnchura` characters, broken at blanks, within a word where it is longer
/// (unless they stay whole). Blanks that it begins with stand before each line.
EFV_API std::vector<std::string> EnLineas(std::string_view texto, std::size_t nAnchura,
                                          bool bPartirPalabras = true);

/// Columns as wide as their widest cell, of rows that nobody keeps: each is measured first, then written. Where
/// they are wider than the terminal, titles and then texts are broken at blanks; what still doesn't fit goes
/// into further bands, each with the first columns again.
class EFV_API ColumnasTexto {
public:
    enum class Lado { izquierda, derecha };
    using Celdas = std::vector<std::string>;

    /// Columns side by side.
    struct Banda {
        std::vector<std::size_t> columnas, anchos;
    };

    explicit ColumnasTexto(std::vector<Lado> lados, const FormaTexto& forma = {})
        : m_lados(std::move(lados)), m_forma(forma), m_celdas(m_lados.size()), m_titulos(m_lados.size())
    {
    }

    void MedirTitulos(const Celdas& titulos);
    void Medir(const Celdas& celdas);
    /// Columns that stay side by side while they can: how many each group has. None: each by itself.
    void Agrupar(std::vector<std::size_t> grupos) { m_grupos = std::move(grupos); }
    /// After the last cell is measured. @param nClaves columns that each band begins with
    void Disponer(std::size_t nClaves);
    /// The same for rows written one by one, each over several lines: only the first of them has the keys.
    void DisponerPlegada();

    const std::vector<Banda>& Bandas() const { return m_bandas; }
    /// A row with its end, a band below the other; missing cells at its end stay empty.
    std::string Linea(const Celdas& celdas) const;
    std::string Linea(const Banda& banda, const Celdas& celdas) const;
    /// A rule over the whole width.
    std::string Raya() const;
    std::string Raya(const Banda& banda) const;
    /// As it is written: thousands in columns of numbers.
    std::string Celda(std::size_t iColumna, const std::string& celda) const;

private:
    /// Lengths of what a column holds.
    struct Medida {
        std::size_t nEntero = 0, nPalabra = 0;
    };

    std::size_t Suelo(std::size_t iColumna, bool bPartirTextos) const;
    bool Encoger(std::vector<std::size_t>& anchos, bool bPartirTextos) const;
    bool DisponerEntera(std::vector<std::size_t>& anchos);
    void Repartir(const std::vector<std::size_t>& anchos, Banda claves, std::size_t nSangria);
    std::size_t FinDeGrupo(std::size_t iColumna) const;
    std::string Renglones(const Banda& banda, const std::vector<Celdas>& lineas) const;

    std::vector<Lado> m_lados;
    FormaTexto m_forma;
    std::vector<Medida> m_celdas, m_titulos;
    std::vector<std::size_t> m_grupos;
    std::vector<Banda> m_bandas;
};

/// A table for the terminal.
class EFV_API TablaTexto {
public:
    using Lado = ColumnasTexto::Lado;

    explicit TablaTexto(std::vector<Lado> columnas) : m_columnas(std::move(columnas)) {}

    /// Titles over several columns each, centred: text and number of columns.
    void Grupos(std::vector<std::pair<std::string, std::size_t>> grupos) { m_grupos = std::move(grupos); }
    /// How many columns tell one row from the other: they stand before every part of a table that is too wide.
    void Claves(std::size_t nClaves) { m_nClaves = nClaves; }
    /// A row; missing cells at its end stay empty. The first one with a rule below it holds the titles.
    /// @param bFalta it tells of something that fails
    void Fila(std::vector<std::string> celdas, bool bFalta = false)
    {
        m_filas.push_back({std::move(celdas), bFalta});
    }
    /// A rule over the whole width.
    void Raya() { m_filas.emplace_back(); }

    std::string Texto(const FormaTexto& forma = {}) const;

private:
    struct FilaTabla {
        std::vector<std::string> celdas;  ///< none: a rule
        bool bFalta = false;
    };

    bool ConTitulos() const { return m_filas.size() > 1 && m_filas[1].celdas.empty(); }
    std::string LineaDeGrupos(const ColumnasTexto::Banda& banda) const;
    std::string TextoDe(const ColumnasTexto& columnas, const ColumnasTexto::Banda* banda, bool bColor) const;

    std::vector<Lado> m_columnas;
    std::vector<std::pair<std::string, std::size_t>> m_grupos;
    std::vector<FilaTabla> m_filas;
    std::size_t m_nClaves = 1;
};

}  // namespace efv::report

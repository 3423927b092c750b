// A document laid out on sheets: strokes and letters at their places. Whoever writes or prints them lays
// nothing out; whoever lays out knows no file format and asks a meter how wide letters are.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/report/documento.h>
#include <quorvel/ui/grafica.h>

namespace efv::report {

/// How wide letters are in the face that the sheets will be written with.
class EFV_API MedidorLetra {
public:
    MedidorLetra() = default;
    virtual ~MedidorLetra();
    MedidorLetra(const MedidorLetra&) = delete;
    MedidorLetra& operator=(const MedidorLetra&) = delete;

    /// Points, at a size of `dCuerpo` points.
    virtual double Ancho(std::wstring_view texto, double dCuerpo, bool bNegrita) const = 0;
};

namespace hoja {

/// Points; y downwards from the sheet's upper edge.
struct Sitio {
    double x, y;
};

struct Texto {
    Sitio base;  ///< left end of the line that the letters stand on
    CString cs;
    double dCuerpo;
    ui::Color color = ui::kNegro;
    bool bNegrita = false;
    bool bVertical = false;  ///< reads upwards
};

/// An open line, or a closed shape when it has a filling.
struct Forma {
    std::vector<Sitio> puntos;
    std::optional<ui::Color> relleno;
    std::optional<ui::Color> borde;
    double dAncho = 0.5;
    std::vector<double> adGuiones = {};  ///< dashes and gaps; empty: solid
};

struct Circulo {
    Sitio centro;
    double dRadio;
    std::optional<ui::Color> relleno;
    std::optional<ui::Color> borde;
    double dAncho = 0.5;
};

/// What comes until the next FinRecorte stays inside.
struct Recorte {
    Sitio esquina;
    double dAncho, dAlto;
};
struct FinRecorte {};

/// A place that leads to a heading, by its index.
struct Enlace {
    Sitio esquina;
    double dAncho, dAlto;
    std::size_t nTitular;
};

}  // namespace hoja

using Pieza =
    std::variant<hoja::Texto, hoja::Forma, hoja::Circulo, hoja::Recorte, hoja::FinRecorte, hoja::Enlace>;

struct Hoja {
    std::vector<Pieza> piezas = {};
    double dAncho = kAnchoHoja, dAlto = kAltoHoja;
};

/// A heading of the contents.
struct Titular {
    std::string texto;
    std::size_t nHoja = 0;  ///< from 0
    double y = 0.0;         ///< of its upper edge
};

struct Impreso {
    std::string titulo, autor;
    std::vector<Hoja> hojas;
    std::vector<Titular> titulares;
};

/// Cover, contents with their pages, then the sections. A heading stands with what follows it, a table's row,
/// a chart and a drawing on one sheet; a table that goes on repeats its headings. On a wide sheet charts, and
/// the halves of a long list of data, stand beside each other.
/// @param fecha e.g. "3-2-2028"; may be empty
EFV_API Impreso Componer(const Documento& documento, const std::string& fecha, const MedidorLetra& medidor,
                         const Papel& papel = {});

}  // namespace efv::report

// Charts as data: one painter draws them on screen, another writes SVG.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::ui {

/// 0xBBGGRR.
using Color = std::uint32_t;

inline constexpr Color kNegro = 0x000000;
inline constexpr Color kRojo = 0x0000FF;
inline constexpr Color kAzul = 0xFF0000;

/// "#RRGGBB".
EFV_API std::string ColorHex(Color color);

/// How a series turns its points into a picture.
enum class FormaSerie {
    linea,
    escalon,  ///< each value holds until the next point; the last one as long as the one before it
    barra,    ///< one bar a point, from 0; the series of bars of a chart share the place of a point
    punto     ///< a dot a point
};

/// What isn't a finite number interrupts a line; in the place of a bar it stands as "—".
struct SerieCurva {
    std::vector<double> adX, adY;  ///< of the same length
    Color color = kNegro;
    int iAncho = 1;  ///< 0: invisible, the series only fixes the scale
    FormaSerie forma = FormaSerie::linea;
    /// Style of the line: 1 solid, 2 dashed, 3 dotted, 4 dashes and dots, 5 dashes and two dots; any other
    /// number is drawn solid. Bars have none.
    int iEstilo = 1;
    /// What the legend calls it. Named lines of one style get markers and all bars but the first series'
    /// get hatches, so that they are told apart without their colours.
    CString csNombre = {};
};

/// What the numbers along the horizontal axis stand for.
enum class ClaseEje {
    numero,
    mes,        ///< 1 January to 12 December and round again; each has a band of half a unit to both sides
    diaSemana,  ///< 1 Monday to 7 Sunday, likewise
    hora,       ///< hours since midnight
    fecha       ///< day of the year of 365 days; 1 is the first of January
};

}  // namespace efv::ui

/// A chart of series of points.
struct EFV_API CCtrlCurva2D {
    CString csTitulo, csTituloX, csTituloY;
    int iCuadriculaX = 10, iCuadriculaY = 8;  ///< grid counts
    std::vector<efv::ui::SerieCurva> aSeries;
    efv::ui::ClaseEje claseX = efv::ui::ClaseEje::numero;
    bool bLeyenda = false;  ///< also for a single named series; several have theirs in any case
    /// A map: degrees of longitude and latitude. The axes hold the points alone, without 0, and a mile has the
    /// same length along both in the middle of the map.
    bool bMapa = false;
};

namespace efv::ui {

/// A chart without series over the months, or over the hours of a day.
EFV_API CCtrlCurva2D GraficaDeMeses(std::wstring_view csTitulo, std::wstring_view csTituloY);
EFV_API CCtrlCurva2D GraficaDeHoras(std::wstring_view csTitulo, std::wstring_view csTituloY);

/// A bar for each month, from January.
EFV_API SerieCurva BarrasDeMeses(std::wstring_view csNombre, Color color, std::span<const double> adMeses);

/// The extent of a chart: from the least to the greatest value of its finite points, 0 included but along
/// an axis that counts months, days or dates, and on a map.
struct Extension {
    double dMinX = 0, dMaxX = 1, dMinY = 0, dMaxY = 1;
};
EFV_API Extension ExtensionDe(const CCtrlCurva2D& grafica);

/// A self-contained SVG document of `iAncho` by `iAlto` pixels, UTF-8.
EFV_API std::string EscribirSvg(const CCtrlCurva2D& grafica, int iAncho = 800, int iAlto = 500);

}  // namespace efv::ui

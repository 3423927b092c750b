// The daily radiation of a year on a plane, and the charts that draw it.
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>
#include <quorvel/solar/inclinacion.h>
#include <quorvel/ui/grafica.h>

namespace efv::solar {

/// Temperature and humidity of the standard sky.
inline constexpr double kTemperaturaNormal = 25.0;
inline constexpr double kHumedadNormal = 0.5;

/// That temperature on every day, as a site of the climate library wants it.
std::span<const double, 372> TemperaturasNormales();

struct PlanoEstudio {
    FuenteRadiacion fuente;
    double dDatoSitio, dLatitud, dOrientacion;
};

using BloqueHoras = std::span<double, kHorasBloque>;

struct CurvaDiaria {
    std::array<double, 365> adDia{};  ///< Wh/m²·day, 1 January first
    double dTotal = 0.0;              ///< of the year, Wh/m²
};

/// The hours of the tilted plane go to `adInclinada`. Those of the horizontal are read from `adHorizontal` if
/// they are the source, else written there. Hours of the climate record are floored at 0, those of the sky
/// aren't. Days that a month lacks stay as they are.
void RadiarPlano(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
                 BloqueHoras adInclinada, BloqueHoras adHorizontal);

/// Each day's hours, added in their order.
CurvaDiaria SumarDias(std::span<const double, kHorasBloque> adHoras);

/// "Radiación incidente (w/m²·día) Lat=40,40N Or:S", and the standard sky's weather unless a record is the
/// source.
CString TituloRadiacion(const PlanoEstudio& plano);

/// The curve over the days of the year, and a chart of such.
ui::SerieCurva SerieDeDias(const CurvaDiaria& curva, ui::Color color, std::wstring_view nombre);
CCtrlCurva2D GraficaRadiacion(CString csTitulo, std::vector<ui::SerieCurva> series);

}  // namespace efv::solar

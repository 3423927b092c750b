// The daily radiation of a year on a plane, as the study of the tilt draws it.
#pragma once

#include <array>
#include <span>

#include <quorvel/solar/inclinacion.h>

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
/// aren't.
CurvaDiaria CalcularCurva(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
                          BloqueHoras adInclinada, BloqueHoras adHorizontal);

}  // namespace efv::solar

// The study of a plane's tilt on screen, and the best tilts of a place for programs.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include <quorvel/clima.h>
#include <quorvel/exportar.h>
#include <quorvel/solar/energia.h>

namespace efv::solar {

/// Hours of a year in blocks of 31 days a month: month × 744 + day × 24 + hour, all from 0.
inline constexpr std::size_t kHorasBloque = 8928;

/// Where the study's radiation comes from.
enum class FuenteRadiacion : int {
    registro = 0,   ///< the climate record that the climate library has loaded
    cielo = 1,      ///< the climate library's sky at 25 ºC and a humidity of 0.5
    horizontal = 2  ///< `radHorizontal`, times the tilt factor of each day
};

/// What the study is opened with; what the person accepts comes back in `dInclinacionActual`.
struct EstudioInclinacion {
    bool bEditable = true;            ///< else it can only be looked at
    double dInclinacionActual = 0.0;  ///< 0 to 90 degrees
    FuenteRadiacion fuente = FuenteRadiacion::registro;
    double dDatoSitio = 0.0;  ///< what the climate library knows the site by; ours reads the altitude, m
    double dLatitud = 0.0;
    double dOrientacion = 0.0;
    std::vector<double> radHorizontal;  ///< W/m², kHorasBloque of them, or none
};

/// Opens the study. @return whether the person accepted a tilt
EFV_API bool EstudiarInclinacion(EstudioInclinacion& estudio);

/// A tilt with what it collects.
struct InclinacionOptima {
    double dInclinacion = 0.0;
    double dRadiacion = 0.0;  ///< sum of the net radiation, Wh/m²
    bool bLimitada = false;   ///< the last tilt that the search tries: a steeper one may collect more
};

/// The best tilt of each month and of the year (last) at an orientation, in steps of 0.5 degrees from 0 to just
/// below the whole degrees of the latitude (of 10 near the equator).
EFV_API std::array<InclinacionOptima, 13> InclinacionesOptimas(clima::BibliotecaClima& biblioteca,
                                                               const clima::SitioCielo& sitio,
                                                               double dOrientacion);

}  // namespace efv::solar

// Which tilt collects most, what a plane loses against it, the tilt factor of a day, the name of an
// orientation. The radiation is the climate library's net hourly one.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include <quorvel/clima.h>

namespace efv::solar {

/// Steps of the search: the coarse one of the queries, the fine one of the study on screen, degrees.
inline constexpr double kPasoConsulta = 0.5;
inline constexpr double kPasoEstudio = 0.2;

/// Month index of the year in a search, and in losses.
inline constexpr int kAnoBusqueda = 12;
inline constexpr int kAnoPerdidas = -1;

/// The tilts that a search tries: from 0 by repeated addition of `dPaso` to just below the whole degrees of the
/// latitude, or of 10 near the equator; a latitude above 90 or infinite counts as 90, not-a-number has none.
std::vector<double> InclinacionesDeBusqueda(double dLatitud, double dPaso);

/// Orientation that faces the equator: 0, in the south 180.
double OrientacionAlEcuador(double dLatitud);

struct Optimo {
    double dInclinacion = 0.0;
    double dRadiacion = 0.0;  ///< sum of the net radiation, Wh/m²
};

/// The best tilt of each month and of the year (last) at an orientation, in one pass. Of tilts equal within
/// 1e-6 the lowest wins.
/// @param avance called after each group of tilts with how many are done; may be empty
std::array<Optimo, 13> BuscarOptimos(clima::BibliotecaClima& biblioteca, const clima::SitioCielo& sitio,
                                     double dOrientacion, double dPaso,
                                     const std::function<void(std::size_t)>& avance = {});

/// The same of one month (0 to 11) or the year (12), facing the equator; any other index finds nothing.
Optimo BuscarOptimo(clima::BibliotecaClima& biblioteca, const clima::SitioCielo& sitio, double dPaso, int iMes);

/// Percentage that a plane loses in a month (0 to 11) or the year (-1) against `dRadOptima`; one of 0 or below
/// is searched with the same index. Divisions by zero pass through.
double Perdidas(clima::BibliotecaClima& biblioteca, const clima::SitioCielo& sitio, int iMes,
                double dInclinacion, double dOrientacion, double dRadOptima);

/// Radiation of a day on the tilted plane over that on the horizontal. Month and day from 0.
double FactorDelDia(clima::BibliotecaClima& biblioteca, double dDatoSitio, double dLatitud, int iMes, int iDia,
                    double dInclinacion, double dOrientacion, double dHumedad, double dTemperatura);

/// Compass name of an azimuth; empty at exactly 10, at exactly -170 and beyond 180.
std::wstring_view NombreOrientacion(double dAngulo);

}  // namespace efv::solar

// The sky of a whole year, made once for as many planes as are asked.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include <quorvel/clima.h>

#include "platform/clima/cielo.h"
#include "platform/clima/horizonte.h"

namespace efv::clima {

/// -500 to 10,000 m, and 0 to 1.
double Altitud(double dDatoSitio);
double Humedad(double dHumedad);

/// True while the horizon stands between the sun and the site.
bool Tapado(const HoraCielo& hora, const Horizonte& horizonte);

/// The hours with the sun up, in calendar order.
struct AnoCielo {
    struct Hora {
        HoraCielo cielo;
        int iHoraAno;
        bool bTapada;
    };
    std::vector<Hora> horas;
    std::array<std::size_t, 13> aiInicioMes{};  ///< first of `horas` of each month, and their number
};

/// A day whose temperature isn't finite has no hours. Null `horizonte`: nothing stands around.
AnoCielo HacerAnoCielo(const SitioCielo& sitio, const Horizonte* horizonte);

/// Net radiation of the hours with the sun up; the others stay as they are.
void RadiarAno(const AnoCielo& ano, const PlanoCielo& plano, std::span<double, 8760> adNeta);

/// Adds each tilt's hours to its sums, in calendar order. A tilt that isn't finite keeps 0.
void SumarInclinaciones(const AnoCielo& ano, std::span<const double> adInclinaciones, double dOrientacion,
                        std::span<SumasMeses> sumas);

}  // namespace efv::clima

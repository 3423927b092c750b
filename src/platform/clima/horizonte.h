// What stands around a site: elevation of the skyline by azimuth.
#pragma once

#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace efv::clima {

/// A file that can't be what it should; its text is for the person, in UTF-8.
class FicheroInvalido : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Horizonte {
public:
    /// Lines of azimuth (0 south, west positive) and elevation in degrees, with blank, tab, comma or semicolon
    /// between; lines that don't begin with a number are skipped. Azimuths go into [-180, 180); of equal ones
    /// the first counts.
    /// @throws FicheroInvalido without a row, or with an azimuth alone on a line
    static Horizonte Leer(std::string_view texto);

    /// Elevation of the skyline, degrees, linear between neighbours around the circle.
    double Elevacion(double dAcimut) const;

private:
    std::vector<std::pair<double, double>> m_puntos;  // by rising azimuth, not empty
};

}  // namespace efv::clima

// What `efv energia` calculates: a field of panels at a place, month by month, by either method.
#pragma once

#include <array>
#include <optional>
#include <string>

#include <quorvel/framework/CString.h>

namespace efv::orden {

inline constexpr std::size_t kMeses = 12;

/// No plane on Earth gets more on the mean of a month than the poles at midsummer outside the air, 45 MJ;
/// kJ/m²·day.
inline constexpr double kRadiacionMaxima = 50000.0;
/// Below this the year's best month can only have been given in another unit; kJ/m²·day.
inline constexpr double kRadiacionSospechosa = 100.0;

struct Campo {
    double dLatitud = 0.0;                         ///< degrees, north positive
    std::array<double, kMeses> adRadHorizontal{};  ///< kJ/m²·day
    double dInclinacion = 0.0;                     ///< degrees toward the equator
    double dOrientacion = 0.0;                     ///< degrees, 0 south; no formula uses it
    double dPotencia = 1.0;                        ///< kWp
    double dPR = 0.8;                              ///< fraction
    double dFactor = 1.0;

    bool EsSur() const { return dLatitud < 0.0; }
    /// The orientation that looks at the equator.
    double OrientacionEcuador() const { return EsSur() ? 180.0 : 0.0; }
    /// The tilt that the correlation is asked with: it takes the latitude with its sign and tilts toward
    /// the south, so that for a southern place the tilt toward the equator is negative.
    double InclinacionCorrelacion() const { return EsSur() ? -dInclinacion : dInclinacion; }
};

/// Numbers as in the library: 0 correlation, else table of factors K.
enum class Metodo : int { correlacion = 0, tabla = 1 };

struct MesCalculado {
    double dRI = 0.0;          ///< kWh/m²·day on the plane
    double dEnergiaDia = 0.0;  ///< kWh
    double dEnergiaMes = 0.0;  ///< kWh
};

struct Resultado {
    std::array<MesCalculado, kMeses> meses;
    double dEnergiaAno = 0.0;  ///< kWh

    /// Mean over the 365 days of the year.
    double RIMedia() const;
    double EnergiaDiaMedia() const;
};

/// The field by `metodo`, through the library's functions. Empty when the method has no answer for the
/// latitude (outside the loaded table).
std::optional<Resultado> Calcular(const Campo& campo, Metodo metodo);

/// Days of a month of the 365-day year.
int DiasDelMes(std::size_t iMes);

/// Mean over the 365 days of twelve daily values.
double MediaAnual(const std::array<double, kMeses>& valores);

/// Name of a month, "Enero".
std::string NombreMes(std::size_t iMes);

}  // namespace efv::orden

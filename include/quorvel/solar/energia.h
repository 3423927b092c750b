// Energy of a field of panels in a year of typical months: the one calculation behind every figure of energy
// that commands, reports and programs show.
//
// Both methods get the same: the radiation on the plane by their own means, then power, performance ratio and
// additional factor, and a year of 365 days. The exported functions phGetEIR_… keep their own rules (February
// of 28 or 29 days, a table that applies neither ratio nor factor) and aren't used here.
#pragma once

#include <array>
#include <optional>

#include <quorvel/exportar.h>

class CBaseFactorK;

namespace efv::solar {

inline constexpr std::size_t kMeses = 12;
/// January first.
using DoceMeses = std::array<double, kMeses>;

inline constexpr double kKJporKWh = 3600.0;

/// No plane on Earth gets more on the mean of a month than the poles at midsummer outside the air, 45 MJ;
/// kJ/m²·day.
inline constexpr double kRadiacionMaxima = 50000.0;
/// Below this the year's best month can only have been given in another unit; kJ/m²·day.
inline constexpr double kRadiacionSospechosa = 100.0;

/// Days of the months in a year of 365.
inline constexpr std::array<int, kMeses> kDiasMesReferencia = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Where the radiation on the plane comes from; the numbers are those of the exported functions.
enum class Metodo : int { correlacion = 0, tabla = 1 };

/// The method whose figure counts where both stand side by side: designs and reports are made with it. The
/// other is for comparison, and for latitudes that the table doesn't reach.
inline constexpr Metodo kMetodoDeUso = Metodo::tabla;

/// A field of panels that faces the equator: no method knows an orientation.
struct CampoSolar {
    double dLatitud = 0.0;        ///< degrees; only its magnitude counts
    bool bNorte = true;           ///< hemisphere
    DoceMeses adRadHorizontal{};  ///< mean daily global radiation on the horizontal, kJ/m²·day
    double dInclinacion = 0.0;    ///< degrees toward the equator
    double dPotencia = 1.0;       ///< kWp
    double dPR = 1.0;             ///< performance ratio, fraction
    double dFactor = 1.0;         ///< one more plain factor on the energy
};

struct MesEnergia {
    double dHorizontal = 0.0;  ///< kWh/m²·day
    double dPlano = 0.0;       ///< on the plane, kWh/m²·day: peak sun hours
    double dEnergiaDia = 0.0;  ///< kWh
    double dEnergiaMes = 0.0;  ///< kWh
};

/// What a method has no answer for is not-a-number, and so is all that is summed of it.
struct EFV_API AnoEnergia {
    std::array<MesEnergia, kMeses> meses{};

    double Energia() const;  ///< of the year, kWh: the sum of the months
    // Means over the days of the year.
    double HorizontalMedia() const;  ///< kWh/m²·day
    double PlanoMedio() const;       ///< kWh/m²·day
    double EnergiaDiaMedia() const;  ///< kWh
};

/// Mean over the days of the year of twelve daily values.
EFV_API double MediaAnual(const DoceMeses& adDia);

/// The twelve factors K for the magnitude of the latitude in that hemisphere (1 north, else south) and a tilt,
/// degrees; nothing outside the table.
EFV_API std::optional<DoceMeses> FactoresK(const CBaseFactorK& tabla, double dLatitud, int iHemisferio,
                                           double dInclinacion);

/// The year of a field by a method. @return nothing when the table doesn't reach the latitude
EFV_API std::optional<AnoEnergia> CalcularEnergia(const CampoSolar& campo, Metodo metodo,
                                                  const CBaseFactorK& tabla);
/// The same by the table, with its factors for the field's place and tilt.
EFV_API AnoEnergia CalcularEnergia(const CampoSolar& campo, const DoceMeses& adK);

}  // namespace efv::solar

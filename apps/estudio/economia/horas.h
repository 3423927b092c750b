// The hours of the project's grid-connected installation, as the economic studies take them.
#pragma once

#include <optional>
#include <vector>

#include <quorvel/economics_calculo.h>

#include "proyecto/proyecto.h"

namespace efv::estudio {

/// Performance ratio of the installation where nobody gives another.
inline constexpr double kPerformanceRatio = 0.8;

/// The field of the accepted design with the energy of its year before the performance ratio.
struct CampoRed {
    double dPotencia = 0.0;     ///< Wp
    double dInversores = 0.0;   ///< W
    double dInclinacion = 0.0;  ///< degrees
    solar::AnoEnergia ano;
};
/// Nothing while there is no design, or no method has an answer for the place.
std::optional<CampoRed> CampoDe(const CProyectoEstudio& proyecto);

/// A year of energies, kWh, as an hourly year block.
using BloqueHoras = std::vector<double>;

/// The energy of each month, after the performance ratio, spread over its hours as a clear sky would give it.
BloqueHoras ProduccionDe(const CProyectoEstudio& proyecto, const CampoRed& campo);
BloqueHoras ConsumoDe(const CProyectoEstudio& proyecto);

double Suma(const BloqueHoras& horas);

}  // namespace efv::estudio

// What `efv energia` calculates: a field of panels at a place, month by month, by either method.
#pragma once

#include <string>

#include <quorvel/framework/CString.h>
#include <quorvel/solar/energia.h>

namespace efv::orden {

using solar::kMeses;
using solar::kRadiacionMaxima;
using solar::kRadiacionSospechosa;

/// The field with what the command is told of it besides; its latitude has its sign, north positive.
struct Campo : solar::CampoSolar {
    double dOrientacion = 0.0;  ///< degrees, 0 south; no formula uses it

    Campo() { dPR = 0.8; }

    /// The orientation that looks at the equator.
    double OrientacionEcuador() const { return bNorte ? 0.0 : 180.0; }
    /// The tilt as the correlation counts it: toward the south, so that in the south it is negative.
    double InclinacionCorrelacion() const { return bNorte ? dInclinacion : -dInclinacion; }
};

/// Name of a month, "Enero".
std::string NombreMes(std::size_t iMes);

}  // namespace efv::orden

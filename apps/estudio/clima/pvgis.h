// Requests to PVGIS with their progress, which the person may cancel; what fails is told.
#pragma once

#include <optional>

#include <quorvel/framework/CString.h>
#include <quorvel/solar/energia.h>

namespace efv::estudio {

/// Twelve mean daily horizontal radiations, kJ/m²·day.
std::optional<solar::DoceMeses> PedirRadiacion(double dLatitud, double dLongitud);

/// Downloads a typical year into a file: EPW if its name ends in "epw", else a climate record.
/// @return whether it was written
bool DescargarAno(const CString& csRuta, const CString& csNombre, double dLatitud, double dLongitud);

}  // namespace efv::estudio

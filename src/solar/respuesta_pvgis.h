// Answers of the PVGIS service (European Commission, Joint Research Centre): typical year and monthly
// radiation.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace efv::solar {

/// Hours that a typical year must have.
inline constexpr int kFilasAnoTipico = 8760;

/// A climate record made from a typical year: two heading lines and a line of 13 columns an hour, ended by CR
/// LF.
struct RegistroConvertido {
    std::string texto;
    int iFilas = 0;  ///< complete with kFilasAnoTipico; later rows of the answer aren't read
};

/// Turns the text form of a typical year into a climate record. The record's second line bears the latitude
/// that is handed in, the sun's position follows the one of the answer. Fields that a line lacks count as 0.
/// @param nombre,dValorCabecera name and figure of the record's first line
RegistroConvertido ConvertirAnoTipico(std::string_view respuesta, std::string_view nombre, double dLatitud,
                                      double dValorCabecera);

/// Twelve mean daily horizontal radiations, kJ/m²·day, out of the monthly series; the years are the rows / 12,
/// and fewer than twelve rows divide by zero. Nothing without a row.
std::optional<std::array<double, 12>> RadiacionMensual(std::string_view respuesta);

}  // namespace efv::solar

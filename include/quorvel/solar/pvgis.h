// The PVGIS service (European Commission, Joint Research Centre): typical years and monthly radiations of a
// place.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/red.h>

namespace efv::solar {

/// How the service is reached.
struct ServicioPVGIS {
    std::string url = "https://re.jrc.ec.europa.eu";  ///< scheme and host, without a final slash
    std::string autoridades;  ///< file of certificate authorities beside the system's; empty: none
    std::chrono::milliseconds espera{8000};  ///< longest time without a byte
};

EFV_API const ServicioPVGIS& ElServicioPVGIS();
EFV_API void PonerServicioPVGIS(ServicioPVGIS servicio);

/// Takes the address from EFV_PVGIS_URL and the authorities from EFV_PVGIS_CA, where they are set: for
/// programs.
/// @throws std::invalid_argument with a Spanish text for an address that is neither http nor https
EFV_API void PonerServicioPVGISDelEntorno();

enum class ConsultaPVGIS { anoTipico, anoTipicoEpw, radiacionMensual };

/// Asks the service for a place in degrees. An answer of any status is an answer.
/// @param avance may be empty; false ends the transfer
EFV_API std::variant<RespuestaRed, FalloRed> ConsultarPVGIS(ConsultaPVGIS consulta, double dLatitud,
                                                            double dLongitud, const AvanceRed& avance);

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
EFV_API RegistroConvertido ConvertirAnoTipico(std::string_view respuesta, std::string_view nombre,
                                              double dLatitud, double dValorCabecera);

/// Twelve mean daily horizontal radiations, kJ/m²·day, out of the monthly series; the years are the rows / 12,
/// and fewer than twelve rows divide by zero. Nothing without a row.
EFV_API std::optional<std::array<double, 12>> RadiacionMensual(std::string_view respuesta);

/// Degrees of longitude from which the sun of a converted record, which takes the hours of Greenwich for those
/// of the place, no longer fits its radiation.
inline constexpr double kLongitudSinDesfase = 7.5;

/// What the service says of a request that it refuses; empty when it says nothing that can be read.
EFV_API std::string MotivoPVGIS(const RespuestaRed& respuesta);

}  // namespace efv::solar

/// Downloads a typical year into a file: as the service's EPW file if the path ends in "epw", else as a climate
/// record. The service's answer stands meanwhile beside it with the extension ".tmp", and stays there when it
/// has no 8760 hours; a file of that name makes the download fail, as does a path that ends in ".tmp".
/// @param csNombre,dValorCabecera name and figure of the record's first line
/// @param csError why the transfer or the writing failed, up to 255 characters; else untouched
/// @return 1, 0 on failure
EFV_API int phDownloadFilePVGIS(CString& csArchivo, CString csNombre, double dLatitud, double dLongitud,
                                double dValorCabecera, CString& csError);

/// Twelve mean daily horizontal radiations of a place, kJ/m²·day, January first.
/// @param bAvisarSinDatos not 0: a place outside the service's coverage is a failure with a text, and the
/// answer stays in a file "zqr…" among the temporary ones; 0: result 1, the outputs untouched
/// @return 1, 0 on failure
EFV_API int phDownloadMonthRadPVGIS(double dLatitud, double dLongitud, double (&adRadiacion)[12],
                                    CString& csError, int bAvisarSinDatos);

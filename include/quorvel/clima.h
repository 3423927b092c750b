// Hourly radiation on a plane, out of a clear-sky model or out of a loaded climate record.
//
// Angles in degrees; orientation 0 south, negative east, positive west. Month 1 to 12, day 1 to 31, hour 1 to
// 24 in true solar time, of the 365-day year (February 28). Radiation in W/m², mean of the hour.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::clima {

/// The site of a yearly simulation.
struct SitioCielo {
    double dDatoSitio = 0.0;  ///< altitude, m, as the library reads it
    double dLatitud = 0.0;
    double dHumedad = 0.5;                        ///< relative, fraction
    std::span<const double, 372> adTemperaturas;  ///< ºC, month × 31 + day from 0; days that don't exist unread
};

/// Twelve months and the year.
using SumasMeses = std::array<double, 13>;

/// What answers for the sky. A host may hand in its own.
class EFV_API BibliotecaClima {
public:
    virtual ~BibliotecaClima();

    /// Radiation of one hour on a plane.
    /// @param dDatoSitio altitude, m  @param dTemperatura ºC  @param dHumedad relative, fraction
    /// @param dParte 0 the radiation itself; any other value what is to be taken off it
    virtual double clGetRadiacionSolarTotal(double dDatoSitio, double dLatitud, int iMes, int iDia, int iHora,
                                            double dTemperatura, double dHumedad, double dInclinacion,
                                            double dOrientacion, double dParte) = 0;

    /// Radiation of an hour of the year (0 to 8759) on a plane, from the loaded climate record.
    virtual double clGetID(int iHoraAno, double dInclinacion, double dOrientacion) = 0;

    /// Net radiation (part 0 less the magnitude of part 1) of the year's 8760 hours on one plane, not floored.
    virtual void AnoDelPlano(const SitioCielo& sitio, double dInclinacion, double dOrientacion,
                             std::span<double, 8760> adNeta);

    /// Sums of the net radiation by month and year (last), for many tilts at one orientation; hours are added
    /// in calendar order. `sumas` has one entry a tilt.
    virtual void SumasDeInclinaciones(const SitioCielo& sitio, std::span<const double> adInclinaciones,
                                      double dOrientacion, std::span<SumasMeses> sumas);
};

/// Makes `biblioteca` the one in use; null gives the library's own back. It must outlive its use.
EFV_API void InstalarBiblioteca(BibliotecaClima* biblioteca);

/// The one in use.
EFV_API BibliotecaClima& BibliotecaActual();

/// Loads the climate record that the library's own clGetID reads: a record of 13 columns, an EPW file or a
/// reference climate of the building code, told apart by their first lines. Empty path: none any more.
/// @param csError why it was refused, with the line; the record before then stays
EFV_API bool CargarRegistroClimatico(const CString& csRuta, CString& csError);

/// The same of a record that was read already.
EFV_API bool TomarRegistroClimatico(std::string_view bytes, CString& csError);

/// What the loaded climate record says of its place.
struct DatosRegistro {
    double dLatitud, dLongitud;  ///< degrees, north and east positive
};

/// Nothing without a loaded record.
EFV_API std::optional<DatosRegistro> RegistroCargado();

/// Loads the horizon that takes the direct radiation off: lines of azimuth (0 south, west positive) and
/// elevation in degrees. Empty path: none any more.
/// @param csError why it was refused; the horizon before then stays
EFV_API bool CargarHorizonte(const CString& csRuta, CString& csError);

}  // namespace efv::clima

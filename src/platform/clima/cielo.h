// Clear sky of one hour, and what a plane gets of it. Every plane of a site shares the hour's sky: it is made
// once, and planes cost a few operations each.
#pragma once

#include <optional>

namespace efv::clima {

/// Day of the 365-day year from 1; nothing when month (1 to 12) or day doesn't exist.
std::optional<int> DiaDelAno(int iMes, int iDia);

/// Sun and sky of an hour; all 0 while the sun is down.
struct HoraCielo {
    double dCosCenit = 0.0;
    double dSur = 0.0, dOeste = 0.0;      ///< horizontal components of the direction to the sun
    double dDirecta = 0.0;                ///< normal to the sun, W/m²
    double dGlobal = 0.0, dDifusa = 0.0;  ///< horizontal, W/m²
};

/// Sine and cosine of the latitude, made once a site.
struct LatitudCielo {
    explicit LatitudCielo(double dLatitud);
    double dSeno, dCoseno;
};

/// Declination by Spencer (1971) and extraterrestrial radiation of a day.
struct DiaCielo {
    explicit DiaCielo(int iDiaAno);
    double dSenoDeclinacion, dCosenoDeclinacion;
    double dExtraterrestre;  ///< W/m², normal to the sun
};

/// Sun of an hour: hour 1 to 24, its middle counts.
HoraCielo SolDeLaHora(const LatitudCielo& latitud, const DiaCielo& dia, int iHora);

/// Precipitable water by Gueymard (1994), cm; at least 0.1, and 0.1 where the formula has no answer.
double AguaPrecipitable(double dTemperatura, double dHumedad);

/// Pressure at an altitude in m, Pa.
double Presion(double dAltitud);

/// Fills the radiation of an hour whose sun is up: Bird and Hulstrom (1981) with ozone 0.3 cm, aerosol depth
/// 0.15 at 380 nm and 0.10 at 500 nm, asymmetry 0.85, albedo 0.2.
void CieloDespejado(HoraCielo& hora, double dExtraterrestre, double dPresion, double dAgua);

/// The plane's part of the formulas.
struct PlanoCielo {
    PlanoCielo(double dInclinacion, double dOrientacion);
    double dSenoInclinacion, dCosenoInclinacion, dSenoOrientacion, dCosenoOrientacion;
    double dVistaCielo, dVistaSuelo;  ///< shares of the sky and of the ground that it sees
};

constexpr double kAlbedo = 0.2;

/// Direct radiation on a plane, W/m².
inline double DirectaEnPlano(const HoraCielo& h, double dFrente, const PlanoCielo& p)
{
    const double dCosIncidencia = h.dCosCenit * p.dCosenoInclinacion + dFrente * p.dSenoInclinacion;
    return h.dDirecta * (dCosIncidencia > 0.0 ? dCosIncidencia : 0.0);
}

/// Horizontal component of the sun's direction that the plane faces.
inline double Frente(const HoraCielo& h, const PlanoCielo& p)
{
    return h.dSur * p.dCosenoOrientacion + h.dOeste * p.dSenoOrientacion;
}

/// All of the radiation on a plane, W/m²: direct, isotropic sky, ground.
inline double TotalEnPlano(const HoraCielo& h, double dFrente, const PlanoCielo& p)
{
    return DirectaEnPlano(h, dFrente, p) + h.dDifusa * p.dVistaCielo + kAlbedo * h.dGlobal * p.dVistaSuelo;
}

}  // namespace efv::clima

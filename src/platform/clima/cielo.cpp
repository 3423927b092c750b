#include "platform/clima/cielo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace efv::clima {

namespace {

constexpr double kRadianes = std::numbers::pi / 180.0;
constexpr std::array<int, 12> kDiasMes = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

constexpr double kConstanteSolar = 1366.1;  // W/m²
constexpr double kOzono = 0.3;              // cm
constexpr double kAsimetria = 0.85;
// Broadband aerosol depth of 0.15 at 380 nm and 0.10 at 500 nm (Bird and Hulstrom, 1980).
constexpr double kAerosol = 0.27583 * 0.15 + 0.35 * 0.10;

/// Relative air mass by Kasten (1966).
double MasaDeAire(double dCosCenit)
{
    const double dCenit = std::acos(std::min(dCosCenit, 1.0)) / kRadianes;
    return 1.0 / (dCosCenit + 0.15 * std::pow(93.885 - dCenit, -1.253));
}

/// What each constituent of the atmosphere lets through.
struct Transmision {
    double dRayleigh, dOzono, dGases, dAgua, dAerosol;
};

Transmision Transmitir(double dMasa, double dMasaPresion, double dAgua)
{
    const double o = kOzono * dMasa;
    const double w = dMasa * dAgua;
    // The aerosol's own factor doesn't depend on the hour.
    static const double dAerosol = -std::pow(kAerosol, 0.873) * (1.0 + kAerosol - std::pow(kAerosol, 0.7088));
    return {
        std::exp(-0.0903 * std::pow(dMasaPresion, 0.84) * (1.0 + dMasaPresion - std::pow(dMasaPresion, 1.01))),
        1.0 - 0.1611 * o * std::pow(1.0 + 139.48 * o, -0.3034) -
            0.002715 * o / (1.0 + 0.044 * o + 0.0003 * o * o),
        std::exp(-0.0127 * std::pow(dMasaPresion, 0.26)),
        1.0 - 2.4959 * w / (std::pow(1.0 + 79.034 * w, 0.6828) + 6.385 * w),
        std::exp(dAerosol * std::pow(dMasa, 0.9108)),
    };
}

/// Of an hour's middle; the same every day.
struct AnguloHora {
    double dSeno, dCoseno;
};

const std::array<AnguloHora, 24>& Angulos()
{
    static const auto angulos = [] {
        std::array<AnguloHora, 24> a{};
        for (int iHora = 1; iHora <= 24; ++iHora) {
            const double d = 15.0 * (iHora - 0.5 - 12.0) * kRadianes;
            a[static_cast<std::size_t>(iHora - 1)] = {std::sin(d), std::cos(d)};
        }
        return a;
    }();
    return angulos;
}

}  // namespace

std::optional<int> DiaDelAno(int iMes, int iDia)
{
    if (iMes < 1 || iMes > 12 || iDia < 1 || iDia > kDiasMes[static_cast<std::size_t>(iMes - 1)])
        return std::nullopt;
    int iDias = iDia;
    for (int m = 1; m < iMes; ++m)
        iDias += kDiasMes[static_cast<std::size_t>(m - 1)];
    return iDias;
}

LatitudCielo::LatitudCielo(double dLatitud)
    : dSeno(std::sin(dLatitud * kRadianes)), dCoseno(std::cos(dLatitud * kRadianes))
{
}

DiaCielo::DiaCielo(int iDiaAno)
{
    const double g = 2.0 * std::numbers::pi * (iDiaAno - 1) / 365.0;
    const double c1 = std::cos(g);
    const double s1 = std::sin(g);
    const double c2 = std::cos(2.0 * g);
    const double s2 = std::sin(2.0 * g);
    const double dDeclinacion = 0.006918 - 0.399912 * c1 + 0.070257 * s1 - 0.006758 * c2 + 0.000907 * s2 -
                                0.002697 * std::cos(3.0 * g) + 0.00148 * std::sin(3.0 * g);
    dSenoDeclinacion = std::sin(dDeclinacion);
    dCosenoDeclinacion = std::cos(dDeclinacion);
    dExtraterrestre =
        kConstanteSolar * (1.00011 + 0.034221 * c1 + 0.00128 * s1 + 0.000719 * c2 + 0.000077 * s2);
}

HoraCielo SolDeLaHora(const LatitudCielo& f, const DiaCielo& dia, int iHora)
{
    const auto& [dSenoHora, dCosHora] = Angulos()[static_cast<std::size_t>(iHora - 1)];
    const double dCosCenit = f.dSeno * dia.dSenoDeclinacion + f.dCoseno * dia.dCosenoDeclinacion * dCosHora;
    if (!(dCosCenit > 0.0))
        return {};
    HoraCielo h;
    h.dCosCenit = dCosCenit;
    h.dSur = f.dSeno * dia.dCosenoDeclinacion * dCosHora - f.dCoseno * dia.dSenoDeclinacion;
    h.dOeste = dia.dCosenoDeclinacion * dSenoHora;
    return h;
}

double AguaPrecipitable(double dTemperatura, double dHumedad)
{
    constexpr double kMinima = 0.1;
    const double dKelvin = dTemperatura + 273.15;
    if (!(dKelvin > 0.0))
        return kMinima;
    const double t = dKelvin / 273.15;
    const double c = 100.0 / dKelvin;
    const double dAgua = 0.1 * (0.4976 + 1.5265 * t + std::exp(13.6897 * t - 14.9188 * (t * t * t))) *
                         (216.7 * (dHumedad * 100.0) / (100.0 * dKelvin) *
                          std::exp(22.330 - 49.140 * c - 10.922 * (c * c) - 0.39015 * dKelvin / 100.0));
    return dAgua > kMinima ? dAgua : kMinima;
}

double Presion(double dAltitud)
{
    return 100.0 * std::pow((44331.514 - dAltitud) / 11880.516, 1.0 / 0.1902632);
}

void CieloDespejado(HoraCielo& h, double dExtraterrestre, double dPresion, double dAgua)
{
    const double dMasa = MasaDeAire(h.dCosCenit);
    const double dMasaPresion = dMasa * dPresion / 101325.0;
    const Transmision t = Transmitir(dMasa, dMasaPresion, dAgua);
    const double dAbsorbida = 1.0 - 0.1 * (1.0 - dMasa + std::pow(dMasa, 1.06)) * (1.0 - t.dAerosol);
    const double dDispersa = t.dAerosol / dAbsorbida;
    const double dReflejada = 0.0685 + (1.0 - kAsimetria) * (1.0 - dDispersa);
    h.dDirecta = 0.9662 * dExtraterrestre * t.dAerosol * t.dAgua * t.dGases * t.dOzono * t.dRayleigh;
    const double dHorizontal = h.dDirecta * h.dCosCenit;
    const double dCielo = dExtraterrestre * h.dCosCenit * 0.79 * t.dOzono * t.dGases * t.dAgua * dAbsorbida *
                          (0.5 * (1.0 - t.dRayleigh) + kAsimetria * (1.0 - dDispersa)) /
                          (1.0 - dMasa + std::pow(dMasa, 1.02));
    h.dGlobal = (dHorizontal + dCielo) / (1.0 - kAlbedo * dReflejada);
    h.dDifusa = h.dGlobal - dHorizontal;
}

PlanoCielo::PlanoCielo(double dInclinacion, double dOrientacion)
    : dSenoInclinacion(std::sin(dInclinacion * kRadianes)),
      dCosenoInclinacion(std::cos(dInclinacion * kRadianes)),
      dSenoOrientacion(std::sin(dOrientacion * kRadianes)),
      dCosenoOrientacion(std::cos(dOrientacion * kRadianes)),
      dVistaCielo((1.0 + dCosenoInclinacion) / 2.0),
      dVistaSuelo((1.0 - dCosenoInclinacion) / 2.0)
{
}

}  // namespace efv::clima

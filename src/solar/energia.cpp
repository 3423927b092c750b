#include "solar/energia.h"

#include <array>
#include <cmath>

#include "solar/radiacion.h"

namespace efv::solar {

namespace {

constexpr int kCorrelacion = 0;

// By the table February always has 29 days.
constexpr std::array<int, 12> kDiasMesTabla = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool MesValido(int iMes)
{
    return iMes >= 0 && iMes < 12;
}

FactoresEnergia Factores(const ConsultaRadiacion& c)
{
    return {c.dPotenciaPico, c.dPR, c.dFactorAdicional};
}

RegistroRadiacion RegistroDelMes(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                 const FactoresEnergia& f)
{
    RegistroRadiacion registro;
    CalcularMes(registro, iMes, PrepararPlano(c.dLatitud, c.dInclinacion), dRadHorizontal, f);
    return registro;
}

// The table's energy of a day: neither performance ratio nor additional factor, and this short constant
// for kJ to kWh.
double EnergiaDiaTabla(const ConsultaRadiacion& c, double dRadHorizontal, double dK)
{
    return dRadHorizontal * c.dPotenciaPico * dK * 0.000278;
}

}  // namespace

std::optional<std::array<double, 12>> FactoresK(const CBaseFactorK& tabla, double dLatitud, int iHemisferio,
                                                double dAlpha)
{
    const double magnitud = std::abs(dLatitud);
    std::array<double, 12> k{};
    if (tabla.GetFactoresK(iHemisferio == 1 ? magnitud : -magnitud, dAlpha, k[0], k[1], k[2], k[3], k[4], k[5],
                           k[6], k[7], k[8], k[9], k[10], k[11]) == 0)
        return std::nullopt;
    return k;
}

std::optional<double> RadiacionDia(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                   const CBaseFactorK& tabla)
{
    if (!MesValido(iMes))
        return std::nullopt;
    const auto m = static_cast<std::size_t>(iMes);
    if (c.iMetodo == kCorrelacion)
        return RegistroDelMes(c, iMes, dRadHorizontal, {1.0, c.dPR, c.dFactorAdicional}).dRadPlanoKWh[m];
    const auto k = FactoresK(tabla, c.dLatitud, c.iHemisferio, c.dInclinacion);
    if (!k)
        return std::nullopt;
    return HorasPico(dRadHorizontal, (*k)[m]);
}

std::optional<double> EnergiaDia(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                 const CBaseFactorK& tabla)
{
    if (!MesValido(iMes))
        return std::nullopt;
    const auto m = static_cast<std::size_t>(iMes);
    if (c.iMetodo == kCorrelacion)
        return RegistroDelMes(c, iMes, dRadHorizontal, Factores(c)).dEnergiaDia[m];
    const auto k = FactoresK(tabla, c.dLatitud, c.iHemisferio, c.dInclinacion);
    if (!k)
        return std::nullopt;
    return EnergiaDiaTabla(c, dRadHorizontal, (*k)[m]);
}

std::optional<double> EnergiaMes(const ConsultaRadiacion& c, int iMes, double dRadHorizontal,
                                 const CBaseFactorK& tabla)
{
    if (!MesValido(iMes))
        return std::nullopt;
    const auto m = static_cast<std::size_t>(iMes);
    if (c.iMetodo == kCorrelacion)
        return RegistroDelMes(c, iMes, dRadHorizontal, Factores(c)).dEnergiaMes[m];
    const auto dia = EnergiaDia(c, iMes, dRadHorizontal, tabla);
    if (!dia)
        return std::nullopt;
    return *dia * kDiasMesTabla[m];
}

std::optional<double> EnergiaAno(const ConsultaRadiacion& c, std::span<const double, 12> adRadHorizontal,
                                 const CBaseFactorK& tabla)
{
    double suma = 0.0;
    if (c.iMetodo == kCorrelacion) {
        RegistroRadiacion registro;
        const PlanoInclinado plano = PrepararPlano(c.dLatitud, c.dInclinacion);
        for (int iMes = 0; iMes < 12; ++iMes)
            CalcularMes(registro, iMes, plano, adRadHorizontal[static_cast<std::size_t>(iMes)], Factores(c));
        for (double energia : registro.dEnergiaMes)
            suma += energia;
        return suma;
    }
    // The factors don't depend on the month asked: looked up once for all twelve.
    const auto k = FactoresK(tabla, c.dLatitud, c.iHemisferio, c.dInclinacion);
    if (!k)
        return std::nullopt;
    for (std::size_t m = 0; m < 12; ++m)
        suma += EnergiaDiaTabla(c, adRadHorizontal[m], (*k)[m]) * kDiasMesTabla[m];
    return suma;
}

}  // namespace efv::solar

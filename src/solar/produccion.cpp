#include <quorvel/solar/produccion.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "solar/calendario.h"
#include "solar/curvas_inclinacion.h"

namespace efv::solar {

namespace {

constexpr std::size_t kHoras = kHorasAno;
constexpr double kW = 1000.0;

using Ano = std::vector<double>;

// What each month of the clear sky is multiplied by to give the place's radiation.
DoceMeses FactoresDelCielo(const CampoSolar& campo, const Ano& adHorizontal)
{
    DoceMeses adFactor{};
    std::size_t iHora = 0;
    for (std::size_t m = 0; m < kMeses; ++m) {
        double dSuma = 0.0;
        for (const std::size_t iFin = iHora + static_cast<std::size_t>(kDiasMesReferencia[m]) * 24;
             iHora < iFin; ++iHora)
            dSuma += adHorizontal[iHora];
        const double dMes = campo.adRadHorizontal[m] / kKJporKWh * kDiasMesReferencia[m] * kW;
        if (dSuma > 0.0)
            adFactor[m] = dMes / dSuma;
        else
            adFactor[m] = dMes == 0.0 ? 0.0 : std::numeric_limits<double>::quiet_NaN();
    }
    return adFactor;
}

Ano Cielo(const clima::SitioCielo& sitio, double dInclinacion, double dOrientacion)
{
    Ano ad(kHoras);
    clima::BibliotecaActual().AnoDelPlano(sitio, dInclinacion, dOrientacion, std::span<double, kHoras>(ad));
    return ad;
}

void SumarCielo(const CampoSolar& campo, double dAltitud, std::span<const PlanoCampo> planos, Ano& adSuma)
{
    const double dLatitud = campo.bNorte ? std::abs(campo.dLatitud) : -std::abs(campo.dLatitud);
    const clima::SitioCielo sitio{dAltitud, dLatitud, kHumedadNormal, TemperaturasNormales()};
    const DoceMeses adFactor = FactoresDelCielo(campo, Cielo(sitio, 0.0, 0.0));
    for (const PlanoCampo& plano : planos) {
        const Ano ad = Cielo(sitio, plano.dInclinacion, plano.dOrientacion);
        std::size_t iHora = 0;
        for (std::size_t m = 0; m < kMeses; ++m)
            for (const std::size_t iFin = iHora + static_cast<std::size_t>(kDiasMesReferencia[m]) * 24;
                 iHora < iFin; ++iHora)
                adSuma[iHora] += ad[iHora] * adFactor[m] * plano.dParte;
    }
}

void SumarRegistro(std::span<const PlanoCampo> planos, Ano& adSuma)
{
    for (const PlanoCampo& plano : planos) {
        for (std::size_t i = 0; i < kHoras; ++i) {
            const double dRadiacion =
                clima::BibliotecaActual().clGetID(static_cast<int>(i), plano.dInclinacion, plano.dOrientacion);
            adSuma[i] += std::max(dRadiacion, 0.0) * plano.dParte;
        }
    }
}

}  // namespace

std::vector<double> HorasDeLosPlanos(const CampoSolar& campo, double dAltitud,
                                     std::span<const PlanoCampo> planos, OrigenHoras origen)
{
    Ano adEnergia(kHoras);
    if (origen == OrigenHoras::cielo)
        SumarCielo(campo, dAltitud, planos, adEnergia);
    else
        SumarRegistro(planos, adEnergia);
    for (double& d : adEnergia)
        d = d / kW * campo.dPotencia * campo.dPR * campo.dFactor;
    return adEnergia;
}

}  // namespace efv::solar

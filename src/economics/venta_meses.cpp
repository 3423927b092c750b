// Monthly tables of a sale to the grid.
#include <numeric>

#include <quorvel/economics_calculo.h>

#include "solar/calendario.h"

namespace efv::economics {

namespace {

double Mejora(const CSFVCalculoEconomico& e)
{
    return e.dFactorMejora / 100.0 + 1.0;
}

MesesVenta Radiaciones(std::span<const double, 12> adHorizontal, std::span<const double, 12> adInclinada)
{
    MesesVenta meses;
    for (std::size_t m = 0; m < 12; ++m) {
        meses.adRadHorizontal[m] = adHorizontal[m] * 0.001;
        meses.adRadInclinada[m] = adInclinada[m] * 0.001;
    }
    return meses;
}

void Anadir(CArray<double, double&>& destino, const std::array<double, 12>& adMeses)
{
    for (const double d : adMeses)
        destino.Add(d);
    destino.Add(std::accumulate(adMeses.begin(), adMeses.end(), 0.0) / 12.0);
}

}  // namespace

MesesVenta MesesPorRadiacion(const CSFVCalculoEconomico& e, std::span<const double, 12> adHorizontal,
                             std::span<const double, 12> adInclinada)
{
    MesesVenta meses = Radiaciones(adHorizontal, adInclinada);
    const double dKWp = e.dPotenciaGenerador / 1000.0;
    const double dPR = e.dPerformanceRatio / 100.0;
    for (std::size_t m = 0; m < 12; ++m) {
        meses.adEnergiaDia[m] = dKWp * meses.adRadInclinada[m] * dPR * Mejora(e);
        meses.adEnergiaMes[m] = meses.adEnergiaDia[m] * solar::kDiasMesReferencia[m];
    }
    return meses;
}

MesesVenta MesesPorEnergia(const CSFVCalculoEconomico& e, std::span<const double, 12> adHorizontal,
                           std::span<const double, 12> adInclinada, std::span<const double, 12> adEnergia)
{
    MesesVenta meses = Radiaciones(adHorizontal, adInclinada);
    const double dPR = e.dPerformanceRatio / 100.0;
    for (std::size_t m = 0; m < 12; ++m) {
        meses.adEnergiaDia[m] = adEnergia[m] * dPR / solar::kDiasMesReferencia[m] * Mejora(e);
        meses.adEnergiaMes[m] = adEnergia[m] * dPR * Mejora(e);
    }
    return meses;
}

void AnadirMeses(CSFVCalculoEconomico& e, const MesesVenta& meses)
{
    Anadir(e.aRadHorizontal, meses.adRadHorizontal);
    Anadir(e.aRadInclinada, meses.adRadInclinada);
    Anadir(e.aEnergiaDia, meses.adEnergiaDia);
    Anadir(e.aEnergiaMes, meses.adEnergiaMes);
}

}  // namespace efv::economics

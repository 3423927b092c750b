// Monthly energies by tariff period, spread over the hours of a year.
#include <quorvel/consumption.h>

#include "solar/calendario.h"

namespace efv {

namespace {

constexpr std::size_t kPeriodos = kPeriodosTarifa;
using SumasPorPeriodo = std::array<double, kPeriodos>;

// Spreads the energies of one day, already a day's part of the month's.
void RepartirDia(const SumasPorPeriodo& adEnergia, const int (&aiPeriodoHora)[24], const double* factores,
                 double* horas)
{
    SumasPorPeriodo adSuma{};
    for (std::size_t h = 0; h < 24; ++h)
        adSuma[static_cast<std::size_t>(aiPeriodoHora[h])] += factores[h];
    for (std::size_t h = 0; h < 24; ++h) {
        const auto p = static_cast<std::size_t>(aiPeriodoHora[h]);
        horas[h] = adEnergia[p] * factores[h] / adSuma[p];
    }
}

}  // namespace

void RepartirMeses(const double (&adMes)[12][6], const int (&aiPeriodoHora)[24], AnoHorarioVista ano,
                   std::span<double, kHorasDelAno> adHoras)
{
    for (const int iPeriodo : aiPeriodoHora)
        ComprobarIndice(iPeriodo, kPeriodos);
    std::size_t iHora = 0;
    for (std::size_t iMes = 0; iMes < 12; ++iMes) {
        const int nDias = solar::kDiasMesReferencia[iMes];
        SumasPorPeriodo adEnergia;
        for (std::size_t p = 0; p < kPeriodos; ++p)
            adEnergia[p] = adMes[iMes][p] / nDias;
        for (int i = 0; i < nDias; ++i, iHora += 24)
            RepartirDia(adEnergia, aiPeriodoHora, &ano[iHora], &adHoras[iHora]);
    }
}

}  // namespace efv

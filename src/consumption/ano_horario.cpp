// The hourly year: its periods and sums, and the year that loads consume.
#include <algorithm>
#include <numeric>

#include <quorvel/consumption.h>

#include "consumption/franjas.h"
#include "solar/calendario.h"

namespace efv {

namespace {

int DiasDeMes(int iMes)
{
    ComprobarIndice(iMes, solar::kDiasMesReferencia.size());
    return solar::kDiasMesReferencia[static_cast<std::size_t>(iMes)];
}

}  // namespace

TramoHoras HorasDePeriodo(int iPeriodo)
{
    if (iPeriodo >= 12)
        return {0, solar::kHorasAno};
    const int iHoras = 24 * DiasDeMes(iPeriodo);
    int iInicio = 0;
    for (int iMes = 0; iMes < iPeriodo; ++iMes)
        iInicio += 24 * DiasDeMes(iMes);
    return {iInicio, iInicio + iHoras};
}

TramoHoras HorasDeDia(int iMes, int iDia)
{
    ComprobarIndice(iDia, static_cast<std::size_t>(DiasDeMes(iMes)));
    const int iInicio = HorasDePeriodo(iMes).iInicio + 24 * iDia;
    return {iInicio, iInicio + 24};
}

double SumaDeHoras(AnoHorarioVista adHoras, TramoHoras tramo)
{
    const auto horas =
        adHoras.subspan(static_cast<std::size_t>(tramo.iInicio), static_cast<std::size_t>(tramo.Horas()));
    return std::accumulate(horas.begin(), horas.end(), 0.0);
}

ResumenConsumo ResumirHoras(AnoHorarioVista adHoras, double dPotMaxima, int iMes, int iDia)
{
    return {dPotMaxima, SumaDeHoras(adHoras, HorasDeDia(iMes, iDia)),
            SumaDeHoras(adHoras, HorasDePeriodo(iMes))};
}

ResumenConsumo ResumirReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores, int iMes, int iDiaTipo)
{
    ResumenConsumo resumen;
    for (const auto& receptor : lReceptores) {
        if (receptor->IsNoCalcular() != 0)
            continue;
        const double dPotencia = receptor->GetPcc();
        resumen.dPotencia += dPotencia;
        resumen.dEnergiaDia += dPotencia * receptor->GetNHdia(iMes, iDiaTipo);
    }
    resumen.dEnergiaMes = DiasDeMes(iMes) * resumen.dEnergiaDia;
    return resumen;
}

namespace {

constexpr std::size_t kTiposDeDia = 7;

// The power of a load through the hours of a day, W. Most days of a load are like the day before.
class PotenciasDelDia {
public:
    explicit PotenciasDelDia(double dPotencia) : m_dPotencia(dPotencia) {}

    const std::array<double, 24>& De(const double (&franjas)[6])
    {
        if (m_bCalculadas && std::ranges::equal(m_franjas, franjas))
            return m_potencias;
        std::ranges::copy(franjas, m_franjas.begin());
        m_bCalculadas = true;
        m_potencias = consumption::FraccionesDelDia(franjas);
        for (double& d : m_potencias)
            d *= m_dPotencia;
        return m_potencias;
    }

private:
    double m_dPotencia;
    bool m_bCalculadas = false;
    std::array<double, 6> m_franjas{};
    std::array<double, 24> m_potencias{};
};

}  // namespace

// An hour's value depends on its month, day type and hour of the day only. So the loads are summed once for
// each of those 2016, in list order, and the year is filled from them: each hour gets the same sums in the
// same order as when every load went through the whole year.
double AnoDeReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores,
                       std::span<double, kHorasDelAno> adHoras)
{
    std::array<std::array<double, 24>, 12 * kTiposDeDia> suma{};
    double dPotMaxima = 0.0;
    for (const auto& receptor : lReceptores) {
        if (receptor->IsNoCalcular() != 0)
            continue;
        PotenciasDelDia potencias(receptor->GetPcc());
        for (std::size_t i = 0; i < suma.size(); ++i) {
            const auto& dia = potencias.De(receptor->dHorario[i / kTiposDeDia][i % kTiposDeDia]);
            for (std::size_t h = 0; h < dia.size(); ++h)
                suma[i][h] += dia[h];
        }
        dPotMaxima += receptor->GetPcc();
    }
    std::size_t nDia = 0;
    for (std::size_t iMes = 0; iMes < 12; ++iMes)
        for (int i = 0; i < solar::kDiasMesReferencia[iMes]; ++i, ++nDia)
            std::ranges::copy(suma[iMes * kTiposDeDia + nDia % kTiposDeDia],
                              adHoras.begin() + static_cast<std::ptrdiff_t>(24 * nDia));
    return dPotMaxima;
}

}  // namespace efv

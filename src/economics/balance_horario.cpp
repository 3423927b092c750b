// Hourly balance of self-consumption, with and without battery.
#include <algorithm>
#include <array>
#include <cmath>

#include <quorvel/economics_calculo.h>

#include "economics/horas_bloque.h"

namespace efv::economics {

namespace {

/// Sums of absolute hourly values.
struct SumasBalance {
    double dGasto = 0.0, dAutoconsumo = 0.0, dVertido = 0.0;

    FilaBalance Fila(bool bAportacionFV) const
    {
        FilaBalance fila;
        fila.dConsumoTotal = dGasto;
        if (bAportacionFV) {
            fila.dAutoconsumo = dAutoconsumo;
            fila.dVertido = dVertido;
        }
        fila.dAhorro = fila.dAutoconsumo + fila.dVertido;
        fila.dResultante = fila.dConsumoTotal - fila.dAhorro;
        return fila;
    }
};

SumasBalance BalanceSinBateria(const HorasEstudio& h, TramoHoras tramo, BalanceHorario& b)
{
    const double* const P = h.adProduccion.data();
    const double* const C = h.adConsumo.data();
    const double* const B = h.adPrecioConsumo.data();
    const double* const S = h.adPrecioVertido.data();
    double* const adGasto = b.adGasto.data();
    double* const adAutoconsumo = b.adValorAutoconsumo.data();
    double* const adVertido = b.adValorVertido.data();
    double dGasto = 0.0, dAutoconsumo = 0.0, dVertido = 0.0;
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        const double dSobrante = P[i] - C[i];
        const double dExportado = dSobrante > 0.0 ? dSobrante : 0.0;
        dGasto += std::abs(adGasto[i] = B[i] * C[i]);
        dAutoconsumo += std::abs(adAutoconsumo[i] = (P[i] - dExportado) * B[i]);
        dVertido += std::abs(adVertido[i] = dExportado * S[i]);
    }
    return {dGasto, dAutoconsumo, dVertido};
}

SumasBalance BalanceConBateria(const HorasEstudio& h, const HorasBateria& bat, TramoHoras tramo,
                               BalanceHorario& b)
{
    SumasBalance sumas;
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        const double dPrecio = h.adPrecioConsumo[i];
        const double dGasto =
            dPrecio * bat.adCargaRed[i] + dPrecio * h.adConsumo[i] + bat.adDescarga[i] * bat.dCosteDegradacion;
        const double dAutoconsumo = dPrecio * bat.adAutoconsumo[i];
        const double dVertido = h.adPrecioVertido[i] * bat.adVertido[i];
        b.adGasto[i] = dGasto;
        b.adValorAutoconsumo[i] = dAutoconsumo;
        b.adValorVertido[i] = dVertido;
        sumas.dGasto += std::abs(dGasto);
        sumas.dAutoconsumo += std::abs(dAutoconsumo);
        sumas.dVertido += std::abs(dVertido);
    }
    return sumas;
}

SumasBalance Sumar(const BalanceHorario& b, TramoHoras tramo)
{
    SumasBalance sumas;
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        sumas.dGasto += std::abs(b.adGasto[i]);
        sumas.dAutoconsumo += std::abs(b.adValorAutoconsumo[i]);
        sumas.dVertido += std::abs(b.adValorVertido[i]);
    }
    return sumas;
}

}  // namespace

// The sums go along with the hours: each waits for the one before it, and the rest is done meanwhile.
std::array<FilaBalance, 12> CalcularBalance(const HorasEstudio& horas, const HorasBateria& bateria,
                                            BalanceHorario& balance)
{
    const std::array<std::vector<double>*, 3> bloques{&balance.adGasto, &balance.adValorAutoconsumo,
                                                      &balance.adValorVertido};
    for (auto* bloque : bloques)
        bloque->resize(kHorasBloque);
    std::array<FilaBalance, 12> filas;
    for (std::size_t m = 0; m < 12; ++m) {
        const TramoHoras tramo = HorasDelMes(m);
        const SumasBalance sumas = bateria.HayBalance() ? BalanceConBateria(horas, bateria, tramo, balance)
                                                        : BalanceSinBateria(horas, tramo, balance);
        filas[m] = sumas.Fila(true);
        for (auto* bloque : bloques)
            std::fill(bloque->begin() + static_cast<std::ptrdiff_t>(tramo.iFin),
                      bloque->begin() + static_cast<std::ptrdiff_t>((m + 1) * kHorasMesBloque), 0.0);
    }
    return filas;
}

std::array<FilaBalance, 12> MesesBalance(const BalanceHorario& balance, bool bAportacionFV)
{
    std::array<FilaBalance, 12> filas;
    for (std::size_t m = 0; m < 12; ++m)
        filas[m] = Sumar(balance, HorasDelMes(m)).Fila(bAportacionFV);
    return filas;
}

FilaBalance DiaBalance(const BalanceHorario& balance, bool bAportacionFV, int iMes, int iDia)
{
    const std::size_t iPrimera = PrimeraHora(iMes, iDia);
    FilaBalance fila = Sumar(balance, {iPrimera, iPrimera + 24}).Fila(bAportacionFV);
    fila.dResultante = fila.dConsumoTotal - (fila.dVertido + fila.dAutoconsumo);
    return fila;
}

double GastoHora(const BalanceHorario& b, bool bAportacionFV, std::size_t iHora)
{
    if (!bAportacionFV)
        return b.adGasto[iHora];
    return b.adGasto[iHora] - b.adValorAutoconsumo[iHora] - b.adValorVertido[iHora];
}

}  // namespace efv::economics

// Hourly balance of self-consumption, with and without battery.
#include <algorithm>
#include <cmath>

#include <quorvel/economics_calculo.h>

#include "economics/horas_bloque.h"

namespace efv::economics {

namespace {

void BalanceSinBateria(const HorasEstudio& h, TramoHoras tramo, BalanceHorario& b)
{
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        const double dSobrante = h.adProduccion[i] - h.adConsumo[i];
        const double dVertido = dSobrante > 0.0 ? dSobrante : 0.0;
        b.adGasto[i] = h.adPrecioConsumo[i] * h.adConsumo[i];
        b.adValorAutoconsumo[i] = (h.adProduccion[i] - dVertido) * h.adPrecioConsumo[i];
        b.adValorVertido[i] = dVertido * h.adPrecioVertido[i];
    }
}

void BalanceConBateria(const HorasEstudio& h, const HorasBateria& bat, TramoHoras tramo, BalanceHorario& b)
{
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        const double dPrecio = h.adPrecioConsumo[i];
        b.adGasto[i] =
            dPrecio * bat.adCargaRed[i] + dPrecio * h.adConsumo[i] + bat.adDescarga[i] * bat.dCosteDegradacion;
        b.adValorAutoconsumo[i] = dPrecio * bat.adAutoconsumo[i];
        b.adValorVertido[i] = h.adPrecioVertido[i] * bat.adVertido[i];
    }
}

FilaBalance Sumar(const BalanceHorario& b, bool bAportacionFV, TramoHoras tramo)
{
    double dGasto = 0.0;
    double dAutoconsumo = 0.0;
    double dVertido = 0.0;
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        dGasto += std::abs(b.adGasto[i]);
        dAutoconsumo += std::abs(b.adValorAutoconsumo[i]);
        dVertido += std::abs(b.adValorVertido[i]);
    }
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

}  // namespace

void CalcularBalance(const HorasEstudio& horas, const HorasBateria& bateria, BalanceHorario& balance)
{
    for (auto* bloque : {&balance.adGasto, &balance.adValorAutoconsumo, &balance.adValorVertido})
        bloque->resize(kHorasBloque);
    for (std::size_t m = 0; m < 12; ++m) {
        const TramoHoras tramo = HorasDelMes(m);
        if (bateria.HayBalance())
            BalanceConBateria(horas, bateria, tramo, balance);
        else
            BalanceSinBateria(horas, tramo, balance);
        for (auto* bloque : {&balance.adGasto, &balance.adValorAutoconsumo, &balance.adValorVertido})
            std::fill(bloque->begin() + static_cast<std::ptrdiff_t>(tramo.iFin),
                      bloque->begin() + static_cast<std::ptrdiff_t>((m + 1) * kHorasMesBloque), 0.0);
    }
}

std::array<FilaBalance, 12> MesesBalance(const BalanceHorario& balance, bool bAportacionFV)
{
    std::array<FilaBalance, 12> filas;
    for (std::size_t m = 0; m < 12; ++m)
        filas[m] = Sumar(balance, bAportacionFV, HorasDelMes(m));
    return filas;
}

FilaBalance DiaBalance(const BalanceHorario& balance, bool bAportacionFV, int iMes, int iDia)
{
    const std::size_t iPrimera =
        static_cast<std::size_t>(iMes) * kHorasMesBloque + static_cast<std::size_t>(iDia) * 24;
    FilaBalance fila = Sumar(balance, bAportacionFV, {iPrimera, iPrimera + 24});
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

// What an installation for self-consumption costs, saves, and how long it takes to pay.
#include <cmath>

#include <quorvel/economics_calculo.h>

#include "economics/horas_bloque.h"
#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"

namespace efv::economics {

namespace {

/// A month as a part of the year and a percentage point as a fraction, each as the system writes it.
constexpr double kMes = 0.08333333333333333;
constexpr double kPunto = 0.01;
/// Saving of a year, €, at which an installation is not viable.
constexpr double kAhorroMinimo = 0.01;

// One instalment for each month begun.
double SumaDeCuotas(double dCuota, double dMeses)
{
    if (dMeses > kMaximoMesesSumados)
        return dCuota * dMeses;
    double dSuma = 0.0;
    for (int m = 0; m < dMeses; ++m)
        dSuma += dCuota;
    return dSuma;
}

/// Sums of a year behind the saving.
struct SumasAno {
    double dAutoconsumo = 0.0, dVertido = 0.0, dExtra = 0.0;
};

void DineroSinBateria(const HorasEstudio& h, std::size_t m, DineroAnual& d, SumasAno& suma)
{
    const auto [iPrimera, iFin] = HorasDelMes(m);
    for (std::size_t i = iPrimera; i < iFin; ++i) {
        const double dSobrante = h.adProduccion[i] - h.adConsumo[i];
        const double dExportado = dSobrante > 0.0 ? dSobrante : 0.0;
        const double dAutoconsumo = (h.adProduccion[i] - dExportado) * h.adPrecioConsumo[i];
        const double dVertido = dExportado * h.adPrecioVertido[i];
        d.adMesGasto[m] += h.adConsumo[i] * h.adPrecioConsumo[i];
        d.adMesVertido[m] += dVertido;
        d.adMesAutoconsumo[m] += dAutoconsumo;
        suma.dVertido += dVertido;
        suma.dAutoconsumo += dAutoconsumo;
    }
}

void DineroConBateria(const HorasEstudio& h, const HorasBateria& bat, std::size_t m, DineroAnual& d,
                      SumasAno& suma)
{
    const auto [iPrimera, iFin] = HorasDelMes(m);
    for (std::size_t i = iPrimera; i < iFin; ++i) {
        const double dPrecio = h.adPrecioConsumo[i];
        const double dExtra = dPrecio * bat.adCargaRed[i] + bat.adDescarga[i] * bat.dCosteDegradacion;
        const double dAutoconsumo = bat.adAutoconsumo[i] * dPrecio;
        const double dVertido = bat.adVertido[i] * h.adPrecioVertido[i];
        d.adMesGasto[m] += h.adConsumo[i] * dPrecio + dExtra;
        d.adMesVertido[m] += dVertido;
        d.adMesAutoconsumo[m] += dAutoconsumo;
        suma.dVertido += dVertido;
        suma.dAutoconsumo += dAutoconsumo;
        suma.dExtra += dExtra;
    }
}

}  // namespace

void CalcularFinanciacion(CSFVCalculoEconomicoAuto& e)
{
    e.dCapitalFinanciado = e.dCosteInstalacion - e.dCapitalInicial;
    e.dCosteTotal = e.dCosteInstalacion;
    e.dIntereses = 0.0;
    e.dCosteFinanciacion = 0.0;
    if (!numero::Mayor(e.dTipoInteres, 0.0))
        return;
    const double r = e.dTipoInteres * kMes * kPunto;
    if (e.dMesesFinanciacion > 0.0) {
        const double dCuota = e.dCapitalFinanciado * r / (1.0 - std::pow(1.0 + r, -e.dMesesFinanciacion));
        e.dCosteFinanciacion = SumaDeCuotas(dCuota, e.dMesesFinanciacion);
    }
    e.dCosteTotal = e.dCosteFinanciacion + e.dCapitalInicial;
    e.dIntereses = e.dCosteFinanciacion - e.dCapitalFinanciado;
}

DineroAnual CalcularDinero(const HorasEstudio& horas, const HorasBateria& bateria)
{
    DineroAnual dinero;
    SumasAno suma;
    for (std::size_t m = 0; m < 12; ++m) {
        if (bateria.HayBalance())
            DineroConBateria(horas, bateria, m, dinero, suma);
        else
            DineroSinBateria(horas, m, dinero, suma);
    }
    dinero.dAhorro = suma.dAutoconsumo + suma.dVertido - suma.dExtra;
    return dinero;
}

double FactorAnual(const CSFVCalculoEconomicoAuto& e)
{
    return (1.0 - e.dEnvejecimiento / 100.0) + e.dVariacionPrecio / 100.0;
}

Recuperacion CalcularRecuperacion(double dCosteTotal, double dAhorro, double dFactor)
{
    double dResto = dCosteTotal;
    double dAnos = 0.0;
    for (int y = 0; y < kMaximoAnosRecuperacion; ++y) {
        if (y != 0)
            dAhorro *= dFactor;
        const double dAntes = dResto;
        dResto -= dAhorro;
        if (numero::MenorIgual(dAhorro, kAhorroMinimo))
            break;
        if (numero::MenorIgual(dResto, 0.0)) {
            dResto += dAhorro;
            return {true, dAnos + dResto / dAhorro};
        }
        if (dResto == dAntes)
            break;
        dAnos += 1.0;
    }
    return {false, 0.0};
}

std::vector<FilaAmortizacion> TablaAmortizacion(const CSFVCalculoEconomicoAuto& e, const DineroAnual& dinero,
                                                const HorasEstudio& horas, const HorasBateria& bateria)
{
    std::array<double, 12> adAhorro{};
    for (std::size_t m = 0; m < 12; ++m) {
        adAhorro[m] = dinero.adMesAutoconsumo[m] + dinero.adMesVertido[m];
        if (!bateria.HayCoste())
            continue;
        const auto [iPrimera, iFin] = HorasDelMes(m);
        for (std::size_t i = iPrimera; i < iFin; ++i)
            adAhorro[m] -= bateria.adCargaRed[i] * horas.adPrecioConsumo[i] +
                           bateria.adDescarga[i] * bateria.dCosteDegradacion;
    }
    const double dFactor = FactorAnual(e);
    const int iMeses = numero::Entero(std::ceil(e.dAniosRecuperacion * 12.0));
    std::vector<FilaAmortizacion> filas{{.dCapital = e.dCosteTotal}};
    double dAcumulado = 0.0;
    for (int i = 1; i <= iMeses; ++i) {
        const auto m = static_cast<std::size_t>((i - 1) % 12);
        const bool bPrimerAno = i <= 12;
        if (!bPrimerAno)
            adAhorro[m] = dFactor * adAhorro[m];
        dAcumulado += adAhorro[m];
        filas.push_back({i, bPrimerAno ? dinero.adMesAutoconsumo[m] : dFactor * dinero.adMesAutoconsumo[m],
                         bPrimerAno ? dinero.adMesVertido[m] : dFactor * dinero.adMesVertido[m], adAhorro[m],
                         dAcumulado, e.dCosteTotal - dAcumulado});
    }
    return filas;
}

CSFVCalculoEconomicoAuto EstudioGlobal(std::span<const CSFVCalculoEconomicoAuto* const> estudios)
{
    // Everything but the performance ratio, which means nothing over several fields.
    using R = CSFVCalculoEconomicoAuto;
    static constexpr double R::*kTotales[] = {
        &R::dPotenciaPaneles,   &R::dPotenciaInversores, &R::dEnergiaProducida,  &R::dEnergiaConsumida,
        &R::dEnvejecimiento,    &R::dVariacionPrecio,    &R::dCosteInstalacion,  &R::dCapitalInicial,
        &R::dCapitalFinanciado, &R::dTipoInteres,        &R::dMesesFinanciacion,
    };
    static constexpr double R::*kMedias[] = {&R::dEnvejecimiento, &R::dVariacionPrecio, &R::dTipoInteres,
                                             &R::dMesesFinanciacion};
    R global;
    for (const auto campo : kTotales) {
        global.*campo = 0.0;
        for (const R* estudio : estudios)
            global.*campo += estudio->*campo;
    }
    for (const auto campo : kMedias)
        global.*campo /= static_cast<double>(estudios.size());
    return global;
}

}  // namespace efv::economics

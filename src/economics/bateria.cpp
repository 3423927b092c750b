// A battery hour by hour.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include <quorvel/bateria.h>
#include <quorvel/framework/CException.h>

#include "economics/horas_bloque.h"
#include "solar/calendario.h"

namespace efv::economics {

namespace {

constexpr std::size_t kHoras = solar::kHorasAno;
/// Hours that the rule of prices looks ahead.
constexpr std::size_t kVista = 24;

constexpr std::array<std::size_t, kHoras> HacerLugares()
{
    std::array<std::size_t, kHoras> aiLugar{};
    std::size_t t = 0;
    for (std::size_t m = 0; m < 12; ++m) {
        const TramoHoras tramo = HorasDelMes(m);
        for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i)
            aiLugar[t++] = i;
    }
    return aiLugar;
}

/// Place in a block of each hour of the year.
constexpr std::array<std::size_t, kHoras> kLugares = HacerLugares();

bool EsFraccion(double d)
{
    return d > 0.0 && d <= 1.0;
}

bool EsCantidad(double d)
{
    return std::isfinite(d) && d >= 0.0;
}

void Comprobar(const Bateria& b)
{
    if (!EsCantidad(b.dCapacidad) || !EsCantidad(b.dPotenciaCarga) || !EsCantidad(b.dPotenciaDescarga) ||
        !EsFraccion(b.dRendimientoCarga) || !EsFraccion(b.dRendimientoDescarga) ||
        !EsCantidad(b.dEstadoInicial) || b.dEstadoInicial > b.dCapacidad)
        throw CInvalidArgException("battery out of its range");
}

/// What a later hour asks of the store, kWh stored.
struct HoraVista {
    double dPrecio = 0.0;
    double dGasto = 0.0;   ///< drawn from the store to cover what the hour lacks
    double dAporte = 0.0;  ///< stored from what the hour leaves over
};

class ReglaDePrecios {
public:
    ReglaDePrecios(const HorasEstudio& horas, const Bateria& bateria, double dCosteDegradacion)
        : m_bateria(bateria),
          m_dRendimiento(bateria.dRendimientoCarga * bateria.dRendimientoDescarga),
          m_dCosteDegradacion(dCosteDegradacion),
          m_horas(kHoras)
    {
        for (std::size_t t = 0; t < kHoras; ++t) {
            const std::size_t i = kLugares[t];
            const double dSobra = horas.adProduccion[i] - horas.adConsumo[i];
            HoraVista& h = m_horas[t];
            h.dPrecio = horas.adPrecioConsumo[i];
            h.dGasto =
                std::min(std::max(-dSobra, 0.0), bateria.dPotenciaDescarga) / bateria.dRendimientoDescarga;
            h.dAporte = std::min(std::max(dSobra, 0.0), bateria.dPotenciaCarga) * bateria.dRendimientoCarga;
        }
    }

    /// What must be stored at the end of hour `t` for the dearer hours in sight, less what surpluses and
    /// cheaper hours can bring in before them. @param bComprada only for hours that pay for energy bought in
    /// `t`
    double Reserva(std::size_t t, bool bComprada) const
    {
        const double dPrecio = m_horas[t].dPrecio;
        const double dUmbral = bComprada ? dPrecio / m_dRendimiento + m_dCosteDegradacion : dPrecio;
        double dReserva = 0.0;
        for (std::size_t j = std::min(t + kVista, kHoras) - 1; j > t; --j) {
            const HoraVista& h = m_horas[j];
            dReserva -= h.dAporte;
            if (h.dPrecio < dPrecio)
                dReserva -= m_bateria.dPotenciaCarga * m_bateria.dRendimientoCarga;
            dReserva = std::max(dReserva, 0.0);
            if (h.dPrecio > dPrecio && h.dPrecio > dUmbral)
                dReserva = std::min(dReserva + h.dGasto, m_bateria.dCapacidad);
        }
        return dReserva;
    }

private:
    const Bateria& m_bateria;
    double m_dRendimiento, m_dCosteDegradacion;
    std::vector<HoraVista> m_horas;
};

void Vaciar(OperacionBateria& o)
{
    for (auto* bloque :
         {&o.adCargaFV, &o.adAutoconsumo, &o.adVertido, &o.adCargaRed, &o.adDescarga, &o.adEstado})
        bloque->assign(kHorasBloque, 0.0);
}

// `Reserva(t)` is what may not be drawn in hour t, `Compra(t)` what must be stored at its end.
template <class Reserva, class Compra>
void Operar(const HorasEstudio& horas, const Bateria& b, Reserva reserva, Compra compra, OperacionBateria& o)
{
    double dEstado = b.dEstadoInicial;
    for (std::size_t t = 0; t < kHoras; ++t) {
        const std::size_t i = kLugares[t];
        const double dDirecto = std::min(horas.adProduccion[i], horas.adConsumo[i]);
        const double dSobra = horas.adProduccion[i] - dDirecto;
        const double dFalta = horas.adConsumo[i] - dDirecto;
        const double dCargaFV =
            std::min({dSobra, b.dPotenciaCarga, (b.dCapacidad - dEstado) / b.dRendimientoCarga});
        dEstado = std::min(dEstado + dCargaFV * b.dRendimientoCarga, b.dCapacidad);
        double dDescarga = 0.0;
        if (dFalta > 0.0) {
            const double dLibre = std::max(dEstado - reserva(t), 0.0);
            dDescarga = std::min({dFalta, b.dPotenciaDescarga, dLibre * b.dRendimientoDescarga});
            dEstado = std::max(dEstado - dDescarga / b.dRendimientoDescarga, 0.0);
        }
        double dCargaRed = 0.0;
        if (dDescarga == 0.0) {
            dCargaRed = std::max(
                std::min(b.dPotenciaCarga - dCargaFV, (compra(t) - dEstado) / b.dRendimientoCarga), 0.0);
            dEstado = std::min(dEstado + dCargaRed * b.dRendimientoCarga, b.dCapacidad);
        }
        o.adCargaFV[i] = dCargaFV;
        o.adAutoconsumo[i] = dDirecto + dDescarga;
        o.adVertido[i] = dSobra - dCargaFV;
        o.adCargaRed[i] = dCargaRed;
        o.adDescarga[i] = dDescarga;
        o.adEstado[i] = dEstado;
    }
}

}  // namespace

HorasBateria OperacionBateria::Horas(double dCosteDegradacion) const
{
    return {adCargaFV.data(),  adAutoconsumo.data(), adVertido.data(),
            adCargaRed.data(), adDescarga.data(),    dCosteDegradacion};
}

void OperarBateria(const HorasEstudio& horas, const Bateria& bateria, ReglaBateria regla,
                   double dCosteDegradacion, OperacionBateria& operacion)
{
    Comprobar(bateria);
    Vaciar(operacion);
    if (regla == ReglaBateria::arbitraje) {
        const ReglaDePrecios precios(horas, bateria, dCosteDegradacion);
        Operar(
            horas, bateria, [&](std::size_t t) { return precios.Reserva(t, false); },
            [&](std::size_t t) { return precios.Reserva(t, true); }, operacion);
        return;
    }
    const auto nada = [](std::size_t) { return 0.0; };
    Operar(horas, bateria, nada, nada, operacion);
}

}  // namespace efv::economics

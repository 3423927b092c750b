#include <quorvel/cables_calculo.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "electrical/cables.h"
#include "platform/numero/tolerancia.h"

namespace efv::electrical {

namespace {

using numero::Igual;
using numero::MayorIgual;

constexpr double kPorCiento = 100.0;
constexpr double kReferenciaAire = 30.0, kReferenciaSuelo = 20.0;
// What an insulation bears for ever, ºC, by its index: a conductor under full load is as warm.
constexpr auto kServicio = std::to_array<double>({70, 90, 90, 70, 105});

CasoCable CasoDe(const TramoCable& tramo)
{
    const bool bSuelo = tramo.iMetodo == kMetodoD1 || tramo.iMetodo == kMetodoD2;
    return {.iMetodo = tramo.iMetodo,
            .iMaterial = tramo.iMaterial,
            .iAislante = tramo.iAislante,
            .bTrifasico = tramo.bTrifasico,
            .dTemperatura = tramo.dTemperatura.value_or(bSuelo ? kReferenciaSuelo : kReferenciaAire)};
}

double Servicio(int iAislante)
{
    const bool bConocido = iAislante >= 0 && static_cast<std::size_t>(iAislante) < kServicio.size();
    return bConocido ? kServicio[static_cast<std::size_t>(iAislante)] : kServicio[0];
}

// The current that the case's table has for a section, 0 for none.
double CorrienteEn(const ColumnaCorrientes* columna, double dSeccion)
{
    for (std::size_t i = 0; columna != nullptr && i < kSecciones.size(); ++i)
        if (Igual(kSecciones[i], dSeccion))
            return (*columna)[i];
    return 0.0;
}

// The least section that the table has from `dMinima` upward, 0 for none.
double SeccionExistente(const ColumnaCorrientes* columna, double dMinima)
{
    for (std::size_t i = 0; columna != nullptr && i < kSecciones.size(); ++i)
        if ((*columna)[i] > 0.0 && MayorIgual(kSecciones[i], dMinima))
            return kSecciones[i];
    return 0.0;
}

double EnVigor(const TramoCable& tramo, const TramoCalculado& c)
{
    if (tramo.dSeccion)
        return *tramo.dSeccion;
    const bool bHay = c.dPorCorriente > 0.0 && c.dPorCaida > 0.0;
    return bHay ? std::max(c.dPorCorriente, c.dPorCaida) : 0.0;
}

}  // namespace

TramoCalculado Dimensionar(const TramoCable& tramo)
{
    const CasoCable caso = CasoDe(tramo);
    const ColumnaCorrientes* const columna = CorrientesDe(caso);
    const double dHilos = tramo.bTrifasico ? kTresFases : kIdaYVuelta;
    const double dPorConductor = tramo.dCorriente / tramo.iConductoresFase;
    TramoCalculado c;
    c.dTemperatura = caso.dTemperatura;
    c.dTemperaturaConductor = tramo.dTemperaturaConductor.value_or(Servicio(tramo.iAislante));
    c.dConductividad = Conductividad(c.dTemperaturaConductor, tramo.iMaterial == 0 ? kCobre : kAluminio);
    c.dFactor = columna != nullptr ? FactorTemperatura(caso) : 0.0;
    c.dCorrienteCalculo = (1.0 + tramo.dMargen / kPorCiento) * dPorConductor;
    // A current of almost nothing answers a section that the table may lack.
    if (const double d = SeccionPorCorriente(caso, c.dCorrienteCalculo); d > 0.0)
        c.dPorCorriente = SeccionExistente(columna, d);
    c.dMinimaPorCaida = SeccionPorCaida(dHilos, tramo.dLongitud, dPorConductor, tramo.dCosFi, tramo.dTension,
                                        tramo.dLimiteCaida, c.dConductividad);
    c.dPorCaida = SeccionExistente(columna, c.dMinimaPorCaida);
    c.dSeccion = EnVigor(tramo, c);
    if (c.dSeccion <= 0.0)
        return c;
    const double dTabla = CorrienteEn(columna, c.dSeccion);
    c.dAdmisible = dTabla * c.dFactor * tramo.iConductoresFase;
    c.dReserva = c.dAdmisible - c.dCorrienteCalculo * tramo.iConductoresFase;
    c.dCaida =
        SeccionOCaida(dHilos, tramo.dLongitud, dPorConductor, tramo.dCosFi, c.dSeccion, c.dConductividad);
    c.dCaidaPct = c.dCaida / tramo.dTension * kPorCiento;
    // As the sections were chosen, so that a chosen one always holds.
    c.bCorriente =
        dTabla > 0.0 && c.dFactor > numero::kTolerancia && MayorIgual(dTabla, c.dCorrienteCalculo / c.dFactor);
    c.bCaida = MayorIgual(c.dSeccion, c.dMinimaPorCaida);
    return c;
}

double CorrienteDePotencia(double dPotencia, double dTension, double dCosFi, bool bTrifasico)
{
    return dPotencia / ((bTrifasico ? std::numbers::sqrt3 : 1.0) * dTension * dCosFi);
}

std::array<CorrienteSeccion, 16> CorrientesPorSeccion(const TramoCable& tramo)
{
    const CasoCable caso = CasoDe(tramo);
    const ColumnaCorrientes* const columna = CorrientesDe(caso);
    const double dFactor = FactorTemperatura(caso);
    std::array<CorrienteSeccion, 16> filas{};
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const double dTabla = columna != nullptr ? (*columna)[i] : 0.0;
        filas[i] = {kSecciones[i], dTabla, dTabla * dFactor};
    }
    return filas;
}

}  // namespace efv::electrical

// Sale to the grid, year by year, in full precision.
#include <cstddef>

#include <quorvel/economics_calculo.h>
#include <quorvel/framework/CException.h>

#include "platform/numero/tolerancia.h"

namespace efv::economics {

namespace {

/// Divisor that turns the interest bonus into an amount; part of the model.
constexpr double kDivisorICO = 6000.0;

void CalcularCoste(CSFVCalculoEconomico& e)
{
    if (e.iTipoCoste == 0)
        e.dCosteInstalacion = numero::Igual(e.dRepercusion, 0.0) ? 0.0 : e.dRepercusion * e.dPotenciaGenerador;
    else
        e.dRepercusion =
            numero::Igual(e.dCosteInstalacion, 0.0) ? 0.0 : e.dCosteInstalacion / e.dPotenciaGenerador;
}

}  // namespace

double PrimaInicial(const CSFVCalculoEconomico& estudio)
{
    return estudio.iTipoPrima == 0 ? estudio.dPrimaFija : estudio.dPrimaVariable;
}

void CalcularImportes(CSFVCalculoEconomico& e)
{
    e.dEnergiaInstalacion = e.dPerformanceRatio / 100.0 * e.dEnergiaBase;
    e.dEnergiaResultante = (e.dFactorMejora / 100.0 + 1.0) * e.dEnergiaInstalacion;
    e.dPrimaVariable = e.dPrimaVariableA + e.dPrimaVariableB;
    e.dRendimientoInicial = e.dEnergiaResultante * PrimaInicial(e);
    CalcularCoste(e);
    e.dCosteElegible = e.dCosteInstalacion;
    e.dImporteSubvencion = e.dCosteElegible * e.dSubvencionCCAA / 100.0;
    e.dImporteIDAE = e.dCosteElegible * e.dAmortizacionIDAE / 100.0;
    const double dBase = e.dCosteElegible - e.dAportacionInicial - e.dImporteSubvencion;
    e.dImporteICO = dBase * e.dBonificacionICO / kDivisorICO;
    e.dTotalPrestamos = dBase - e.dImporteIDAE - e.dImporteICO;
    e.dTotalPagar = 0.0;
    e.dCuotaAnual = 0.0;
}

void ComprobarAnos(const CSFVCalculoEconomico& e)
{
    if (e.dAniosEstudio > kMaximoAnosEstudio)
        throw CInvalidArgException("años de estudio");
}

void CalcularAnos(CSFVCalculoEconomico& e)
{
    ComprobarAnos(e);
    double dIngresosAcumulados = 0.0;
    for (int y = 0; y < e.dAniosEstudio; ++y) {
        const double dEnergia =
            y == 0 ? e.dEnergiaResultante : e.aEnergia[y - 1] * (1.0 - e.dEnvejecimiento / 100.0);
        const double dPrima = y == 0 ? PrimaInicial(e) : e.aPrima[y - 1] * (e.dVariacionCoste / 100.0 + 1.0);
        const double dIngresos = dEnergia * dPrima;
        dIngresosAcumulados += dIngresos;
        const double dCuota =
            CuotaAnual(e.iTipoAmortizacion, e.dTotalPrestamos, e.dTipoInteres / 100.0, e.dAniosPrestamo, y);
        e.dTotalPagar += dCuota;
        const double dMantenimiento = dIngresos * e.dCosteMantenimiento / 100.0;
        const double dCashFlow = dIngresos - dCuota - dMantenimiento;
        const double dAcumulado = y == 0 ? dCashFlow : dCashFlow + e.aAcumulado[y - 1];
        e.aAnio.Add(y + 1);
        e.aEnergia.Add(dEnergia);
        e.aPrima.Add(dPrima);
        e.aIngresos.Add(dIngresos);
        e.aIngresosAcumulados.Add(dIngresosAcumulados);
        e.aCapitalInteres.Add(dCuota);
        e.aMantenimiento.Add(dMantenimiento);
        e.aCashFlow.Add(dCashFlow);
        e.aAcumulado.Add(dAcumulado);
    }
    e.dCuotaAnual = e.dTotalPagar / e.dAniosPrestamo;
}

void CalcularTIR(CSFVCalculoEconomico& e)
{
    if (numero::MenorIgual(e.dCosteElegible, 0.0))
        return;
    e.dTIR = TasaInternaRetorno(e.dCosteElegible,
                                {e.aCashFlow.GetData(), static_cast<std::size_t>(e.aCashFlow.GetSize())})
                 .dTIR;
}

}  // namespace efv::economics

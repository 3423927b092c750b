// Sale to the grid, year by year, in full precision.
#include <cstddef>

#include <quorvel/economics_calculo.h>
#include <quorvel/framework/CException.h>

#include "economics/ano_venta.h"
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

AnoVenta CalcularAno(const CSFVCalculoEconomico& e, int iAno, const AnoAnterior* anterior)
{
    AnoVenta ano{};
    ano.dEnergia =
        anterior == nullptr ? e.dEnergiaResultante : anterior->dEnergia * (1.0 - e.dEnvejecimiento / 100.0);
    ano.dPrima = anterior == nullptr ? PrimaInicial(e) : anterior->dPrima * (e.dVariacionCoste / 100.0 + 1.0);
    ano.dIngresos = ano.dEnergia * ano.dPrima;
    ano.dCuota =
        CuotaAnual(e.iTipoAmortizacion, e.dTotalPrestamos, e.dTipoInteres / 100.0, e.dAniosPrestamo, iAno);
    ano.dMantenimiento = ano.dIngresos * e.dCosteMantenimiento / 100.0;
    ano.dCashFlow = ano.dIngresos - ano.dCuota - ano.dMantenimiento;
    ano.dAcumulado = anterior == nullptr ? ano.dCashFlow : ano.dCashFlow + anterior->dAcumulado;
    return ano;
}

void CalcularAnos(CSFVCalculoEconomico& e)
{
    ComprobarAnos(e);
    double dIngresosAcumulados = 0.0;
    for (int y = 0; y < e.dAniosEstudio; ++y) {
        const AnoAnterior anterior =
            y == 0 ? AnoAnterior{} : AnoAnterior{e.aEnergia[y - 1], e.aPrima[y - 1], e.aAcumulado[y - 1]};
        const AnoVenta ano = CalcularAno(e, y, y == 0 ? nullptr : &anterior);
        dIngresosAcumulados += ano.dIngresos;
        e.dTotalPagar += ano.dCuota;
        e.aAnio.Add(y + 1);
        e.aEnergia.Add(ano.dEnergia);
        e.aPrima.Add(ano.dPrima);
        e.aIngresos.Add(ano.dIngresos);
        e.aIngresosAcumulados.Add(dIngresosAcumulados);
        e.aCapitalInteres.Add(ano.dCuota);
        e.aMantenimiento.Add(ano.dMantenimiento);
        e.aCashFlow.Add(ano.dCashFlow);
        e.aAcumulado.Add(ano.dAcumulado);
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

// A field of panels against the limits of its inverter at the temperatures of the place.
#include <algorithm>
#include <functional>
#include <limits>

#include <quorvel/assistants_calculo.h>

#include "catalogues/kinds/corrientes.h"
#include "electrical/curvas.h"
#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

constexpr double kIrradianciaSTC = 1000.0;  // W/m²

electrical::ValoresTipicos ATemperatura(const CBasePanelFotoModelo& panel, double dT)
{
    return electrical::CalcularValoresTipicos({.dPmpm = panel.dPmpm,
                                               .dVmpm = panel.dVmpm,
                                               .dImpm = panel.dImpm,
                                               .dVoc = panel.dVoc,
                                               .dIsc = panel.dIsc,
                                               .dCTVoc = panel.dCTVoc,
                                               .dCTIsc = panel.dCTIsc,
                                               .dCTPmpm = panel.dCTPmpm,
                                               .iNs = panel.iNs,
                                               .iNp = panel.iNp},
                                              kIrradianciaSTC, dT);
}

Comprobacion ComoMucho(Limite limite, double dValor, double dLimite)
{
    if (numero::MenorIgual(dLimite, 0.0))
        return {limite, dValor, 0.0, std::nullopt};
    return {limite, dValor, dLimite, numero::MenorIgual(dValor, dLimite)};
}

Comprobacion AlMenos(Limite limite, double dValor, double dLimite)
{
    if (numero::MenorIgual(dLimite, 0.0))
        return {limite, dValor, 0.0, std::nullopt};
    return {limite, dValor, dLimite, numero::MayorIgual(dValor, dLimite)};
}

// What hangs on a coefficient that the catalogue doesn't give stays open, unless it is passed at 25 ºC already.
Comprobacion SegunCoeficiente(double dCoeficiente, Comprobacion c)
{
    if (dCoeficiente != 0.0 || c.bCumple == false)
        return c;
    return {c.limite, std::numeric_limits<double>::quiet_NaN(), c.dLimite, std::nullopt};
}

// Strings on each of so many trackers, the busiest first.
std::vector<int> Repartir(int iRamales, std::size_t nSeguidores)
{
    const int n = static_cast<int>(nSeguidores);
    std::vector<int> reparto(nSeguidores, iRamales / n);
    std::fill_n(reparto.begin(), iRamales % n, iRamales / n + 1);
    return reparto;
}

// The tracker that its current fills most. `adMaximas`: what each takes, A, the strongest first, so that it
// gets the odd string.
Comprobacion EnSeguidores(Limite limite, int iRamales, double dCorriente, const std::vector<double>& adMaximas)
{
    const std::vector<int> reparto = Repartir(iRamales, adMaximas.size());
    Comprobacion peor = ComoMucho(limite, reparto[0] * dCorriente, adMaximas[0]);
    for (std::size_t i = 1; i < adMaximas.size(); ++i) {
        const Comprobacion esta = ComoMucho(limite, reparto[i] * dCorriente, adMaximas[i]);
        if (esta.bCumple && (!peor.bCumple || esta.dValor * peor.dLimite > peor.dValor * esta.dLimite))
            peor = esta;
    }
    return peor;
}

std::vector<double> CorrientesMaximas(const CBaseInversorModelo& inversor)
{
    CArray<double, double&> ad;
    catalogues::ListaCorrientes(inversor.csICCMaxMPPT, inversor.dICCMax, inversor.iNumMPPT, ad);
    std::vector<double> adMaximas(ad.begin(), ad.end());
    std::ranges::sort(adMaximas, std::ranges::greater());
    return adMaximas;
}

}  // namespace

ComprobacionCampo Comprobar(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                            const CBaseInversorModelo& inversor)
{
    const auto frio = ATemperatura(panel, campo.dTemperaturaMinima);
    const auto calor = ATemperatura(panel, campo.dTemperaturaMaxima);
    const double dSerie = campo.iPanelesSerie;
    const int iRamales = std::max(campo.iPanelesParalelo, 0);
    const double dPotencia = dSerie * iRamales * panel.dPmpm;
    const std::vector<double> adMaximas = CorrientesMaximas(inversor);
    const std::vector<double> adCortocircuito(adMaximas.size(), inversor.dIScMax);
    // A stand-alone inverter keeps other things in these fields: the battery's voltages, its consumption.
    const auto deRed = [&](double d) { return inversor.iUsoPrincipal == 0 ? d : 0.0; };
    using enum Limite;
    const auto conVoc = [&](const Comprobacion& c) { return SegunCoeficiente(panel.dCTVoc, c); };
    const auto conPmpm = [&](const Comprobacion& c) { return SegunCoeficiente(panel.dCTPmpm, c); };
    return {{conVoc(ComoMucho(tensionVacioInversor, dSerie * frio.dVoc, inversor.dVCCMax)),
             conVoc(ComoMucho(tensionVacioModulo, dSerie * frio.dVoc, panel.dVsmax)),
             conPmpm(ComoMucho(tensionMppMaxima, dSerie * frio.dVmp, deRed(inversor.dVMPPMax))),
             conPmpm(AlMenos(tensionMppMinima, dSerie * calor.dVmp, deRed(inversor.dVMPPMin))),
             EnSeguidores(corrienteMpp, iRamales, std::max(frio.dImp, calor.dImp), adMaximas),
             SegunCoeficiente(panel.dCTIsc, EnSeguidores(corrienteCortocircuito, iRamales,
                                                         std::max(frio.dIsc, calor.dIsc), adCortocircuito)),
             ComoMucho(potenciaCC, dPotencia, deRed(inversor.dPCCMax)),
             ComoMucho(ramales, iRamales, inversor.iNumEntradas)},
            dPotencia / inversor.dPCANom};
}

ComprobacionCampo Comprobar(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                            const LimitesRegulador& regulador)
{
    const auto frio = ATemperatura(panel, campo.dTemperaturaMinima);
    const auto calor = ATemperatura(panel, campo.dTemperaturaMaxima);
    const double dSerie = campo.iPanelesSerie, dRamales = campo.iPanelesParalelo;
    using enum Limite;
    return {{SegunCoeficiente(panel.dCTVoc, ComoMucho(tensionVacioModulo, dSerie * frio.dVoc, panel.dVsmax)),
             SegunCoeficiente(panel.dCTVoc,
                              ComoMucho(tensionVacioRegulador, dSerie * frio.dVoc, regulador.dTensionMaxima)),
             SegunCoeficiente(panel.dCTPmpm,
                              AlMenos(tensionMppRegulador, dSerie * calor.dVmp, regulador.dTensionMinima)),
             SegunCoeficiente(panel.dCTIsc,
                              ComoMucho(corrienteRegulador, dRamales * std::max(frio.dIsc, calor.dIsc),
                                        regulador.dCorrienteMaxima))}};
}

bool ComprobacionCampo::Incumple() const
{
    return std::ranges::any_of(limites, [](const Comprobacion& c) { return c.bCumple == false; });
}

}  // namespace efv::assistants

// A field of panels against the limits of its inverter at the temperatures of the place.
#include <algorithm>
#include <functional>
#include <initializer_list>
#include <limits>
#include <optional>

#include <quorvel/assistants_calculo.h>

#include "catalogues/format/ausencias.h"
#include "catalogues/kinds/corrientes.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/panel_foto.h"
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

Comprobacion SinComprobar(const Comprobacion& c)
{
    return {c.limite, std::numeric_limits<double>::quiet_NaN(), c.dLimite, std::nullopt};
}

// What hangs on figures that the catalogue doesn't give, by which it then is 0, stays open.
Comprobacion SegunDatos(std::initializer_list<double> datos, const Comprobacion& c)
{
    return std::ranges::find(datos, 0.0) == datos.end() ? c : SinComprobar(c);
}

// The same of a coefficient, unless the limit is passed at 25 ºC already.
Comprobacion SegunCoeficiente(double dCoeficiente, const Comprobacion& c)
{
    return dCoeficiente != 0.0 || c.bCumple == false ? c : SinComprobar(c);
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

namespace {

// The values that a check takes of a module, at the extremes of temperature.
struct PanelExtremo {
    const CBasePanelFotoModelo& panel;
    electrical::ValoresTipicos frio, calor;

    PanelExtremo(const CBasePanelFotoModelo& modelo, const CampoInversor& campo)
        : panel(modelo),
          frio(ATemperatura(modelo, campo.dTemperaturaMinima)),
          calor(ATemperatura(modelo, campo.dTemperaturaMaxima))
    {
    }

    double Imp() const { return std::max(frio.dImp, calor.dImp); }
    double Isc() const { return std::max(frio.dIsc, calor.dIsc); }

    // A check of that value, open without the figures that it hangs on.
    Comprobacion DeVoc(const Comprobacion& c) const
    {
        return SegunDatos({panel.dVoc}, SegunCoeficiente(panel.dCTVoc, c));
    }
    Comprobacion DeVmp(const Comprobacion& c) const
    {
        return SegunDatos({panel.dVmpm, panel.dImpm, panel.dPmpm}, SegunCoeficiente(panel.dCTPmpm, c));
    }
    Comprobacion DeImp(const Comprobacion& c) const { return SegunDatos({panel.dImpm}, c); }
    Comprobacion DeIsc(const Comprobacion& c) const
    {
        return SegunDatos({panel.dIsc}, SegunCoeficiente(panel.dCTIsc, c));
    }
    Comprobacion DePmpm(const Comprobacion& c) const { return SegunDatos({panel.dPmpm}, c); }
};

ComprobacionCampo ComprobarPropios(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                                   const CBaseInversorModelo& inversor)
{
    const PanelExtremo extremo(panel, campo);
    const auto& [modulo, frio, calor] = extremo;
    const double dSerie = campo.iPanelesSerie;
    const int iRamales = std::max(campo.iPanelesParalelo, 0);
    const double dPotencia = dSerie * iRamales * panel.dPmpm;
    const std::vector<double> adMaximas = CorrientesMaximas(inversor);
    const std::vector<double> adCortocircuito(adMaximas.size(), inversor.dIScMax);
    // A stand-alone inverter keeps other things in these fields: the battery's voltages, its consumption.
    const auto deRed = [&](double d) { return inversor.iUsoPrincipal == 0 ? d : 0.0; };
    using enum Limite;
    return {{extremo.DeVoc(ComoMucho(tensionVacioInversor, dSerie * frio.dVoc, inversor.dVCCMax)),
             extremo.DeVoc(ComoMucho(tensionVacioModulo, dSerie * frio.dVoc, panel.dVsmax)),
             extremo.DeVmp(ComoMucho(tensionMppMaxima, dSerie * frio.dVmp, deRed(inversor.dVMPPMax))),
             extremo.DeVmp(AlMenos(tensionMppMinima, dSerie * calor.dVmp, deRed(inversor.dVMPPMin))),
             extremo.DeImp(EnSeguidores(corrienteMpp, iRamales, extremo.Imp(), adMaximas)),
             extremo.DeIsc(EnSeguidores(corrienteCortocircuito, iRamales, extremo.Isc(), adCortocircuito)),
             extremo.DePmpm(ComoMucho(potenciaCC, dPotencia, deRed(inversor.dPCCMax))),
             ComoMucho(ramales, iRamales, inversor.iNumEntradas)},
            dPotencia / inversor.dPCANom};
}

ComprobacionCampo ComprobarPropios(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                                   const LimitesRegulador& regulador)
{
    const PanelExtremo extremo(panel, campo);
    const auto& [modulo, frio, calor] = extremo;
    const double dSerie = campo.iPanelesSerie, dRamales = campo.iPanelesParalelo;
    using enum Limite;
    return {
        {extremo.DeVoc(ComoMucho(tensionVacioModulo, dSerie * frio.dVoc, panel.dVsmax)),
         extremo.DeVoc(ComoMucho(tensionVacioRegulador, dSerie * frio.dVoc, regulador.dTensionMaxima)),
         extremo.DeVmp(AlMenos(tensionMppRegulador, dSerie * calor.dVmp, regulador.dTensionMinima)),
         extremo.DeIsc(ComoMucho(corrienteRegulador, dRamales * extremo.Isc(), regulador.dCorrienteMaxima))}};
}

// What a model has of its own, without a copy where that is all.
template <class M>
class Propio {
public:
    explicit Propio(const M& modelo) : m_modelo(&modelo)
    {
        if (modelo.uAusentes != 0)
            m_modelo = &m_copia.emplace(catalogues::SinHeredar(modelo));
    }
    Propio(const Propio&) = delete;
    Propio& operator=(const Propio&) = delete;
    const M& operator*() const { return *m_modelo; }

private:
    std::optional<M> m_copia;
    const M* m_modelo;
};

}  // namespace

ComprobacionCampo Comprobar(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                            const CBaseInversorModelo& inversor)
{
    return ComprobarPropios(campo, *Propio(panel), *Propio(inversor));
}

ComprobacionCampo Comprobar(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                            const LimitesRegulador& regulador)
{
    return ComprobarPropios(campo, *Propio(panel), regulador);
}

bool ComprobacionCampo::Incumple() const
{
    return std::ranges::any_of(limites, [](const Comprobacion& c) { return c.bCumple == false; });
}

}  // namespace efv::assistants

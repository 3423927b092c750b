// The field of panels that reaches a power and passes its checks.
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

#include <quorvel/assistants_calculo.h>

#include "catalogues/format/ausencias.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

// Beyond these no inverter goes, whatever a catalogue says.
constexpr int kSerieMaxima = 1000, kRamalesMaximos = 1000;
constexpr double kInversoresMaximos = 1e9;
constexpr double kVatios = 1000.0;  // of a kW
constexpr double kRedondeo = 1e-9;  // of a quotient that is a whole number

/// A field of panels in series and in strings.
struct Reparto {
    int iSerie = 0, iRamales = 0;
    int Paneles() const { return iSerie * iRamales; }
};

// Holds a field against its limits.
using Comprobador = std::function<ComprobacionCampo(Reparto)>;

class Buscador {
public:
    /// @param iPaso the least count of strings that loads all trackers alike
    Buscador(Comprobador comprobar, int iPaso, int iRamalesMaximos)
        : m_comprobar(std::move(comprobar)), m_iPaso(iPaso), m_iRamalesMaximos(iRamalesMaximos)
    {
    }

    // The field with at least that many panels, the fewest; with equal trackers or with any.
    std::optional<Reparto> Menor(double dPaneles, bool bIguales) const
    {
        std::optional<Reparto> mejor;
        const int iPaso = bIguales ? m_iPaso : 1;
        for (int p = iPaso; p <= m_iRamalesMaximos; p += iPaso) {
            if (!CorrienteCabe(p))
                break;
            for (int s = 1; s <= kSerieMaxima; ++s) {
                const bool bMejora = !mejor || s * p < mejor->Paneles();
                if (!bMejora)
                    break;
                if (numero::MenorIgual(dPaneles, static_cast<double>(s) * p) && Cabe({s, p})) {
                    mejor = {s, p};
                    break;
                }
                if (TensionPasada(s))
                    break;
            }
        }
        return mejor;
    }

    // The most panels that one inverter takes.
    int Mayor(bool bIguales) const
    {
        int iMayor = 0;
        const int iPaso = bIguales ? m_iPaso : 1;
        for (int p = iPaso; p <= m_iRamalesMaximos && CorrienteCabe(p); p += iPaso)
            for (int s = 1; s <= kSerieMaxima && !TensionPasada(s); ++s)
                if (s * p > iMayor && Cabe({s, p}))
                    iMayor = s * p;
        return iMayor;
    }

    // Whether any count in series keeps within the voltages.
    bool HayTension() const
    {
        bool bTension = false;
        for (int s = 1; s <= kSerieMaxima && !TensionPasada(s); ++s)
            bTension = bTension || Cumplen({s, 1}, kTensiones);
        return bTension;
    }
    // More strings only have more current.
    bool CorrienteCabe(int p) const { return Cumplen({1, p}, kCorrientes); }

private:
    static constexpr std::array kTensiones = {Limite::tensionVacioInversor,  Limite::tensionVacioModulo,
                                              Limite::tensionMppMaxima,      Limite::tensionMppMinima,
                                              Limite::tensionVacioRegulador, Limite::tensionMppRegulador};
    static constexpr std::array kTopes = {Limite::tensionVacioInversor, Limite::tensionVacioModulo,
                                          Limite::tensionMppMaxima, Limite::tensionVacioRegulador};
    static constexpr std::array kCorrientes = {Limite::corrienteMpp, Limite::corrienteCortocircuito,
                                               Limite::corrienteRegulador};

    template <std::size_t N>
    bool Cumplen(Reparto reparto, const std::array<Limite, N>& limites) const
    {
        const ComprobacionCampo c = m_comprobar(reparto);
        return std::ranges::none_of(c.limites, [&](const Comprobacion& limite) {
            return limite.bCumple == false && std::ranges::find(limites, limite.limite) != limites.end();
        });
    }
    bool Cabe(Reparto reparto) const { return !m_comprobar(reparto).Incumple(); }
    // Longer strings only have more voltage.
    bool TensionPasada(int s) const { return !Cumplen({s, 1}, kTopes); }

    Comprobador m_comprobar;
    int m_iPaso, m_iRamalesMaximos;
};

Comprobador Comprobaciones(const CampoInversor& campo, const CBasePanelFotoModelo& panel, const auto& limites)
{
    return [&campo, &panel, &limites](Reparto reparto) {
        CampoInversor este = campo;
        este.iPanelesSerie = reparto.iSerie;
        este.iPanelesParalelo = reparto.iRamales;
        return Comprobar(este, panel, limites);
    };
}

bool HayCifras(double dPotencia, const CBasePanelFotoModelo& panel)
{
    return dPotencia > 0.0 && panel.dPmpm > 0.0 && panel.dVoc > 0.0 && panel.dVmpm > 0.0;
}

// Why nothing can be proposed on an inverter, whatever the field.
SinPropuesta FaltaDelModelo(double dPotencia, const CBasePanelFotoModelo& panel,
                            const CBaseInversorModelo& inversor)
{
    const bool bTope = inversor.dVCCMax > 0.0 || inversor.dVMPPMax > 0.0 || panel.dVsmax > 0.0;
    if (!bTope || !HayCifras(dPotencia, panel) || inversor.dPCANom <= 0.0)
        return SinPropuesta::sinDatos;
    return inversor.iUsoPrincipal != 0 ? SinPropuesta::usoAislado : SinPropuesta::ninguna;
}

void Poner(Reparto reparto, int iInversores, double dPmpm, PropuestaComprobada& propuesta)
{
    propuesta.iInversores = iInversores;
    propuesta.iPanelesSerie = reparto.iSerie;
    propuesta.iRamales = reparto.iRamales;
    propuesta.dPotencia =
        static_cast<double>(std::max(iInversores, 1)) * reparto.iSerie * reparto.iRamales * dPmpm / kVatios;
}

}  // namespace

PropuestaComprobada ProponerComprobada(double dPotencia, const CampoInversor& campo,
                                       const CBasePanelFotoModelo& modelo,
                                       const CBaseInversorModelo& modeloInversor)
{
    // What a check may not take no proposal rests on.
    const CBasePanelFotoModelo panel = catalogues::SinHeredar(modelo);
    const CBaseInversorModelo inversor = catalogues::SinHeredar(modeloInversor);
    PropuestaComprobada propuesta;
    propuesta.falta = FaltaDelModelo(dPotencia, panel, inversor);
    if (propuesta.falta != SinPropuesta::ninguna)
        return propuesta;
    const Comprobador comprobar = Comprobaciones(campo, panel, inversor);
    const int iEntradas = inversor.iNumEntradas > 0 ? inversor.iNumEntradas : kRamalesMaximos;
    const Buscador buscador(comprobar, std::max(inversor.iNumMPPT, 1), std::min(iEntradas, kRamalesMaximos));
    int iMayor = buscador.Mayor(true);
    propuesta.bSeguidoresIguales = iMayor > 0;
    if (iMayor == 0)
        iMayor = buscador.Mayor(false);
    if (iMayor == 0) {
        propuesta.falta = !buscador.HayTension()      ? SinPropuesta::tension
                          : buscador.CorrienteCabe(1) ? SinPropuesta::potenciaCC
                                                      : SinPropuesta::corriente;
        return propuesta;
    }
    const double dPaneles = dPotencia * kVatios / panel.dPmpm;
    const double dInversores =
        std::max(std::ceil(dPotencia * kVatios / inversor.dPCANom), std::ceil(dPaneles / iMayor - kRedondeo));
    const auto menor = buscador.Menor(std::min(dPaneles / dInversores, static_cast<double>(iMayor)),
                                      propuesta.bSeguidoresIguales);
    Poner(*menor, static_cast<int>(std::min(dInversores, kInversoresMaximos)), panel.dPmpm, propuesta);
    propuesta.comprobacion = comprobar(*menor);
    return propuesta;
}

PropuestaComprobada ProponerComprobada(double dPotencia, const CampoInversor& campo,
                                       const CBasePanelFotoModelo& modelo, const LimitesRegulador& regulador)
{
    const CBasePanelFotoModelo panel = catalogues::SinHeredar(modelo);
    PropuestaComprobada propuesta;
    if (!HayCifras(dPotencia, panel) || (regulador.dTensionMaxima <= 0.0 && panel.dVsmax <= 0.0)) {
        propuesta.falta = SinPropuesta::sinDatos;
        return propuesta;
    }
    const Comprobador comprobar = Comprobaciones(campo, panel, regulador);
    const Buscador buscador(comprobar, 1, kRamalesMaximos);
    const auto menor = buscador.Menor(dPotencia * kVatios / panel.dPmpm, true);
    if (!menor) {
        propuesta.falta = !buscador.HayTension()      ? SinPropuesta::tensionRegulador
                          : buscador.CorrienteCabe(1) ? SinPropuesta::potenciaRegulador
                                                      : SinPropuesta::corrienteRegulador;
        return propuesta;
    }
    Poner(*menor, 0, panel.dPmpm, propuesta);
    propuesta.comprobacion = comprobar(*menor);
    return propuesta;
}

PropuestaComprobada RepartirComprobada(int iPaneles, int iInversores, const CampoInversor& campo,
                                       const CBasePanelFotoModelo& modelo,
                                       const CBaseInversorModelo& modeloInversor)
{
    const CBasePanelFotoModelo panel = catalogues::SinHeredar(modelo);
    const CBaseInversorModelo inversor = catalogues::SinHeredar(modeloInversor);
    PropuestaComprobada mejor;
    mejor.falta = FaltaDelModelo(iPaneles * panel.dPmpm / kVatios, panel, inversor);
    if (mejor.falta != SinPropuesta::ninguna)
        return mejor;
    const Comprobador comprobar = Comprobaciones(campo, panel, inversor);
    const int iSuyos = iPaneles / iInversores;
    // Limits passed, unequal trackers, strings: the least is the best.
    std::optional<std::array<std::ptrdiff_t, 3>> orden;
    for (int p = 1; p <= std::min(iSuyos, kRamalesMaximos); ++p) {
        if (iSuyos % p != 0 || iSuyos / p > kSerieMaxima)
            continue;
        ComprobacionCampo comprobacion = comprobar({iSuyos / p, p});
        const auto nPasados = std::ranges::count(comprobacion.limites, false, &Comprobacion::bCumple);
        const bool bIguales = p % std::max(inversor.iNumMPPT, 1) == 0;
        const std::array<std::ptrdiff_t, 3> este = {nPasados, bIguales ? 0 : 1, p};
        if (orden && *orden <= este)
            continue;
        orden = este;
        Poner({iSuyos / p, p}, iInversores, panel.dPmpm, mejor);
        mejor.falta = nPasados == 0 ? SinPropuesta::ninguna : SinPropuesta::reparto;
        mejor.bSeguidoresIguales = bIguales;
        mejor.comprobacion = std::move(comprobacion);
    }
    return mejor;
}

}  // namespace efv::assistants

// The field of panels that reaches a power and passes its checks.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include <quorvel/assistants_calculo.h>

#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

// Beyond these no inverter goes, whatever a catalogue says.
constexpr int kSerieMaxima = 1000, kRamalesMaximos = 1000;
constexpr double kInversoresMaximos = 1e9;
constexpr double kRedondeo = 1e-9;  // of a quotient that is a whole number

class Buscador {
public:
    Buscador(const CampoInversor& campo, const CBasePanelFotoModelo& panel, const CBaseInversorModelo& inversor)
        : m_campo(campo), m_panel(panel), m_inversor(inversor)
    {
    }

    // The field of one inverter with at least that many panels, the fewest; with equal trackers or with any.
    std::optional<CampoInversor> Menor(double dPaneles, bool bIguales) const
    {
        std::optional<CampoInversor> mejor;
        const int iPaso = bIguales ? std::max(m_inversor.iNumMPPT, 1) : 1;
        for (int p = iPaso; p <= RamalesMaximos(); p += iPaso) {
            if (!CorrienteCabe(p))
                break;
            for (int s = 1; s <= kSerieMaxima; ++s) {
                const bool bMejora = !mejor || s * p < mejor->iPanelesSerie * mejor->iPanelesParalelo;
                if (!bMejora)
                    break;
                if (numero::MenorIgual(dPaneles, static_cast<double>(s) * p) && Cabe(s, p)) {
                    mejor = Campo(s, p);
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
        const int iPaso = bIguales ? std::max(m_inversor.iNumMPPT, 1) : 1;
        for (int p = iPaso; p <= RamalesMaximos() && CorrienteCabe(p); p += iPaso)
            for (int s = 1; s <= kSerieMaxima && !TensionPasada(s); ++s)
                if (s * p > iMayor && Cabe(s, p))
                    iMayor = s * p;
        return iMayor;
    }

    // What stands in the way when nothing fits at all.
    SinPropuesta Motivo() const
    {
        bool bTension = false;
        for (int s = 1; s <= kSerieMaxima && !TensionPasada(s); ++s)
            bTension = bTension || Cumplen(Campo(s, 1), kTensiones);
        if (!bTension)
            return SinPropuesta::tension;
        return CorrienteCabe(1) ? SinPropuesta::potenciaCC : SinPropuesta::corriente;
    }

private:
    static constexpr std::array kTensiones = {Limite::tensionVacioInversor, Limite::tensionVacioModulo,
                                              Limite::tensionMppMaxima, Limite::tensionMppMinima};
    static constexpr std::array kTopes = {Limite::tensionVacioInversor, Limite::tensionVacioModulo,
                                          Limite::tensionMppMaxima};
    static constexpr std::array kCorrientes = {Limite::corrienteMpp, Limite::corrienteCortocircuito};

    CampoInversor Campo(int iSerie, int iRamales) const
    {
        CampoInversor campo = m_campo;
        campo.iPanelesSerie = iSerie;
        campo.iPanelesParalelo = iRamales;
        return campo;
    }
    template <std::size_t N>
    bool Cumplen(const CampoInversor& campo, const std::array<Limite, N>& limites) const
    {
        const ComprobacionCampo c = Comprobar(campo, m_panel, m_inversor);
        return std::ranges::none_of(c.limites, [&](const Comprobacion& limite) {
            return limite.bCumple == false && std::ranges::find(limites, limite.limite) != limites.end();
        });
    }
    bool Cabe(int s, int p) const { return !Comprobar(Campo(s, p), m_panel, m_inversor).Incumple(); }
    // Longer strings only have more voltage.
    bool TensionPasada(int s) const { return !Cumplen(Campo(s, 1), kTopes); }
    // More strings only have more current.
    bool CorrienteCabe(int p) const { return Cumplen(Campo(1, p), kCorrientes); }
    int RamalesMaximos() const
    {
        return m_inversor.iNumEntradas > 0 ? std::min(m_inversor.iNumEntradas, kRamalesMaximos)
                                           : kRamalesMaximos;
    }

    const CampoInversor& m_campo;
    const CBasePanelFotoModelo& m_panel;
    const CBaseInversorModelo& m_inversor;
};

}  // namespace

PropuestaComprobada ProponerComprobada(double dPotencia, const CampoInversor& campo,
                                       const CBasePanelFotoModelo& panel, const CBaseInversorModelo& inversor)
{
    PropuestaComprobada propuesta;
    const bool bTope = inversor.dVCCMax > 0.0 || inversor.dVMPPMax > 0.0 || panel.dVsmax > 0.0;
    const bool bDatos = bTope && panel.dPmpm > 0.0 && panel.dVoc > 0.0 && panel.dVmpm > 0.0 &&
                        inversor.dPCANom > 0.0 && dPotencia > 0.0;
    if (inversor.iUsoPrincipal != 0 || !bDatos) {
        propuesta.falta = bDatos ? SinPropuesta::usoAislado : SinPropuesta::sinDatos;
        return propuesta;
    }
    const Buscador buscador(campo, panel, inversor);
    int iMayor = buscador.Mayor(true);
    propuesta.bSeguidoresIguales = iMayor > 0;
    if (iMayor == 0)
        iMayor = buscador.Mayor(false);
    if (iMayor == 0) {
        propuesta.falta = buscador.Motivo();
        return propuesta;
    }
    const double dPaneles = dPotencia * 1000.0 / panel.dPmpm;
    const double dInversores =
        std::max(std::ceil(dPotencia * 1000.0 / inversor.dPCANom), std::ceil(dPaneles / iMayor - kRedondeo));
    const auto menor = buscador.Menor(std::min(dPaneles / dInversores, static_cast<double>(iMayor)),
                                      propuesta.bSeguidoresIguales);
    propuesta.iInversores = static_cast<int>(std::min(dInversores, kInversoresMaximos));
    propuesta.iPanelesSerie = menor->iPanelesSerie;
    propuesta.iRamales = menor->iPanelesParalelo;
    propuesta.dPotencia = static_cast<double>(propuesta.iInversores) * menor->iPanelesSerie *
                          menor->iPanelesParalelo * panel.dPmpm / 1000.0;
    propuesta.comprobacion = Comprobar(*menor, panel, inversor);
    return propuesta;
}

}  // namespace efv::assistants

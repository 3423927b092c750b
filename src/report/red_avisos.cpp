// What a person must look at in a grid-connected design.
#include <cmath>

#include <fmt/format.h>

#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "report/carencias.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

// The comparisons of the sizing treat what lies this near as equal.
constexpr double kTolerancia = 1e-6;
constexpr int kMuchosPaneles = 2000;

class Avisador {
public:
    Avisador(const ProyectoRed& proyecto, const EstudioRed& estudio) : m_proyecto(proyecto), m_estudio(estudio)
    {
    }

    std::vector<Aviso> Avisar()
    {
        DeAceptacion();
        DeLimites();
        DeTemperaturas();
        const auto& v = m_estudio.v;
        AvisarDeFilas(
            m_proyecto.lugar,
            {v.iTotalPaneles, v.dPanelesPorFila, v.dDistanciaFilas, v.panel.dLargoPanel, v.dInclinacion},
            m_avisos);
        AvisarDelCableado(m_estudio.cableado, m_avisos);
        DeEnergia();
        return std::move(m_avisos);
    }

private:
    void FaltaSi(bool bFalta, std::string texto)
    {
        if (bFalta)
            m_avisos.push_back({true, std::move(texto)});
    }
    void Nota(std::string texto) { m_avisos.push_back({false, std::move(texto)}); }

    // As the assistant refuses or asks when it is accepted.
    void DeAceptacion()
    {
        const auto& v = m_estudio.v;
        FaltaSi(v.inversor.iUsoPrincipal != 0,
                "Inversor no indicado para uso en conexión a red. Elija otro modelo.");
        if (v.iTotalPaneles >= kMuchosPaneles)
            Nota(fmt::format("El número de paneles de la instalación ({}) es una cantidad muy elevada.",
                             v.iTotalPaneles));
        FaltaSi(v.iPanelesParalelo > v.inversor.iNumEntradas,
                fmt::format(
                    "El número de ramales en paralelo ({}), supera al número de entradas del inversor ({}). "
                    "Modifique la configuración o seleccione otro modelo de inversor.",
                    v.iPanelesParalelo, v.inversor.iNumEntradas));
        FaltaSi(v.dPotenciaTotal < v.dPotenciaObjetivo - kTolerancia,
                fmt::format("Potencia total instalada, {}, inferior a la potencia mínima pedida, {}.",
                            Con(v.dPotenciaTotal, 2, "kW"), Con(v.dPotenciaObjetivo, 2, "kW")));
    }

    // The limits that the assistant's own proposal keeps to, at standard conditions.
    void DeLimites()
    {
        const auto& v = m_estudio.v;
        const double dVoc = v.iPanelesSerie * v.panel.dVoc, dCorriente = v.iPanelesParalelo * v.panel.dImpm;
        FaltaSi(v.dTensionRamal > v.inversor.dVMPPMax + kTolerancia ||
                    v.dTensionRamal <= v.inversor.dVMPPMin + kTolerancia,
                fmt::format("Tensión del ramal, {}, fuera del rango de tensiones MPPT, {} a {} (STC).",
                            Con(v.dTensionRamal, 1, "V"), Decimal(v.inversor.dVMPPMin, 0),
                            Con(v.inversor.dVMPPMax, 0, "V")));
        FaltaSi(v.inversor.dVCCMax > 0.0 && dVoc > v.inversor.dVCCMax + kTolerancia,
                fmt::format("Tensión a circuito abierto del ramal, {}, superior a la máxima de entrada del "
                            "inversor, {} (STC).",
                            Con(dVoc, 1, "V"), Con(v.inversor.dVCCMax, 0, "V")));
        // On a single tracker the check at the temperatures says it.
        if (v.inversor.iNumMPPT > 1 && v.inversor.dIMaxEntrada > 0.0 &&
            dCorriente > v.inversor.dIMaxEntrada + kTolerancia) {
            Nota(fmt::format(
                "Los ramales de un inversor dan {}; un solo seguidor admite {}: repártalos entre los "
                "{} seguidores.",
                Con(dCorriente, 2, "A"), Con(v.inversor.dIMaxEntrada, 2, "A"), v.inversor.iNumMPPT));
        }
    }

    void DeTemperaturas()
    {
        AvisarDeLimites(m_estudio.comprobacion, *m_proyecto.panel, m_avisos);
        AvisarDeCarencias(*m_proyecto.inversor, m_avisos);
        AvisarDeCarencias(*m_proyecto.panel, m_avisos);
        // Without the inverter's nominal output or the module's power there is none.
        const double dRatio = m_estudio.comprobacion.dRatioCCCA;
        if (!std::isfinite(dRatio) || dRatio == 0.0)
            return;
        if (dRatio < kRatioMinimo || dRatio > kRatioMaximo) {
            Nota(fmt::format(
                "Relación entre la potencia de los paneles y la nominal del inversor: {}; lo habitual "
                "es de {} a {}.",
                Decimal(dRatio, 2), Decimal(kRatioMinimo, 2), Decimal(kRatioMaximo, 2)));
        }
    }

    void DeEnergia()
    {
        const LugarDiseno& lugar = m_proyecto.lugar;
        if (!lugar.adRadiacion)
            Nota("Sin radiaciones del lugar no se calcula la energía mensual.");
        else
            AvisarDelPlano(lugar, m_estudio.bPlano, m_estudio.v.dInclinacion, m_avisos);
        if (m_estudio.orientada)
            AvisarDeOrientacion(*m_estudio.orientada, m_avisos);
        for (const std::string& nota : m_proyecto.notas)
            m_avisos.push_back({false, nota, std::string()});
    }

    const ProyectoRed& m_proyecto;
    const EstudioRed& m_estudio;
    std::vector<Aviso> m_avisos;
};

}  // namespace

std::vector<Aviso> Avisos(const ProyectoRed& proyecto, const EstudioRed& estudio)
{
    return Avisador(proyecto, estudio).Avisar();
}

}  // namespace efv::report

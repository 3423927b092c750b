// A stand-alone design, calculated.
#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <quorvel/report/disenos.h>

#include "assistants/receptores_aislada.h"
#include "report/campos.h"
#include "report/receptores.h"
#include "report/secciones.h"
#include "solar/calendario.h"

namespace efv::report {

namespace {

// Where the assistant's own proposal, at standard conditions, is no installation. Without loads or without sun
// there is no power to reach.
std::optional<assistants::PropuestaComprobada> PropuestaMejor(const assistants::ValoresAislada& v,
                                                              assistants::CampoInversor campo,
                                                              const CBasePanelFotoModelo& panel,
                                                              const assistants::LimitesRegulador& regulador)
{
    constexpr double kTolerancia = 1e-6;  // Wp, of the sizing's comparisons
    if (!(v.dPotenciaMinima > kTolerancia) || !std::isfinite(v.dPotenciaMinima))
        return std::nullopt;
    campo.iPanelesSerie = v.iPanelesSerieP;
    campo.iPanelesParalelo = v.iPanelesParaleloP;
    const bool bFalta = v.dPotenciaInstaladaP < v.dPotenciaMinima - kTolerancia;
    if (!bFalta && !assistants::Comprobar(campo, panel, regulador).Incumple())
        return std::nullopt;
    return assistants::ProponerComprobada(v.dPotenciaMinima / 1000.0, campo, panel, regulador);
}

}  // namespace

double HorasDeCalculo(CSFVDataReceptor& receptor)
{
    return receptor.GetNHdia(0, 0);
}

solar::DoceMeses EnergiaNecesaria(const CObArrayPropio<CSFVDataReceptor>& receptores)
{
    constexpr double kWhPorKWh = 1000.0;
    solar::DoceMeses adEnergia{};
    for (std::size_t m = 0; m < solar::kMeses; ++m) {
        const int iMes = static_cast<int>(m);
        for (int d = 0; d < solar::kDiasMesReferencia[m]; ++d)
            for (const auto& receptor : receptores)
                adEnergia[m] +=
                    receptor->GetPcc() * receptor->GetNHdia(iMes, solar::TipoDiaReferencia(iMes, d));
        adEnergia[m] /= kWhPorKWh;
    }
    return adEnergia;
}

ProyectoAislada ProyectoDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos)
{
    ProyectoAislada proyecto;
    proyecto.registro = diseno;
    proyecto.fijados = CamposFijos(proyecto.registro);
    proyecto.receptores = assistants::LeerReceptores(diseno, catalogos.receptores);
    for (const auto& receptor : proyecto.receptores) {
        const auto* modelo = catalogos.receptores.BuscarModelo(receptor->csModelo);
        if (std::string nota = modelo != nullptr ? CarenciasDe(*modelo) : std::string(); !nota.empty())
            proyecto.notas.push_back(std::move(nota));
    }
    proyecto.acumulador = catalogos.acumuladores.BuscarModelo(diseno.csAcumulador);
    proyecto.panel = catalogos.paneles.BuscarModelo(diseno.csPanel);
    return proyecto;
}

EstudioAislada Calcular(ProyectoAislada& proyecto, const CBaseFactorK& tabla)
{
    EstudioAislada estudio;
    assistants::ValoresAislada& v = estudio.v;
    assistants::TomarDelRegistro(v, proyecto.registro);
    v.dLatitud = proyecto.lugar.dLatitud;
    v.iHemisferio = proyecto.lugar.Hemisferio();
    v.adRadiacion = proyecto.lugar.adRadiacion.value_or(solar::DoceMeses{});

    estudio.adNecesaria = EnergiaNecesaria(proyecto.receptores);
    std::vector<assistants::DatosReceptor> receptores;
    for (const auto& receptor : proyecto.receptores)
        receptores.push_back({receptor->iCantidad, receptor->dPotencia, HorasDeCalculo(*receptor)});
    const auto factores = [&](double dLatitud, int iHemisferio, double dAlpha) {
        return solar::FactoresK(tabla, dLatitud, iHemisferio, dAlpha);
    };
    const assistants::EntradaAislada entrada = {.acumulador = proyecto.acumulador,
                                                .panel = proyecto.panel,
                                                .receptores = receptores,
                                                .factoresK = factores};
    assistants::Recalcular(v, entrada, true);
    CopiarCampos(proyecto.registro, v, proyecto.fijados);
    assistants::Recalcular(v, entrada, false);

    const assistants::CampoInversor campoRegulador{.iPanelesSerie = v.iPanelesSerie,
                                                   .iPanelesParalelo = v.iPanelesParalelo,
                                                   .dTemperaturaMinima = proyecto.temperaturas.Minima(),
                                                   .dTemperaturaMaxima = proyecto.temperaturas.Maxima()};
    const assistants::LimitesRegulador regulador{.dTensionMaxima = v.dTensionMaxFV,
                                                 .dTensionMinima = v.dTensionMinFV,
                                                 .dCorrienteMaxima = v.dCorrienteMaxFV};
    estudio.comprobacion = assistants::Comprobar(campoRegulador, *proyecto.panel, regulador);
    estudio.propuesta = PropuestaMejor(v, campoRegulador, *proyecto.panel, regulador);
    PotenciaCargas cargas;
    for (const auto& receptor : proyecto.receptores)
        (receptor->iTipoRed == 0 ? cargas.dContinua : cargas.dAlterna) += receptor->GetPcc();
    estudio.cableado = CableadoDe(v, proyecto.panel, cargas, proyecto.cableado);

    const auto adK = factores(v.dLatitud, v.iHemisferio, v.dInclinacion);
    estudio.bPlano = adK.has_value();
    const solar::CampoSolar campo{.dLatitud = v.dLatitud,
                                  .bNorte = proyecto.lugar.bNorte,
                                  .adRadHorizontal = v.adRadiacion,
                                  .dInclinacion = v.dInclinacion,
                                  .dPotencia = v.dPotenciaInstalada / 1000.0,
                                  .dPR = (100 - v.dPerdidaAcumulador) / 100 *
                                         ((100 - v.dPerdidaCableado) / 100) *
                                         ((100 - v.dPerdidaAcoplamiento) / 100)};
    estudio.ano = solar::CalcularEnergia(campo, adK.value_or(solar::DoceMeses{}));
    estudio.orientada = CalcularPlanos(proyecto.planos, proyecto.lugar, campo, v.dOrientacion);
    return estudio;
}

}  // namespace efv::report

// A grid-connected design, calculated.
#include <optional>

#include <quorvel/report/disenos.h>

#include "report/campos.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

// Where the assistant's own proposal, at standard conditions, is no installation.
std::optional<assistants::PropuestaComprobada> PropuestaMejor(const ProyectoRed& proyecto,
                                                              const assistants::ValoresRed& v,
                                                              assistants::CampoInversor campo)
{
    constexpr double kTolerancia = 1e-6;  // kW, of the sizing's comparisons
    campo.iPanelesSerie = v.iPanelesSerieP;
    campo.iPanelesParalelo = v.iPanelesParaleloP;
    const bool bFalta = v.dPotenciaTotalP < v.dPotenciaObjetivo - kTolerancia;
    if (!bFalta && !assistants::Comprobar(campo, *proyecto.panel, *proyecto.inversor).Incumple())
        return std::nullopt;
    return assistants::ProponerComprobada(v.dPotenciaObjetivo, campo, *proyecto.panel, *proyecto.inversor);
}

}  // namespace

ProyectoRed ProyectoDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos)
{
    ProyectoRed proyecto;
    proyecto.registro = diseno;
    proyecto.fijados = CamposFijos(proyecto.registro);
    proyecto.inversor = catalogos.inversores.BuscarModelo(diseno.csInversor);
    proyecto.panel = catalogos.paneles.BuscarModelo(diseno.csPanel);
    return proyecto;
}

EstudioRed Calcular(const ProyectoRed& proyecto, const CBaseFactorK& tabla)
{
    EstudioRed estudio;
    auto& v = estudio.v;
    CSFVAsistenteRed registro = proyecto.registro;
    static_cast<CSFVAsistenteRed&>(v) = registro;
    v.dLatitud = proyecto.lugar.dLatitud;
    v.csHemisferio = proyecto.lugar.bNorte ? L"N" : L"S";
    v.inversor = assistants::LeerInversor(*proyecto.inversor);
    v.panel = assistants::Disponer(*proyecto.panel, v.iDisposicion);
    assistants::RecalcularRed(v, true);
    CopiarCampos(registro, v, proyecto.fijados);
    assistants::RecalcularRed(v, false);
    v.iTipoSalida = v.inversor.iTipoSalida;

    const assistants::CampoInversor porInversor{.iPanelesSerie = v.iPanelesSerie,
                                                .iPanelesParalelo = v.iPanelesParalelo,
                                                .dTemperaturaMinima = proyecto.temperaturas.Minima(),
                                                .dTemperaturaMaxima = proyecto.temperaturas.Maxima()};
    estudio.comprobacion = assistants::Comprobar(porInversor, *proyecto.panel, *proyecto.inversor);
    estudio.propuesta = PropuestaMejor(proyecto, v, porInversor);
    estudio.cableado = CableadoDe(v, proyecto.inversor, proyecto.panel, proyecto.cableado);
    estudio.bPlano =
        solar::FactoresK(tabla, proyecto.lugar.dLatitud, proyecto.lugar.Hemisferio(), v.dInclinacion)
            .has_value();
    if (proyecto.lugar.adRadiacion) {
        const solar::CampoSolar campo{.dLatitud = proyecto.lugar.dLatitud,
                                      .bNorte = proyecto.lugar.bNorte,
                                      .adRadHorizontal = *proyecto.lugar.adRadiacion,
                                      .dInclinacion = v.dInclinacion,
                                      .dPotencia = v.dPotenciaTotal,
                                      .dPR = proyecto.Rendimiento()};
        estudio.ano = solar::CalcularEnergia(campo, solar::kMetodoDeUso, tabla);
        estudio.orientada = CalcularPlanos(proyecto.planos, proyecto.lugar, campo, v.dOrientacion);
    }
    return estudio;
}

}  // namespace efv::report

// A grid-connected design, calculated.
#include <array>

#include <quorvel/report/disenos.h>

#include "report/campos.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

// In the order of assistants::Limite.
constexpr auto kTextos = std::to_array<TextoLimite>({
    {"Tensión a circuito abierto, frío: entrada del inversor", "tension_vacio_inversor", "V", 1, false},
    {"Tensión a circuito abierto, frío: sistema del módulo", "tension_vacio_modulo", "V", 1, false},
    {"Tensión en máxima potencia, frío: rango MPPT", "tension_mpp_maxima", "V", 1, false},
    {"Tensión en máxima potencia, calor: rango MPPT", "tension_mpp_minima", "V", 1, true},
    {"Corriente en máxima potencia de un seguidor", "corriente_mpp", "A", 2, false},
    {"Corriente de cortocircuito de un seguidor, calor", "corriente_cortocircuito", "A", 2, false},
    {"Potencia del campo de un inversor", "potencia_cc", "W", 0, false},
    {"Ramales de un inversor: entradas", "ramales", "", 0, false},
});

}  // namespace

const TextoLimite& TextoDe(assistants::Limite limite)
{
    return kTextos.at(static_cast<std::size_t>(limite));
}

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

    estudio.comprobacion = assistants::Comprobar({.iPanelesSerie = v.iPanelesSerie,
                                                  .iPanelesParalelo = v.iPanelesParalelo,
                                                  .dTemperaturaMinima = proyecto.Minima(),
                                                  .dTemperaturaMaxima = proyecto.Maxima()},
                                                 *proyecto.panel, *proyecto.inversor);
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

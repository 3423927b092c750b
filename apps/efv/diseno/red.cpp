// A grid-connected installation out of its project file.
#include <array>
#include <utility>

#include <quorvel/solar.h>

#include "comun/tabla_k.h"
#include "diseno/cableado.h"
#include "diseno/diseno.h"
#include "diseno/modelos.h"
#include "diseno/proyecto.h"
#include "diseno/salida.h"

namespace efv::orden {

namespace {

using report::ProyectoRed;

// What a project must keep to besides the record's own limits.
constexpr auto kRangos = std::to_array<RangoCampo>({
    {"dPotenciaObjetivo", {0.001, 1e9}},
    {"iTipoSalida", {0, 1}},
});

struct Catalogos {
    CatalogoDatos inversores, modulos;

    explicit Catalogos(const std::string& csDatos)
        : inversores("inversores", csDatos), modulos("modulos", csDatos)
    {
    }
};

ProyectoRed LeerProyecto(const JsonLeido& j, const Catalogos& catalogos, const std::string& csDatos)
{
    Objeto objeto(j);
    ProyectoRed proyecto;
    LeerCabecera(objeto, "red", proyecto.titulo);
    proyecto.lugar = LeerLugar(objeto, csDatos, false);
    proyecto.planos = LeerPlanos(objeto);
    proyecto.fijados = LeerCampos(objeto, proyecto.registro, kRangos);
    proyecto.inversor = &ElegirModelo<CBaseInversorModelo>(objeto, "csInversor", catalogos.inversores,
                                                           proyecto.registro.csInversor);
    proyecto.panel =
        &ElegirModelo<CBasePanelFotoModelo>(objeto, "csPanel", catalogos.modulos, proyecto.registro.csPanel);
    proyecto.temperaturas = LeerTemperaturas(objeto);
    proyecto.dRendimiento = LeerOpcional(objeto, "rendimiento", {0.01, 1});
    LeerCableado(objeto, report::kTramosRed, false, proyecto.cableado);
    objeto.Terminar();
    if (proyecto.fijados.contains("iTipoSalida"))
        proyecto.notas.emplace_back(
            "«iTipoSalida» se toma siempre del inversor: el valor del fichero no cuenta.");
    if (proyecto.inversor->dPCANom <= 0.0)
        throw rpc::ErrorValor("csInversor: el modelo no tiene potencia nominal y no sirve para calcular");
    if (proyecto.panel->dPmpm <= 0.0 || proyecto.panel->dVmpm <= 0.0 || proyecto.panel->dVoc <= 0.0)
        throw rpc::ErrorValor("csPanel: el modelo no tiene potencia o tensiones y no sirve para calcular");
    return proyecto;
}

JsonEscrito ConRatio(const ProyectoRed& proyecto, const assistants::ComprobacionCampo& comprobacion)
{
    JsonEscrito json = ComprobacionJson(proyecto.temperaturas, comprobacion);
    json["ratio_cc_ca"] = NumeroJson(comprobacion.dRatioCCCA);
    return json;
}

// Null where the assistant's own proposal reaches the power and keeps to every limit.
JsonEscrito PropuestaJson(const ProyectoRed& proyecto,
                          const std::optional<assistants::PropuestaComprobada>& propuesta)
{
    if (!propuesta)
        return {};
    const bool bHay = propuesta->falta == assistants::SinPropuesta::ninguna;
    const auto cuenta = [&](int i) { return bHay ? JsonEscrito(i) : JsonEscrito(); };
    JsonEscrito json = {{"inversores", cuenta(propuesta->iInversores)},
                        {"paneles_serie", cuenta(propuesta->iPanelesSerie)},
                        {"ramales", cuenta(propuesta->iRamales)},
                        {"potencia_kW", bHay ? NumeroJson(propuesta->dPotencia) : JsonEscrito()},
                        {"cumple", bHay},
                        {"motivo", report::MotivoDe(*propuesta)}};
    json["comprobacion"] = bHay ? ConRatio(proyecto, propuesta->comprobacion) : JsonEscrito();
    return json;
}

}  // namespace

Diseno DisenarRed(const JsonLeido& proyectoJson, const std::string& csDatos)
{
    CargarTablaK(csDatos);
    const Catalogos catalogos(csDatos);
    const ProyectoRed proyecto = LeerProyecto(proyectoJson, catalogos, csDatos);
    report::EstudioRed estudio = report::Calcular(proyecto, phGetBaseFactorK());
    const std::vector<report::Aviso> avisos = report::Avisos(proyecto, estudio);

    Diseno diseno;
    diseno.bCumple = SinFaltas(avisos);
    diseno.documento = report::EscribirDocumento(proyecto, estudio, avisos);
    diseno.valores = {{"tipo", "red"},
                      {"titulo", proyecto.titulo},
                      {"lugar", LugarJson(proyecto.lugar)},
                      {"valores", ValoresJson(assistants::ValoresPorNombre(std::as_const(estudio.v)))},
                      {"comprobacion", ConRatio(proyecto, estudio.comprobacion)},
                      {"propuesta_comprobada", PropuestaJson(proyecto, estudio.propuesta)},
                      {"cableado", CableadoJson(estudio.cableado)},
                      {"meses", estudio.ano ? AnoJson(*estudio.ano, nullptr) : JsonEscrito()},
                      {"orientada", estudio.orientada ? PlanosJson(*estudio.orientada) : JsonEscrito()},
                      {"avisos", AvisosJson(avisos)}};
    CSFVAsistenteRed registro = static_cast<const CSFVAsistenteRed&>(estudio.v);
    diseno.archivo = Archivar(registro);
    return diseno;
}

}  // namespace efv::orden

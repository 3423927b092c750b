// A grid-connected installation out of its project file.
#include <array>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/informe.h>
#include <quorvel/solar.h>

#include "comun/tabla_k.h"
#include "diseno/cableado.h"
#include "diseno/calculados.h"
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

    Catalogos(const std::string& csDatos, const std::vector<estudio::ModeloGuardado>& propios)
        : inversores("inversores", csDatos, propios), modulos("modulos", csDatos, propios)
    {
    }
};

ProyectoRed LeerProyecto(const JsonLeido& j, const Catalogos& catalogos, const std::string& csDatos)
{
    Objeto objeto(j);
    ProyectoRed proyecto;
    LeerCabecera(objeto, "red", proyecto.titulo);
    objeto.Buscar("modelos");  // read before, for the catalogues
    proyecto.portada = LeerPortada(objeto);
    proyecto.lugar = LeerLugar(objeto, csDatos, false);
    proyecto.planos = LeerPlanos(objeto);
    proyecto.fijados = LeerCampos(objeto, proyecto.registro, kRangos);
    if (objeto.Buscar("csInversor") == nullptr)
        throw rpc::ErrorValor("falta «csInversor»; los que convienen a unos paneles los da «efv inversores»");
    proyecto.inversor = &ElegirModelo<CBaseInversorModelo>(objeto, "csInversor", catalogos.inversores,
                                                           proyecto.registro.csInversor);
    proyecto.panel =
        &ElegirModelo<CBasePanelFotoModelo>(objeto, "csPanel", catalogos.modulos, proyecto.registro.csPanel);
    proyecto.temperaturas = LeerTemperaturas(objeto);
    proyecto.dRendimiento = LeerOpcional(objeto, "rendimiento", {0.01, 1});
    LeerCableado(objeto, report::kTramosRed, false, proyecto.cableado);
    objeto.Terminar();
    for (const std::string_view campo : kCalculadosRed)
        if (proyecto.fijados.contains(std::string(campo)))
            proyecto.notas.push_back(
                fmt::format("«{}» se toma siempre del inversor: el valor del fichero no cuenta.", campo));
    if (proyecto.inversor->dPCANom <= 0.0)
        throw rpc::ErrorValor("csInversor: el modelo no tiene potencia nominal y no sirve para calcular");
    if (proyecto.panel->dPmpm <= 0.0 || proyecto.panel->dVmpm <= 0.0 || proyecto.panel->dVoc <= 0.0)
        throw rpc::ErrorValor("csPanel: el modelo no tiene potencia o tensiones y no sirve para calcular");
    return proyecto;
}

}  // namespace

Diseno DisenarRed(const JsonLeido& proyectoJson, const std::string& csDatos)
{
    CargarTablaK(csDatos);
    std::vector<estudio::ModeloGuardado> modelos = ModelosDelProyecto(proyectoJson);
    const Catalogos catalogos(csDatos, modelos);
    const ProyectoRed proyecto = LeerProyecto(proyectoJson, catalogos, csDatos);
    report::EstudioRed estudio = report::Calcular(proyecto, phGetBaseFactorK());
    const std::vector<report::Aviso> avisos = report::Avisos(proyecto, estudio);

    Diseno diseno;
    diseno.bCumple = SinFaltas(avisos);
    diseno.documento = report::EscribirDocumento(proyecto, estudio, avisos);
    for (const auto detalle : report::kDetallesDePlano)
        diseno.esquemas.push_back(report::EsquemaDe(proyecto, estudio, detalle));
    diseno.cajetin = report::CajetinDe(proyecto.titulo, proyecto.portada, report::NombreDe(proyecto.lugar),
                                       report::FechaDeHoy());
    diseno.valores = {{"tipo", "red"},
                      {"titulo", proyecto.titulo},
                      {"lugar", LugarJson(proyecto.lugar)},
                      {"valores", ValoresJson(assistants::ValoresPorNombre(std::as_const(estudio.v)))},
                      {"comprobacion", ConRatio(proyecto.temperaturas, estudio.comprobacion)},
                      {"propuesta_comprobada", PropuestaJson(proyecto.temperaturas, estudio.propuesta)},
                      {"cableado", CableadoJson(estudio.cableado)},
                      {"meses", estudio.ano ? AnoJson(*estudio.ano, nullptr) : JsonEscrito()},
                      {"orientada", estudio.orientada ? PlanosJson(*estudio.orientada) : JsonEscrito()},
                      {"avisos", AvisosJson(avisos)}};
    CSFVAsistenteRed registro = static_cast<const CSFVAsistenteRed&>(estudio.v);
    diseno.archivo = Archivar(registro);
    diseno.modelos = std::move(modelos);
    return diseno;
}

}  // namespace efv::orden

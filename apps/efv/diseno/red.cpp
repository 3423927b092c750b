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

void LeerOpcional(Objeto& objeto, const char* nombre, Rango rango, std::optional<double>& d)
{
    if (const JsonLeido* j = objeto.Buscar(nombre); j != nullptr)
        rpc::NombrarLugar([&] { return nombre; }, [&] { d = LeerNumero(*j, rango); });
}

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
    LeerOpcional(objeto, "temperaturaMinima", {-60, 60}, proyecto.dTemperaturaMinima);
    LeerOpcional(objeto, "temperaturaMaxima", {0, 120}, proyecto.dTemperaturaMaxima);
    LeerOpcional(objeto, "rendimiento", {0.01, 1}, proyecto.dRendimiento);
    LeerCableado(objeto, report::kTramosRed, false, proyecto.cableado);
    objeto.Terminar();
    if (proyecto.fijados.contains("iTipoSalida"))
        proyecto.notas.emplace_back(
            "«iTipoSalida» se toma siempre del inversor: el valor del fichero no cuenta.");
    if (proyecto.Minima() >= proyecto.Maxima())
        throw rpc::ErrorValor("temperaturaMinima: debe ser menor que temperaturaMaxima");
    if (proyecto.inversor->dPCANom <= 0.0)
        throw rpc::ErrorValor("csInversor: el modelo no tiene potencia nominal y no sirve para calcular");
    if (proyecto.panel->dPmpm <= 0.0 || proyecto.panel->dVmpm <= 0.0 || proyecto.panel->dVoc <= 0.0)
        throw rpc::ErrorValor("csPanel: el modelo no tiene potencia o tensiones y no sirve para calcular");
    return proyecto;
}

JsonEscrito ComprobacionJson(const ProyectoRed& proyecto, const assistants::ComprobacionCampo& comprobacion)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const auto& c : comprobacion.limites) {
        const report::TextoLimite& texto = report::TextoDe(c.limite);
        lista.push_back(
            {{"comprobacion", texto.clave},
             {"valor", NumeroJson(c.dValor)},
             {texto.bMinimo ? "minimo" : "maximo", c.bCumple ? NumeroJson(c.dLimite) : JsonEscrito()},
             {"unidad", texto.unidad},
             {"cumple", c.bCumple ? JsonEscrito(*c.bCumple) : JsonEscrito()}});
    }
    return {{"temperatura_minima_C", proyecto.Minima()},
            {"temperatura_maxima_C", proyecto.Maxima()},
            {"ratio_cc_ca", NumeroJson(comprobacion.dRatioCCCA)},
            {"limites", std::move(lista)}};
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
    diseno.documento = report::EscribirDocumento(proyecto, estudio, avisos);
    diseno.valores = {{"tipo", "red"},
                      {"titulo", proyecto.titulo},
                      {"lugar", LugarJson(proyecto.lugar)},
                      {"valores", ValoresJson(assistants::ValoresPorNombre(std::as_const(estudio.v)))},
                      {"comprobacion", ComprobacionJson(proyecto, estudio.comprobacion)},
                      {"cableado", CableadoJson(estudio.cableado)},
                      {"meses", estudio.ano ? AnoJson(*estudio.ano, nullptr) : JsonEscrito()},
                      {"orientada", estudio.orientada ? PlanosJson(*estudio.orientada) : JsonEscrito()},
                      {"avisos", AvisosJson(avisos)}};
    CSFVAsistenteRed registro = static_cast<const CSFVAsistenteRed&>(estudio.v);
    diseno.archivo = Archivar(registro);
    return diseno;
}

}  // namespace efv::orden

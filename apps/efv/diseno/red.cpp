#include "diseno/red.h"

#include <array>
#include <utility>

#include "comun/tabla_k.h"
#include "diseno/diseno.h"
#include "diseno/salida.h"

namespace efv::orden {

namespace {

// What a project must keep to besides the record's own limits.
constexpr auto kRangos = std::to_array<RangoCampo>({
    {"dPotenciaObjetivo", {0.001, 1e9}},
    {"iTipoSalida", {0, 1}},
});

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
    proyecto.fijados = LeerCampos(objeto, proyecto.registro, kRangos);
    proyecto.inversor = &ElegirModelo<CBaseInversorModelo>(objeto, "csInversor", catalogos.inversores,
                                                           proyecto.registro.csInversor);
    proyecto.panel =
        &ElegirModelo<CBasePanelFotoModelo>(objeto, "csPanel", catalogos.modulos, proyecto.registro.csPanel);
    LeerOpcional(objeto, "temperaturaMinima", {-60, 60}, proyecto.dTemperaturaMinima);
    LeerOpcional(objeto, "temperaturaMaxima", {0, 120}, proyecto.dTemperaturaMaxima);
    LeerOpcional(objeto, "rendimiento", {0.01, 1}, proyecto.dRendimiento);
    objeto.Terminar();
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
        const TextoLimite& texto = TextoDe(c.limite);
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

const TextoLimite& TextoDe(assistants::Limite limite)
{
    return kTextos.at(static_cast<std::size_t>(limite));
}

EstudioRed Calcular(const ProyectoRed& proyecto)
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
    const auto factores = FactoresK(proyecto.lugar, v.dInclinacion);
    if (proyecto.lugar.adRadiacion && factores) {
        std::array<double, kMeses> adPlano{};
        for (std::size_t m = 0; m < kMeses; ++m)
            adPlano[m] = (*factores)[m] * (*proyecto.lugar.adRadiacion)[m];
        estudio.ano =
            CalcularAno(*proyecto.lugar.adRadiacion, adPlano, v.dPotenciaTotal, proyecto.Rendimiento());
    }
    return estudio;
}

Diseno DisenarRed(const JsonLeido& proyectoJson, const std::string& csDatos)
{
    CargarTablaK(csDatos);
    const Catalogos catalogos(csDatos);
    const ProyectoRed proyecto = LeerProyecto(proyectoJson, catalogos, csDatos);
    EstudioRed estudio = Calcular(proyecto);
    const std::vector<Aviso> avisos = Avisos(proyecto, estudio);

    Diseno diseno;
    diseno.documento = EscribirDocumento(proyecto, estudio, avisos);
    const auto modelos =
        std::to_array<ModeloElegido>({{"Inversor", &catalogos.inversores.Tipo(), proyecto.inversor},
                                      {"Panel fotovoltaico", &catalogos.modulos.Tipo(), proyecto.panel}});
    diseno.documento.secciones.push_back(SeccionModelos(modelos));
    diseno.valores = {{"tipo", "red"},
                      {"titulo", proyecto.titulo},
                      {"lugar", LugarJson(proyecto.lugar)},
                      {"valores", ValoresJson(assistants::ValoresPorNombre(std::as_const(estudio.v)))},
                      {"comprobacion", ComprobacionJson(proyecto, estudio.comprobacion)},
                      {"meses", estudio.ano ? AnoJson(*estudio.ano) : JsonEscrito()},
                      {"avisos", AvisosJson(avisos)}};
    CSFVAsistenteRed registro = static_cast<const CSFVAsistenteRed&>(estudio.v);
    diseno.archivo = Archivar(registro);
    return diseno;
}

}  // namespace efv::orden

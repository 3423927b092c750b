// A stand-alone installation out of its project file.
#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/informe.h>
#include <quorvel/solar.h>

#include "comun/numeros.h"
#include "comun/tabla_k.h"
#include "diseno/cableado.h"
#include "diseno/calculados.h"
#include "diseno/diseno.h"
#include "diseno/modelos.h"
#include "diseno/proyecto.h"
#include "diseno/receptores.h"
#include "diseno/salida.h"
#include "rpc/valores.h"

namespace efv::orden {

namespace {

using report::ProyectoAislada;

constexpr double kMaximo = 1e9;

// What a project must keep to besides the record's own limits: what an accepted design can't have, and what
// is no installation any more.
constexpr auto kRangos = std::to_array<RangoCampo>({
    {"iAcumuladoresSerie", {1, kMaximo}},
    {"iAcumuladoresParalelo", {1, kMaximo}},
    {"iPanelesSerie", {1, kMaximo}},
    {"iPanelesParalelo", {1, kMaximo}},
    {"dTensionSistema", {12, 72}},
    {"dPotenciaMaxFV", {0, kMaximo}},
    {"dCorrienteMaxFV", {0, kMaximo}},
    {"dTensionMaxFV", {0, 10000}},
    {"dTensionMinFV", {0, 10000}},
    {"dPotenciaSalidaCA", {0, kMaximo}},
    {"dPerdidaCableado", {0, 99.99}},
    {"dPerdidaAcumulador", {0, 99.99}},
    {"dPerdidaAcoplamiento", {0, 99.99}},
    {"adCantidad", {0, 1e6}},
    {"adHorasDia", {0, 24}},
    {"adHorario", {0, 1440}},
});

constexpr std::array kTensiones = {12.0, 24.0, 36.0, 48.0, 60.0, 72.0};

// The catalogues that a project draws on; its models live as long as they.
struct Catalogos {
    CatalogoDatos acumuladores, modulos, receptores;

    Catalogos(const std::string& csDatos, const std::vector<estudio::ModeloGuardado>& propios)
        : acumuladores("acumuladores", csDatos, propios),
          modulos("modulos", csDatos, propios),
          receptores("receptores", csDatos, propios)
    {
    }
};

// Its own figures are all that is known of a load that no catalogue has.
void AnotarSinModelo(ProyectoAislada& proyecto, const CSFVDataReceptor& receptor)
{
    proyecto.notas.push_back(
        fmt::format("{}: no está en el catálogo de receptores; se calcula con lo que dice el proyecto, {} de "
                    "corriente {}.",
                    CadenaUtf8(receptor.csModelo), report::Con(receptor.dPotencia, 1, "W"),
                    receptor.iTipoRed == 0 ? "continua" : "alterna"));
}

// The record keeps model, units and bands of a load, and the sizing minds nothing else.
void AnotarCargas(ProyectoAislada& proyecto, const CatalogoDatos& catalogo)
{
    int iReceptor = 0;
    for (const auto& receptor : proyecto.receptores) {
        ++iReceptor;
        if (receptor->csModelo.empty())
            receptor->csModelo = CadenaDesdeUtf8(fmt::format("Receptor {}", iReceptor));
        const std::string id = CadenaUtf8(receptor->csModelo);
        if (!catalogo.Tiene(id)) {
            AnotarSinModelo(proyecto, *receptor);
            continue;
        }
        const auto& modelo = dynamic_cast<const CBaseReceptorModelo&>(catalogo.Buscar(id));
        if (std::string carencias = report::CarenciasDe(modelo); !carencias.empty())
            proyecto.notas.push_back(std::move(carencias));
        const double dCatalogo = modelo.dP;
        if (receptor->dPotencia != dCatalogo) {
            proyecto.notas.push_back(
                fmt::format("{}: se calcula con {}; el archivo no guarda la potencia, y quien lo "
                            "abra tomará la del catálogo, {}.",
                            id, report::Con(receptor->dPotencia, 1, "W"), report::Con(dCatalogo, 1, "W")));
        }
        if (receptor->bNoCalcular != 0)
            proyecto.notas.push_back(fmt::format("{}: «bNoCalcular» no lo saca del dimensionado.", id));
    }
}

void LeerCargas(Objeto& objeto, ProyectoAislada& proyecto, const Catalogos& catalogos)
{
    const JsonLeido* lista = objeto.Buscar("receptores");
    if (lista != nullptr && proyecto.registro.adCantidad.GetSize() > 0)
        throw rpc::ErrorValor("«receptores» ya da los receptores: sobra «adCantidad»");
    if (lista != nullptr)
        rpc::NombrarLugar([] { return "receptores"; },
                          [&] { proyecto.receptores = LeerReceptores(*lista, catalogos.receptores); });
    else
        proyecto.receptores = ReceptoresDelRegistro(proyecto.registro, catalogos.receptores);
    AnotarCargas(proyecto, catalogos.receptores);
}

// What decides the sizes and has a value of the program's where the file is silent.
struct Decisivo {
    std::string_view campo;
    const char* nombre;
    double CSFVAsistenteAislada::*valor;
    const char* unidad;
};
constexpr auto kDecisivos = std::to_array<Decisivo>({
    {"dDiasAutonomia", "autonomía", &CSFVAsistenteAislada::dDiasAutonomia, "días"},
    {"dTensionSistema", "tensión del sistema", &CSFVAsistenteAislada::dTensionSistema, "V"},
    {"dProfundidadDescarga", "profundidad de descarga", &CSFVAsistenteAislada::dProfundidadDescarga, "%"},
    {"dTensionMinFV", "tensión mínima del regulador", &CSFVAsistenteAislada::dTensionMinFV, "V"},
    {"dTensionMaxFV", "tensión máxima del regulador", &CSFVAsistenteAislada::dTensionMaxFV, "V"},
    {"dCorrienteMaxFV", "corriente máxima del regulador", &CSFVAsistenteAislada::dCorrienteMaxFV, "A"},
});

void AnotarPorDefecto(ProyectoAislada& proyecto)
{
    std::string lista;
    for (const auto& [campo, nombre, valor, unidad] : kDecisivos) {
        if (!proyecto.fijados.contains(std::string(campo)))
            lista += fmt::format("{}{} ({}), {} {}", lista.empty() ? "" : "; ", nombre, campo,
                                 DecimalExacto(proyecto.registro.*valor), unidad);
    }
    if (!lista.empty())
        proyecto.notas.push_back(fmt::format("El fichero no lo da y se toma por defecto: {}.", lista));
}

ProyectoAislada LeerProyecto(const JsonLeido& j, const Catalogos& catalogos, const std::string& csDatos)
{
    Objeto objeto(j);
    ProyectoAislada proyecto;
    LeerCabecera(objeto, "aislada", proyecto.titulo);
    objeto.Buscar("modelos");  // read before, for the catalogues
    proyecto.portada = LeerPortada(objeto);
    proyecto.lugar = LeerLugar(objeto, csDatos, true);
    proyecto.planos = LeerPlanos(objeto);
    proyecto.fijados = LeerCampos(objeto, proyecto.registro, kRangos);
    if (std::ranges::find(kTensiones, proyecto.registro.dTensionSistema) == kTensiones.end())
        throw rpc::ErrorValor("dTensionSistema: se esperaba 12, 24, 36, 48, 60 o 72 (V)");
    if (proyecto.registro.dTensionMaxFV <= 0.0)
        throw rpc::ErrorValor("dTensionMaxFV: debe ser mayor que 0");
    proyecto.acumulador = &ElegirModelo<CBaseAcumuladorModelo>(objeto, "csAcumulador", catalogos.acumuladores,
                                                               proyecto.registro.csAcumulador);
    proyecto.panel =
        &ElegirModelo<CBasePanelFotoModelo>(objeto, "csPanel", catalogos.modulos, proyecto.registro.csPanel);
    LeerCargas(objeto, proyecto, catalogos);
    proyecto.temperaturas = LeerTemperaturas(objeto);
    LeerCableado(objeto, report::kTramosAislada, true, proyecto.cableado);
    objeto.Terminar();
    for (const std::string_view campo : kCalculadosAislada)
        if (proyecto.fijados.contains(std::string(campo)))
            proyecto.notas.push_back(
                fmt::format("«{}» se calcula siempre: el valor del fichero no cuenta.", campo));
    AnotarPorDefecto(proyecto);
    return proyecto;
}

JsonEscrito ReceptoresJson(const CObArrayPropio<CSFVDataReceptor>& receptores)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const auto& receptor : receptores) {
        auto campos = CamposDeRegistro(std::as_const(*receptor));
        std::erase_if(campos, [](const CampoRegistroConst& campo) { return campo.nombre == "dHorario"; });
        lista.push_back(ValoresJson(campos));
    }
    return lista;
}

}  // namespace

Diseno DisenarAislada(const JsonLeido& proyectoJson, const std::string& csDatos)
{
    JsonLeido j = proyectoJson;
    if (j.is_object() && j.contains("iMesCalculo") && j["iMesCalculo"].is_string())
        rpc::NombrarLugar([] { return "iMesCalculo"; },
                          [&] { j["iMesCalculo"] = LeerMes(j["iMesCalculo"], kMesDesfavorable); });
    CargarTablaK(csDatos);
    std::vector<estudio::ModeloGuardado> modelos = ModelosDelProyecto(j);
    const Catalogos catalogos(csDatos, modelos);
    ProyectoAislada proyecto = LeerProyecto(j, catalogos, csDatos);
    report::EstudioAislada estudio = report::Calcular(proyecto, phGetBaseFactorK());
    const std::vector<report::Aviso> avisos = report::Avisos(proyecto, estudio);

    Diseno diseno;
    diseno.bCumple = SinFaltas(avisos);
    diseno.documento = report::EscribirDocumento(proyecto, estudio, avisos);
    diseno.esquemas.push_back(report::EsquemaDe(proyecto, estudio));
    diseno.cajetin = report::CajetinDe(proyecto.titulo, proyecto.portada, report::NombreDe(proyecto.lugar),
                                       report::FechaDeHoy());
    diseno.valores = {{"tipo", "aislada"},
                      {"titulo", proyecto.titulo},
                      {"lugar", LugarJson(proyecto.lugar)},
                      {"valores", ValoresJson(assistants::ValoresPorNombre(std::as_const(estudio.v)))},
                      {"receptores", ReceptoresJson(proyecto.receptores)},
                      {"comprobacion", ComprobacionJson(proyecto.temperaturas, estudio.comprobacion)},
                      {"propuesta_comprobada", PropuestaJson(proyecto.temperaturas, estudio.propuesta)},
                      {"cableado", CableadoJson(estudio.cableado)},
                      {"meses", AnoJson(estudio.ano, &estudio.adNecesaria)},
                      {"orientada", PlanosJson(estudio.orientada)},
                      {"avisos", AvisosJson(avisos)}};
    assistants::DevolverAlRegistro(estudio.v, proyecto.registro);
    assistants::GuardarReceptores(proyecto.receptores, proyecto.registro);
    diseno.archivo = Archivar(proyecto.registro);
    diseno.receptores = std::move(proyecto.receptores);
    diseno.modelos = std::move(modelos);
    return diseno;
}

}  // namespace efv::orden

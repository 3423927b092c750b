// A sale to the grid out of its study file.
#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/venta.h>
#include <quorvel/solar.h>

#include "comun/numeros.h"
#include "comun/tabla_k.h"
#include "diseno/calculados.h"
#include "diseno/diseno.h"
#include "diseno/proyecto.h"
#include "diseno/salida.h"

namespace efv::orden {

namespace {

using report::ProyectoVenta;

// What a study must keep to besides the record's own limits.
constexpr auto kRangos = std::to_array<RangoCampo>({
    {"bPotenciaGenerador", {0, 1}},
    {"bPerformanceRatio", {0, 1}},
    {"iTipoPrima", {0, 1}},
    {"iTipoCoste", {0, 1}},
    {"iTipoAmortizacion", {0, 1}},
    {"dEnergiaBase", {0, 1e9}},
    {"dRepercusion", {0, 1e6}},
    {"dBonificacionICO", {0, 6000}},
});

// A price or a cost that is given says which of the two ways counts, unless the file says it.
void Elegir(ProyectoVenta& proyecto)
{
    const auto dado = [&](const char* nombre) { return proyecto.fijados.contains(nombre); };
    CSFVCalculoEconomico& e = proyecto.registro;
    if (!dado("iTipoCoste") && dado("dCosteInstalacion") && !dado("dRepercusion"))
        e.iTipoCoste = 1;
    if (!dado("iTipoPrima") && (dado("dPrimaVariableA") || dado("dPrimaVariableB")) && !dado("dPrimaFija"))
        e.iTipoPrima = 1;
    const auto sobra = [&](const char* nombre, bool bSobra) {
        if (bSobra && dado(nombre))
            proyecto.notas.push_back(fmt::format("«{}» no cuenta con la forma de calcular elegida.", nombre));
    };
    sobra("dCosteInstalacion", e.iTipoCoste == 0);
    sobra("dRepercusion", e.iTipoCoste == 1);
    sobra("dPrimaFija", e.iTipoPrima == 1);
    sobra("dPrimaVariableA", e.iTipoPrima == 0);
    sobra("dPrimaVariableB", e.iTipoPrima == 0);
    for (const std::string_view nombre : kCalculadosVenta)
        if (proyecto.fijados.contains(std::string(nombre)))
            proyecto.notas.push_back(
                fmt::format("«{}» se calcula siempre: el valor del fichero no cuenta.", nombre));
}

ProyectoVenta LeerProyecto(const JsonLeido& j, const std::string& csDatos)
{
    Objeto objeto(j);
    ProyectoVenta proyecto;
    LeerCabecera(objeto, "venta", proyecto.titulo);
    proyecto.portada = LeerPortada(objeto);
    proyecto.fijados = LeerCampos(objeto, proyecto.registro, kRangos);
    if (objeto.Buscar("lugar") != nullptr || objeto.Buscar("latitud") != nullptr || !proyecto.EnergiaDada())
        proyecto.lugar = LeerLugar(objeto, csDatos, !proyecto.EnergiaDada());
    if (const JsonLeido* inclinacion = objeto.Buscar("dInclinacion"); inclinacion != nullptr) {
        rpc::NombrarLugar([] { return "dInclinacion"; },
                          [&] {
                              proyecto.dInclinacion = LeerNumero(*inclinacion, {0.0, 90.0});
                          });
    }
    objeto.Terminar();
    if (!proyecto.fijados.contains("dPotenciaGenerador") &&
        (!proyecto.EnergiaDada() || !proyecto.fijados.contains("dCosteInstalacion")))
        throw rpc::ErrorValor("falta «dPotenciaGenerador», la potencia del generador en W");
    Elegir(proyecto);
    if (proyecto.registro.iTipoCoste == 1 && !(proyecto.registro.dPotenciaGenerador > 0.0) &&
        proyecto.fijados.contains("dPotenciaGenerador"))
        throw rpc::ErrorValor("dPotenciaGenerador: con el coste dado debe ser mayor que 0");
    return proyecto;
}

struct ColumnaCsv {
    const char* nombre;
    CArray<double, double&> CSFVCalculoEconomico::*valores;
};
constexpr auto kColumnasCsv = std::to_array<ColumnaCsv>({
    {"año", &CSFVCalculoEconomico::aAnio},
    {"energia_kWh", &CSFVCalculoEconomico::aEnergia},
    {"prima_eur_kWh", &CSFVCalculoEconomico::aPrima},
    {"ingresos_eur", &CSFVCalculoEconomico::aIngresos},
    {"ingresos_acumulados_eur", &CSFVCalculoEconomico::aIngresosAcumulados},
    {"capital_e_interes_eur", &CSFVCalculoEconomico::aCapitalInteres},
    {"mantenimiento_eur", &CSFVCalculoEconomico::aMantenimiento},
    {"flujo_eur", &CSFVCalculoEconomico::aCashFlow},
    {"flujo_acumulado_eur", &CSFVCalculoEconomico::aAcumulado},
});

// The years as a spreadsheet reads them, in full precision.
std::string Csv(const CSFVCalculoEconomico& estudio)
{
    std::string texto;
    for (const ColumnaCsv& columna : kColumnasCsv)
        texto += fmt::format("{}{}", texto.empty() ? "" : ";", columna.nombre);
    texto += '\n';
    for (std::ptrdiff_t i = 0; i < estudio.aAnio.GetSize(); ++i) {
        const char* separador = "";
        for (const ColumnaCsv& columna : kColumnasCsv) {
            texto += std::exchange(separador, ";");
            texto += DecimalExacto((estudio.*columna.valores)[i]);
        }
        texto += '\n';
    }
    return texto;
}

}  // namespace

Diseno EstudiarVenta(const JsonLeido& proyectoJson, const std::string& csDatos)
{
    const ProyectoVenta proyecto = LeerProyecto(proyectoJson, csDatos);
    if (proyecto.lugar)
        CargarTablaK(csDatos);
    report::EstudioVenta resultado = report::Calcular(proyecto, phGetBaseFactorK());
    if (!resultado.bPlano && !proyecto.EnergiaDada())
        throw rpc::ErrorValor(
            "la tabla de factores K no llega a esa latitud: dé la energía del año en «dEnergiaBase», kWh");
    const std::vector<report::Aviso> avisos = report::Avisos(proyecto, resultado);
    const CSFVCalculoEconomico& estudio = resultado.estudio;

    Diseno diseno;
    diseno.documento = report::EscribirDocumento(proyecto, resultado, avisos);
    diseno.csv = Csv(estudio);
    diseno.valores = {{"tipo", "venta"},
                      {"titulo", proyecto.titulo},
                      {"lugar", proyecto.lugar ? LugarJson(*proyecto.lugar) : JsonEscrito()},
                      {"dInclinacion", proyecto.lugar ? JsonEscrito(proyecto.Inclinacion()) : JsonEscrito()},
                      {"valores", ValoresJson(CamposDeRegistro(estudio))},
                      {"tasa_hallada", resultado.bTasaHallada},
                      {"en_positivo_desde_el_año",
                       resultado.iAnoRecuperado ? JsonEscrito(*resultado.iAnoRecuperado) : JsonEscrito()},
                      {"avisos", AvisosJson(avisos)},
                      {"supuestos", report::Supuestos(proyecto, resultado)}};
    diseno.archivo = Archivar(resultado.estudio);
    return diseno;
}

}  // namespace efv::orden

#include "autoconsumo/salida_estudio.h"

#include <fmt/format.h>

#include <quorvel/solar.h>

#include "comun/numeros.h"
#include "energia/campo.h"

namespace efv::orden {

namespace {

JsonEscrito SumaJson(const economics::SumaAutoconsumo& s)
{
    return {{"producida_kWh", NumeroJson(s.dProducida)},
            {"consumida_kWh", NumeroJson(s.dConsumida)},
            {"autoconsumida_kWh", NumeroJson(s.dAutoconsumida)},
            {"vertida_kWh", NumeroJson(s.dVertida)},
            {"comprada_kWh", NumeroJson(s.dComprada)},
            {"carga_fv_kWh", NumeroJson(s.dCargaFV)},
            {"carga_red_kWh", NumeroJson(s.dCargaRed)},
            {"descarga_kWh", NumeroJson(s.dDescarga)},
            {"cobertura", NumeroJson(s.Cobertura())},
            {"aprovechamiento", NumeroJson(s.Aprovechamiento())},
            {"gasto_sin_instalacion_eur", NumeroJson(s.dGastoSin)},
            {"compra_eur", NumeroJson(s.dCompra)},
            {"valor_vertido_eur", NumeroJson(s.dValorVertido)},
            {"compensado_eur", NumeroJson(s.dCompensado)},
            {"degradacion_eur", NumeroJson(s.dDegradacion)},
            {"ahorro_eur", NumeroJson(s.dAhorro)}};
}

JsonEscrito PuntoJson(const report::PuntoBarrido& p)
{
    return {{"potencia_kWp", p.dPotencia},
            {"bateria_kWh", p.dCapacidad},
            {"coste_eur", NumeroJson(p.dCoste)},
            {"cobertura", NumeroJson(p.dCobertura)},
            {"aprovechamiento", NumeroJson(p.dAprovechamiento)},
            {"ahorro_eur", NumeroJson(p.dAhorro)},
            {"recuperacion_años", p.recuperacion.bViable ? NumeroJson(p.recuperacion.dAnos) : JsonEscrito()},
            {"tir_pct", p.tasa.bHallada ? NumeroJson(p.tasa.dTIR) : JsonEscrito()},
            {"ganancia_eur", NumeroJson(p.dGanancia)}};
}

JsonEscrito DiasJson(const report::EstudioAutoconsumo& e)
{
    static constexpr std::array<const char*, 4> kNombres = {"invierno", "primavera", "verano", "otoño"};
    const auto dias = economics::DiasTipicos(e.horas.Horas(), e.operacion ? &*e.operacion : nullptr);
    JsonEscrito json = JsonEscrito::object();
    for (std::size_t i = 0; i < dias.size(); ++i) {
        json[kNombres[i]] = {{"produccion_kWh", dias[i].adProduccion},
                             {"consumo_kWh", dias[i].adConsumo},
                             {"autoconsumo_kWh", dias[i].adAutoconsumo},
                             {"vertido_kWh", dias[i].adVertido}};
    }
    return json;
}

}  // namespace

JsonEscrito EstudioJson(const report::ProyectoAutoconsumo& proyecto, const report::EstudioAutoconsumo& e,
                        const std::vector<report::Aviso>& avisos, std::span<const report::PuntoBarrido> barrido)
{
    JsonEscrito meses = JsonEscrito::array();
    for (std::size_t m = 0; m < e.ano.meses.size(); ++m) {
        JsonEscrito mes = {{"mes", NombreMes(m)}};
        mes.update(SumaJson(e.ano.meses[m]));
        meses.push_back(std::move(mes));
    }
    JsonEscrito entradas = JsonEscrito::array();
    for (const report::Dato& dato : proyecto.entradas)
        entradas.push_back({{"dato", dato.rotulo}, {"valor", dato.valor}});
    JsonEscrito json = {{"tipo", "autoconsumo"},
                        {"titulo", proyecto.titulo},
                        {"lugar", LugarJson(proyecto.lugar)},
                        {"anual", SumaJson(e.ano.total)},
                        {"meses", std::move(meses)},
                        {"recortada_kWh", NumeroJson(e.dRecortada)},
                        {"valores", ValoresJson(CamposDeRegistro(e.registro))},
                        {"viable", e.rentabilidad.recuperacion.bViable},
                        {"tasa_hallada", e.rentabilidad.tasa.bHallada},
                        {"flujos_eur", e.rentabilidad.adFlujos},
                        {"ganancia_eur", NumeroJson(e.rentabilidad.dAcumulado)},
                        {"dias_tipicos", DiasJson(e)},
                        {"entradas", std::move(entradas)},
                        {"avisos", AvisosJson(avisos)},
                        {"supuestos", report::Supuestos(proyecto)}};
    if (!barrido.empty()) {
        JsonEscrito& puntos = json["barrido"] = JsonEscrito::array();
        for (const report::PuntoBarrido& punto : barrido)
            puntos.push_back(PuntoJson(punto));
    }
    return json;
}

std::string HorasCsv(const report::EstudioAutoconsumo& e)
{
    std::vector<std::pair<const char*, std::vector<double>>> columnas;
    const auto anadir = [&](const char* nombre, const std::vector<double>& bloque) {
        columnas.emplace_back(nombre, economics::AnoDeBloque(economics::BloqueHorario(bloque)));
    };
    anadir("produccion_kWh", e.horas.adProduccion);
    anadir("consumo_kWh", e.horas.adConsumo);
    anadir("precio_consumo_eur_kWh", e.horas.adPrecioConsumo);
    anadir("precio_vertido_eur_kWh", e.horas.adPrecioVertido);
    if (e.operacion) {
        anadir("autoconsumo_kWh", e.operacion->adAutoconsumo);
        anadir("vertido_kWh", e.operacion->adVertido);
        anadir("carga_fv_kWh", e.operacion->adCargaFV);
        anadir("carga_red_kWh", e.operacion->adCargaRed);
        anadir("descarga_kWh", e.operacion->adDescarga);
        anadir("estado_kWh", e.operacion->adEstado);
    } else {
        auto autoconsumo = columnas[0].second;
        auto vertido = columnas[0].second;
        for (std::size_t i = 0; i < vertido.size(); ++i) {
            vertido[i] = std::max(vertido[i] - columnas[1].second[i], 0.0);
            autoconsumo[i] -= vertido[i];
        }
        columnas.emplace_back("autoconsumo_kWh", std::move(autoconsumo));
        columnas.emplace_back("vertido_kWh", std::move(vertido));
    }
    std::string texto = "mes;dia;hora";
    for (const auto& columna : columnas)
        texto += fmt::format(";{}", columna.first);
    texto += '\n';
    for (std::size_t i = 0; i < columnas[0].second.size(); ++i) {
        const int h = static_cast<int>(i);
        texto += fmt::format("{};{};{}", phGetMes(h) + 1, phGetDia(h) + 1, phGetHora(h));
        for (const auto& columna : columnas)
            texto += ';' + DecimalExacto(columna.second[i]);
        texto += '\n';
    }
    return texto;
}

}  // namespace efv::orden

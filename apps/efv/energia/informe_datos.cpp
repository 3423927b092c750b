#include <cmath>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "comun/numeros.h"
#include "energia/informe.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

Json Numero(double d)
{
    return std::isfinite(d) ? Json(d) : Json();
}

Json DelMes(const std::optional<solar::AnoEnergia>& resultado, std::size_t iMes)
{
    if (!resultado)
        return nullptr;
    const solar::MesEnergia& mes = resultado->meses[iMes];
    return {{"ri_kWh_m2_dia", Numero(mes.dPlano)},
            {"energia_kWh_dia", Numero(mes.dEnergiaDia)},
            {"energia_kWh_mes", Numero(mes.dEnergiaMes)}};
}

Json DelAno(const std::optional<solar::AnoEnergia>& resultado)
{
    if (!resultado)
        return nullptr;
    return {{"ri_media_kWh_m2_dia", Numero(resultado->PlanoMedio())},
            {"energia_media_kWh_dia", Numero(resultado->EnergiaDiaMedia())},
            {"energia_kWh", Numero(resultado->Energia())}};
}

Json DeLosPlanos(const solar::EnergiaPlanos& energia)
{
    Json planos = Json::array();
    for (const auto& [plano, ano, alEcuador] : energia.planos) {
        Json meses = Json::array();
        for (const solar::MesEnergia& mes : ano.meses)
            meses.push_back(Numero(mes.dEnergiaMes));
        planos.push_back({{"inclinacion_grados", plano.dInclinacion},
                          {"orientacion_grados", plano.dOrientacion},
                          {"parte", plano.dParte},
                          {"energia_kWh", Numero(ano.Energia())},
                          {"hacia_el_ecuador_kWh", Numero(alEcuador.Energia())},
                          {"meses_kWh", std::move(meses)}});
    }
    return {{"origen", energia.origen == solar::OrigenHoras::registro ? "registro" : "cielo"},
            {"energia_kWh", Numero(energia.Energia())},
            {"hacia_el_ecuador_kWh", Numero(energia.EnergiaAlEcuador())},
            {"planos", std::move(planos)}};
}

Json DelLugar(const std::optional<Localidad>& lugar)
{
    if (!lugar)
        return nullptr;
    return {{"nombre", CadenaUtf8(lugar->csNombre)}, {"provincia", CadenaUtf8(lugar->csProvincia)},
            {"pais", CadenaUtf8(lugar->csPais)},     {"longitud_grados", lugar->dLongitud},
            {"altitud_m", lugar->dAltitud},          {"fuente", CadenaUtf8(lugar->csFuente)}};
}

// The cells of one method in a line of CSV: none when it wasn't asked for, empty ones when it has no answer.
std::string Celdas(bool bPedido, const std::optional<solar::AnoEnergia>& resultado, std::size_t iMes)
{
    if (!resultado)
        return bPedido ? ";;;" : "";
    const solar::MesEnergia& mes = resultado->meses[iMes];
    return fmt::format(";{};{};{}", DecimalExacto(mes.dPlano), DecimalExacto(mes.dEnergiaDia),
                       DecimalExacto(mes.dEnergiaMes));
}

}  // namespace

namespace {

Json Documento(const Estudio& estudio)
{
    const Campo& campo = estudio.encargo.campo;
    Json meses = Json::array();
    for (std::size_t m = 0; m < kMeses; ++m) {
        meses.push_back({{"mes", NombreMes(m)},
                         {"radiacion_kJ_m2_dia", campo.adRadHorizontal[m]},
                         {"radiacion_kWh_m2_dia", campo.adRadHorizontal[m] / solar::kKJporKWh},
                         {"correlacion", DelMes(estudio.correlacion, m)},
                         {"tabla", DelMes(estudio.tabla, m)}});
    }
    Json documento = {
        {"lugar", DelLugar(estudio.encargo.lugar)},
        {"latitud_grados", campo.dLatitud},
        {"hemisferio", campo.bNorte ? "norte" : "sur"},
        {"inclinacion_grados", campo.dInclinacion},
        {"inclinacion_correlacion_grados", campo.InclinacionCorrelacion()},
        {"orientacion_grados", campo.dOrientacion},
        {"potencia_kWp", campo.dPotencia},
        {"pr", campo.dPR},
        {"factor", campo.dFactor},
        {"meses", meses},
        {"anual", {{"correlacion", DelAno(estudio.correlacion)}, {"tabla", DelAno(estudio.tabla)}}},
        {"de_uso",
         {{"metodo", estudio.DeUso() == solar::Metodo::tabla ? "tabla" : "correlacion"},
          {"energia_kWh", Numero(estudio.AnoDeUso().Energia())}}},
        {"orientada", DeLosPlanos(estudio.orientada)},
        {"notas", estudio.notas},
    };
    if (!estudio.encargo.panel.empty())
        documento["paneles"] = {{"csPanel", estudio.encargo.panel}, {"cantidad", estudio.encargo.Paneles()}};
    return documento;
}

std::string Texto(const Json& documento)
{
    return documento.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace

std::string InformeJson(const Estudio& estudio)
{
    return Texto(Documento(estudio));
}

std::string ComparacionJson(std::span<const Estudio> casos)
{
    Json lista = Json::array();
    for (const Estudio& caso : casos)
        lista.push_back(Documento(caso));
    return Texto({{"casos", std::move(lista)}});
}

std::string ComparacionCsv(std::span<const Estudio> casos)
{
    std::string texto =
        "inclinacion_grados;orientacion_grados;potencia_kWp;energia_kWh;energia_kWh_kWp;orientada_kWh;"
        "orientada_kWh_kWp\n";
    for (const Estudio& caso : casos) {
        const Campo& campo = caso.encargo.campo;
        const double dEnergia = caso.AnoDeUso().Energia();
        texto += fmt::format(
            "{};{};{};{};{};{};{}\n", DecimalExacto(campo.dInclinacion), DecimalExacto(campo.dOrientacion),
            DecimalExacto(campo.dPotencia), DecimalExacto(dEnergia), DecimalExacto(dEnergia / campo.dPotencia),
            DecimalExacto(caso.orientada.Energia()), DecimalExacto(caso.orientada.Energia() / campo.dPotencia));
    }
    return texto;
}

std::string InformeCsv(const Estudio& estudio)
{
    const auto celdas = [&](std::size_t iMes) {
        return Celdas(estudio.encargo.bCorrelacion, estudio.correlacion, iMes) +
               Celdas(estudio.encargo.bTabla, estudio.tabla, iMes);
    };
    std::string texto = "mes;radiacion_kJ_m2_dia;radiacion_kWh_m2_dia";
    if (estudio.encargo.bCorrelacion)
        texto += ";correlacion_RI_kWh_m2_dia;correlacion_kWh_dia;correlacion_kWh_mes";
    if (estudio.encargo.bTabla)
        texto += ";tabla_RI_kWh_m2_dia;tabla_kWh_dia;tabla_kWh_mes";
    texto += '\n';
    for (std::size_t m = 0; m < kMeses; ++m) {
        const double dRad = estudio.encargo.campo.adRadHorizontal[m];
        texto += fmt::format("{};{};{}{}\n", NombreMes(m), DecimalExacto(dRad),
                             DecimalExacto(dRad / solar::kKJporKWh), celdas(m));
    }
    return texto;
}

}  // namespace efv::orden

#include "diseno/salida.h"

#include <cmath>
#include <variant>

#include <quorvel/framework/CArchive.h>

#include "energia/campo.h"

namespace efv::orden {

namespace {

JsonEscrito ListaJson(std::span<const double> ad)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const double d : ad)
        lista.push_back(NumeroJson(d));
    return lista;
}

struct Escritor {
    JsonEscrito operator()(const int* i) const { return *i; }
    JsonEscrito operator()(const short* n) const { return *n; }
    JsonEscrito operator()(const double* d) const { return NumeroJson(*d); }
    JsonEscrito operator()(const CString* cs) const { return CadenaUtf8(*cs); }
    JsonEscrito operator()(std::span<const double> ad) const { return ListaJson(ad); }
    JsonEscrito operator()(const CArray<double, double&>* ad) const
    {
        return ListaJson({ad->GetData(), static_cast<std::size_t>(ad->GetSize())});
    }
    template <class N, class ARG>
    JsonEscrito operator()(const CArray<N, ARG>* valores) const
    {
        JsonEscrito lista = JsonEscrito::array();
        for (const N& valor : *valores)
            lista.push_back((*this)(&valor));
        return lista;
    }
    JsonEscrito operator()(const unsigned* n) const { return *n; }
    JsonEscrito operator()(const ListaRegistrosConst& registros) const
    {
        JsonEscrito lista = JsonEscrito::array();
        for (std::ptrdiff_t i = 0; i < registros.GetSize(); ++i)
            lista.push_back(ValoresJson(CamposDeRegistro(registros.GetAt(i))));
        return lista;
    }
};

}  // namespace

JsonEscrito NumeroJson(double d)
{
    return std::isfinite(d) ? JsonEscrito(d) : JsonEscrito();
}

JsonEscrito ValoresJson(const std::vector<CampoRegistroConst>& valores)
{
    JsonEscrito json = JsonEscrito::object();
    for (const CampoRegistroConst& campo : valores)
        json[std::string(campo.nombre)] = std::visit(Escritor{}, campo.valor);
    return json;
}

JsonEscrito AvisosJson(const std::vector<report::Aviso>& avisos)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const report::Aviso& aviso : avisos)
        lista.push_back({{"falta", aviso.bFalta}, {"texto", aviso.texto}});
    return lista;
}

bool SinFaltas(const std::vector<report::Aviso>& avisos)
{
    return std::ranges::none_of(avisos, &report::Aviso::bFalta);
}

JsonEscrito ComprobacionJson(const report::TemperaturasCelulas& temperaturas,
                             const assistants::ComprobacionCampo& comprobacion)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const auto& c : comprobacion.limites) {
        const report::TextoLimite& texto = report::TextoDe(c.limite);
        lista.push_back({{"nombre", texto.clave},
                         {"tipo", texto.bMinimo ? "minimo" : "maximo"},
                         {"valor", NumeroJson(c.dValor)},
                         {"limite", c.dLimite > 0.0 ? NumeroJson(c.dLimite) : JsonEscrito()},
                         {"unidad", texto.unidad},
                         {"resultado", report::ResultadoDe(c)}});
    }
    return {{"temperatura_minima_C", temperaturas.Minima()},
            {"temperatura_maxima_C", temperaturas.Maxima()},
            {"limites", std::move(lista)}};
}

JsonEscrito ConRatio(const report::TemperaturasCelulas& temperaturas,
                     const assistants::ComprobacionCampo& comprobacion)
{
    JsonEscrito json = ComprobacionJson(temperaturas, comprobacion);
    json["ratio_cc_ca"] = NumeroJson(comprobacion.dRatioCCCA);
    return json;
}

JsonEscrito PropuestaJson(const report::TemperaturasCelulas& temperaturas,
                          const std::optional<assistants::PropuestaComprobada>& propuesta)
{
    if (!propuesta)
        return {};
    const bool bHay = propuesta->falta == assistants::SinPropuesta::ninguna;
    const bool bInversores = propuesta->iInversores > 0;
    const auto cuenta = [](bool bCuenta, int i) { return bCuenta ? JsonEscrito(i) : JsonEscrito(); };
    JsonEscrito json = {{"inversores", cuenta(bHay && bInversores, propuesta->iInversores)},
                        {"paneles_serie", cuenta(bHay, propuesta->iPanelesSerie)},
                        {"ramales", cuenta(bHay, propuesta->iRamales)},
                        {"potencia_kW", bHay ? NumeroJson(propuesta->dPotencia) : JsonEscrito()},
                        {"cumple", bHay},
                        {"motivo", report::MotivoDe(*propuesta)}};
    json["comprobacion"] = !bHay         ? JsonEscrito()
                           : bInversores ? ConRatio(temperaturas, propuesta->comprobacion)
                                         : ComprobacionJson(temperaturas, propuesta->comprobacion);
    return json;
}

JsonEscrito AnoJson(const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria)
{
    JsonEscrito lista = JsonEscrito::array();
    for (std::size_t m = 0; m < kMeses; ++m) {
        const solar::MesEnergia& calculado = ano.meses[m];
        JsonEscrito mes = {{"mes", NombreMes(m)},
                           {"horizontal_kWh_m2_dia", NumeroJson(calculado.dHorizontal)},
                           {"plano_kWh_m2_dia", NumeroJson(calculado.dPlano)},
                           {"producida_kWh", NumeroJson(calculado.dEnergiaMes)}};
        if (necesaria != nullptr)
            mes["necesaria_kWh"] = NumeroJson((*necesaria)[m]);
        lista.push_back(std::move(mes));
    }
    return lista;
}

JsonEscrito PlanosJson(const solar::EnergiaPlanos& energia)
{
    JsonEscrito planos = JsonEscrito::array();
    for (const auto& [plano, ano, alEcuador] : energia.planos) {
        planos.push_back({{"inclinacion_grados", plano.dInclinacion},
                          {"orientacion_grados", plano.dOrientacion},
                          {"parte", plano.dParte},
                          {"energia_kWh", NumeroJson(ano.Energia())},
                          {"hacia_el_ecuador_kWh", NumeroJson(alEcuador.Energia())},
                          {"meses", AnoJson(ano, nullptr)}});
    }
    return {{"origen", energia.origen == solar::OrigenHoras::registro ? "registro" : "cielo"},
            {"energia_kWh", NumeroJson(energia.Energia())},
            {"hacia_el_ecuador_kWh", NumeroJson(energia.EnergiaAlEcuador())},
            {"planos", std::move(planos)}};
}

JsonEscrito LugarJson(const report::LugarDiseno& lugar)
{
    JsonEscrito json = {{"latitud_grados", lugar.dLatitud}, {"hemisferio", lugar.bNorte ? "N" : "S"}};
    if (lugar.localidad)
        json["nombre"] = CadenaUtf8(lugar.localidad->csNombre);
    json["radiacion_kJ_m2_dia"] = lugar.adRadiacion ? ListaJson(*lugar.adRadiacion) : JsonEscrito();
    return json;
}

std::vector<std::byte> Archivar(CObject& registro)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

}  // namespace efv::orden

// How JSON and CSV of all orders name what they hold.
#include <regex>
#include <set>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

using Orden = std::vector<std::string>;

// Figures without a unit: fractions, factors.
const std::set<std::string> kSinUnidad = {"pr",         "factor",          "parte",     "cobertura",
                                          "cosfi",      "aprovechamiento", "impuestos", "factor_temperatura",
                                          "ratio_cc_ca"};

// A field of a record or of a catalogue keeps its name: "dPmpm".
bool EsDeRegistro(const std::string& nombre)
{
    static const std::regex kForma("(d|i|n|b|u|cs|a|ad|ai|acs|l)[A-Z][A-Za-z0-9_]*");
    return std::regex_match(nombre, kForma);
}

bool TerminaEnUnidad(const std::string& nombre)
{
    static const std::regex kForma(
        ".*_(grados|C|m|mm|mm2|m2|pct|A|V|W|kW|kWp|Wh|kWh|eur|años|mes|dia|m_ohm_mm2|"
        "W_m2|kWh_m2|kWh_m2_dia|kJ_m2_dia|kWh_dia|kWh_mes|eur_kWh)");
    return std::regex_match(nombre, kForma);
}

// Whole numbers count things and need no unit; a value beside its "unidad" has it there.
bool EsMedida(const Json& j, const Json& padre)
{
    const Json& cifra = j.is_array() && !j.empty() ? j.front() : j;
    return cifra.is_number_float() && !(padre.is_object() && padre.contains("unidad"));
}

void Comprobar(const Json& j, const std::string& orden)
{
    static const std::regex kForma("[a-zñ][a-zA-Zñ0-9]*(_[A-Za-zñ0-9]+)*");
    static const std::regex kSinEne("(.*_)?(ano|anos|otono|anadid.*)(_.*)?");
    if (j.is_array()) {
        for (const Json& elemento : j)
            Comprobar(elemento, orden);
    }
    if (!j.is_object())
        return;
    for (const auto& miembro : j.items()) {
        const std::string& nombre = miembro.key();
        if (nombre == "en_vigor" || nombre == "valores" || nombre == "ficha" || EsDeRegistro(nombre))
            continue;
        EXPECT_TRUE(std::regex_match(nombre, kForma)) << orden << ": " << nombre;
        EXPECT_FALSE(std::regex_match(nombre, kSinEne)) << orden << ": " << nombre;
        if (EsMedida(miembro.value(), j)) {
            EXPECT_TRUE(TerminaEnUnidad(nombre) || kSinUnidad.contains(nombre)) << orden << ": " << nombre;
        }
        Comprobar(miembro.value(), orden);
    }
}

TEST(NombresJson, LlevanLaUnidadAlFinal)
{
    const auto ejemplo = [](const char* nombre) { return (kEjemplos / nombre).string(); };
    const std::vector<Orden> ordenes = {
        {"energia", "--lugar", "Teruel"},
        {"energia", "--lugar", "Teruel", "--inclinacion", "20..30:5"},
        {"lugares", "teruel"},
        {"inclinacion", "--lugar", "Teruel", "--inclinacion", "20", "--panel", "1,7"},
        {"he5", "--lugar", "Teruel", "--uso", "3", "--superficie", "50000"},
        {"catalogo", "buscar", "285"},
        {"catalogo", "campos"},
        {"curvas", "Astronergy#CHSM6612P-295"},
        {"cable", "seccion", "--potencia", "4600", "--tension", "230", "--longitud", "25"},
        {"cable", "tabla", "--metodo", "E"},
        {"consumo", "importar", ejemplo("contador-casa.csv")},
        {"tarifa", "--p1", "0,197", "--p2", "0,128", "--p3", "0,093"},
        {"clima", "cielo", "--lugar", "Teruel"},
        {"clima", "cielo", "--lugar", "Teruel", "--meses"},
        {"aislada", ejemplo("casa-aislada.json")},
        {"red", ejemplo("cubierta-red.json")},
        {"venta", ejemplo("venta-cubierta.json")},
        {"autoconsumo", ejemplo("casa-autoconsumo.json"), "--barrido", "1..2"}};
    for (Orden orden : ordenes) {
        orden.emplace_back("--json");
        const Corrida corrida = Correr(orden);
        ASSERT_EQ(corrida.iEstado, 0) << orden[0] << ": " << corrida.errores;
        Comprobar(Json::parse(corrida.salida), orden[0] + ' ' + orden[1]);
    }
}

}  // namespace
}  // namespace efv::orden::pruebas

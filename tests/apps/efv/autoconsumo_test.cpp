#include <fstream>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

/// The shipped study, to be changed, with the shipped meter's file beside it.
class EstudioEjemplo {
public:
    EstudioEjemplo()
    {
        json = Json::parse(std::ifstream(kEjemplos / "casa-autoconsumo.json"));
        json["consumo"]["fichero"] = (kEjemplos / "contador-casa.csv").string();
    }

    Corrida Correr(std::vector<std::string> argumentos = {}) const
    {
        argumentos.insert(argumentos.begin(), {"autoconsumo", m_carpeta.Crear("e.json", json.dump())});
        return pruebas::Correr(argumentos);
    }
    Json Resultado(std::vector<std::string> argumentos = {}) const
    {
        argumentos.emplace_back("--json");
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        return corrida.iEstado == 0 ? Json::parse(corrida.salida) : Json();
    }
    const CarpetaTemporal& Carpeta() const { return m_carpeta; }

    Json json;

private:
    CarpetaTemporal m_carpeta;
};

// The figures come from a program apart, which reads the hours of production and consumption, makes the prices
// by the calendar of 2024 and its own time zones, runs the battery and sums up the money.
TEST(Autoconsumo, LaCasaDelEjemploContraOtroPrograma)
{
    EstudioEjemplo estudio;
    estudio.json["bateria"]["regla"] = "autoconsumo";
    const Json con = estudio.Resultado();
    EXPECT_NEAR(con["anual"]["autoconsumida_kWh"].get<double>(), 3009.821681464, 1e-8);
    EXPECT_NEAR(con["anual"]["compra_eur"].get<double>(), 84.533113138, 1e-8);
    EXPECT_NEAR(con["anual"]["ahorro_eur"].get<double>(), 597.930186923, 1e-8);
    EXPECT_NEAR(con["valores"]["dAniosRecuperacion"].get<double>(), 13.4379119068, 1e-9);
    EXPECT_NEAR(con["valores"]["dTIR"].get<double>(), 6.4065, 1e-3);
    // The years of the study under their old name too, but not under both.
    estudio.json["años"] = 3;
    const Json tres = estudio.Resultado()["flujos_eur"];
    estudio.json["anos"] = 3;
    EXPECT_EQ(estudio.Correr().iEstado, 1);
    estudio.json.erase("años");
    EXPECT_EQ(estudio.Resultado()["flujos_eur"], tres);
    EXPECT_NE(con["flujos_eur"], tres);
    estudio.json.erase("anos");
    estudio.json.erase("bateria");
    const Json sin = estudio.Resultado();
    EXPECT_NEAR(sin["anual"]["gasto_sin_instalacion_eur"].get<double>(), 618.727754105, 1e-8);
    EXPECT_NEAR(sin["anual"]["ahorro_eur"].get<double>(), 529.787173213, 1e-8);
    EXPECT_NEAR(sin["valores"]["dAniosRecuperacion"].get<double>(), 10.2890015414, 1e-9);
}

TEST(Autoconsumo, UnBarridoPasaPorElEstudio)
{
    EstudioEjemplo estudio;
    const Json json = estudio.Resultado({"--barrido", "2,2..6,2:2", "--baterias", "0..5:5"});
    ASSERT_EQ(json["barrido"].size(), 6U);
    const Json& punto = json["barrido"][3];
    EXPECT_EQ(punto["potencia_kWp"], 4.2);
    EXPECT_EQ(punto["bateria_kWh"], 5.0);
    EXPECT_NEAR(punto["ahorro_eur"].get<double>(), json["anual"]["ahorro_eur"].get<double>(), 1e-9);
    EXPECT_NEAR(punto["recuperacion_años"].get<double>(), json["valores"]["dAniosRecuperacion"].get<double>(),
                1e-9);
    // More panels cover no less.
    EXPECT_GE(json["barrido"][4]["cobertura"], json["barrido"][2]["cobertura"]);

    const std::string informe = (estudio.Carpeta().Ruta() / "i.html").string();
    const std::string registro = (estudio.Carpeta().Ruta() / "r.bin").string();
    const Corrida texto = estudio.Correr({"--barrido", "3;4", "--informe", informe, "--guardar", registro});
    EXPECT_TRUE(Contiene(texto.salida, {"Otros tamaños", "compensación simplificada", "precios.p1"}))
        << texto.errores;
    EXPECT_GT(std::filesystem::file_size(informe), 50000U);
    EXPECT_GT(std::filesystem::file_size(registro), 150U);
    const Corrida csv = estudio.Correr({"--csv"});
    EXPECT_EQ(std::ranges::count(csv.salida, '\n'), 8761);
}

TEST(Autoconsumo, LoQueNoValeSeDiceEnUnaLinea)
{
    struct Caso {
        std::function<void(Json&)> cambiar;
        const char* esperado;
    };
    const std::vector<Caso> casos = {
        {[](Json& j) { j["bateria"]["capacidad"] = 0; },
         "e.json»: bateria: capacidad: es 0; para un estudio sin"},
        {[](Json& j) { j["precios"].erase("p2"); }, "precios: falta el precio del período P2"},
        {[](Json& j) { j["precios"]["tarifa"] = "no-hay.csv"; }, "no-hay.csv»"},
        {[](Json& j) { j["consumo"]["cups"] = "ES55"; }, "no hay ningún punto de suministro «ES55»"},
        {[](Json& j) { j["consumo"] = Json::object(); },
         "consumo: falta «fichero», «patron», «receptores» u «horas»"},
        {[](Json& j) { j["consumo"]["estricto"] = true; }, "contador-casa.csv»: faltan 6 horas"},
        {[](Json& j) { j["potencia"] = -1; }, "potencia: se esperaba un número de 0,01"},
        {[](Json& j) { j.erase("coste"); }, "falta «coste»"},
        {[](Json& j) { j["rendimiento"] = 0.8; }, "«perdidas» y «rendimiento» se excluyen"},
        {[](Json& j) { j["prestano"] = 1; }, "no hay ningún campo «prestano»; parecidos: prestamo"},
    };
    for (const Caso& caso : casos) {
        EstudioEjemplo estudio;
        caso.cambiar(estudio.json);
        const std::string informe = (estudio.Carpeta().Ruta() / "i.html").string();
        const Corrida corrida = estudio.Correr({"--informe", informe});
        EXPECT_EQ(corrida.iEstado, 1) << caso.esperado;
        EXPECT_EQ(corrida.salida, "");
        EXPECT_EQ(std::ranges::count(corrida.errores, '\n'), 1);
        EXPECT_NE(corrida.errores.find(caso.esperado), std::string::npos) << corrida.errores;
        EXPECT_FALSE(std::filesystem::exists(informe));
    }
    EstudioEjemplo estudio;
    for (const std::vector<std::string>& argumentos :
         {std::vector<std::string>{"--barrido", "5..1"},
          {"--barrido", "1..9:0"},
          {"--barrido", "x"},
          {"--svg", "a.svg"},
          {"--informe", (kEjemplos / "contador-casa.csv").string()}})
        EXPECT_EQ(estudio.Correr(argumentos).iEstado, 2) << argumentos.back();
}

// 2.0TD on the days of 2025: 255 workdays of 8 hours in each of the dear periods.
TEST(Tarifa, DaLosPreciosDelAnoPedido)
{
    const std::vector<std::string> precios = {"tarifa", "--p1",        "0,2", "--p2",  "0,15", "--p3",
                                              "0,1",    "--impuestos", "1,1", "--ano", "2025"};
    auto argumentos = precios;
    argumentos.emplace_back("--json");
    const Json json = Json::parse(Correr(argumentos).salida);
    EXPECT_NEAR(json["precio_medio_eur_kWh"].get<double>(),
                1.1 * (2040 * 0.2 + 2040 * 0.15 + 4680 * 0.1) / 8760, 1e-12);
    EXPECT_EQ(json["precio_consumo_eur_kWh"].size(), 8760U);
    EXPECT_TRUE(Contiene(Correr(precios).salida, {"P1", "2040", "4680", "Precios de 2025 en horas solares"}));
    const Corrida falta = Correr({"tarifa", "--p1", "0,2"});
    EXPECT_EQ(falta.iEstado, 2);
    EXPECT_TRUE(Contiene(falta.errores, {"falta el precio del período P"}));
}

}  // namespace
}  // namespace efv::orden::pruebas

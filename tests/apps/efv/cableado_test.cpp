// The cables of designs out of their project files.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "apoyo.h"

namespace efv::orden::pruebas {

namespace {

Json Proyecto(const std::string& nombre)
{
    std::ifstream fichero(std::filesystem::path(EFV_CARPETA_PRUEBAS) / "../data/ejemplos" / nombre);
    return Json::parse(fichero);
}

Corrida Disenar(const std::string& orden, const Json& proyecto, bool bJson = true)
{
    const CarpetaTemporal carpeta;
    std::vector<std::string> argumentos = {orden, carpeta.Crear("p.json", proyecto.dump()), "--datos",
                                           std::string(EFV_CARPETA_PRUEBAS) + "/../data"};
    if (bJson)
        argumentos.emplace_back("--json");
    return Correr(argumentos);
}

TEST(CableadoDeDisenos, DeRedConSusEntradasYElLimiteDelProyecto)
{
    Json proyecto = Proyecto("cubierta-red.json");
    const Json antes = Json::parse(Disenar("red", proyecto).salida);
    const Json& tramos = antes.at("cableado").at("tramos");
    ASSERT_EQ(tramos.size(), 3U);
    for (const Json& tramo : tramos) {
        EXPECT_EQ(tramo.at("limite_pct"), 1.5);
        EXPECT_EQ(tramo.at("cumple"), true);
        EXPECT_LE(tramo.at("caida_pct").get<double>(), 1.5);
    }
    EXPECT_EQ(tramos[0].at("longitud_m"), 12.0);
    // Two strings, one on each tracker.
    const Json& entradas = antes.at("cableado").at("entradas");
    EXPECT_EQ(entradas[0].at("referencia"), "ST1.1");
    EXPECT_EQ(entradas[0].at("ramales"), 1);
    EXPECT_EQ(entradas[1].at("referencia"), "ST2.1");
    EXPECT_EQ(entradas[1].at("ramales"), 1);

    proyecto["cableado"] = {{"material", "Al"}, {"L2", {{"seccion", 2.5}, {"limite", 0.1}}}};
    const Json despues = Json::parse(Disenar("red", proyecto).salida);
    EXPECT_EQ(despues.at("valores"), antes.at("valores"));
    const Json& l2 = despues.at("cableado").at("tramos")[1];
    EXPECT_EQ(l2.at("material"), "Al");
    EXPECT_EQ(l2.at("cumple"), false);
    EXPECT_TRUE(Contiene(l2.at("motivo").get<std::string>(), {"la caída es", "0,10 %"}));
    const Corrida texto = Disenar("red", proyecto, false);
    EXPECT_EQ(texto.iEstado, 0);
    EXPECT_TRUE(
        Contiene(texto.salida, {"Cableado", "NO CUMPLE", "! Cableado, Inversor - Caja conexión", "ST2.1"}));
}

TEST(CableadoDeDisenos, LoQueNoEsDelCableadoSeDice)
{
    const auto error = [](const Json& cableado) {
        Json proyecto = Proyecto("cubierta-red.json");
        proyecto["cableado"] = cableado;
        const Corrida corrida = Disenar("red", proyecto);
        EXPECT_EQ(corrida.iEstado, 1);
        return corrida.errores;
    };
    EXPECT_TRUE(Contiene(error({{"limite", 0}}), {"cableado", "limite"}));
    EXPECT_TRUE(Contiene(error({{"L4", {{"limite", 1}}}}), {"L4", "L1, L2, L3"}));
    EXPECT_TRUE(Contiene(error({{"L1", {{"longitud", 1}}}}), {"longitud"}));
    EXPECT_TRUE(Contiene(error({{"corriente", 3}}), {"corriente"}));
    EXPECT_TRUE(Contiene(error(5), {"cableado", "objeto"}));
}

TEST(CableadoDeDisenos, DeAisladaTomaLasLongitudesDelProyecto)
{
    Json proyecto = Proyecto("casa-aislada.json");
    const Json antes = Json::parse(Disenar("aislada", proyecto).salida);
    const Json& paneles = antes.at("cableado").at("tramos")[0];
    EXPECT_TRUE(paneles.at("caida_V").is_null());
    EXPECT_GT(paneles.at("seccion_mm2").get<double>(), 0.0);
    EXPECT_TRUE(antes.at("cableado").at("entradas").empty());
    // The loads of the output hang on the batteries by way of the inverter: the same power at both voltages.
    const Json &inversor = antes.at("cableado").at("tramos")[3], &salida = antes.at("cableado").at("tramos")[4];
    EXPECT_NEAR(inversor.at("corriente_A").get<double>() * 48, salida.at("corriente_A").get<double>() * 230,
                1e-6);
    proyecto["cableado"] = {{"paneles", {{"longitud", 40}}}, {"limite", 3}};
    const Json despues = Json::parse(Disenar("aislada", proyecto).salida);
    const Json& largo = despues.at("cableado").at("tramos")[0];
    EXPECT_EQ(largo.at("longitud_m"), 40.0);
    EXPECT_EQ(largo.at("limite_pct"), 3.0);
    EXPECT_GT(largo.at("caida_pct").get<double>(), 0.0);
    EXPECT_EQ(despues.at("valores"), antes.at("valores"));
}

}  // namespace

}  // namespace efv::orden::pruebas

// `efv cable`.
#include <gtest/gtest.h>

#include "apoyo.h"
#include "cable/lista.h"
#include "comun/consola.h"

namespace efv::orden::pruebas {

namespace {

// 4600 W at 230 V are 20 A; the hand calculation stands in the kernel's tests.
TEST(OrdenCable, EligeLaSeccionMayorDeLasDos)
{
    const std::vector<std::string> tramo = {"cable",     "seccion", "--potencia", "4600",
                                            "--tensión", "230",     "--longitud", "25"};
    const Corrida texto = Correr(tramo);
    EXPECT_EQ(texto.iEstado, 0) << texto.errores;
    EXPECT_TRUE(
        Contiene(texto.salida, {"20,00 A", "1,5 mm²", "10 mm²", "6,65 mm²", "2,29 V (1,00 %)", "55,00 A"}));
    auto conJson = tramo;
    conJson.emplace_back("--json");
    const Json json = Json::parse(Correr(conJson).salida);
    EXPECT_EQ(json.at("seccion_por_corriente_mm2"), 1.5);
    EXPECT_EQ(json.at("seccion_mm2"), 10.0);
    EXPECT_EQ(json.at("cumple"), true);
    // Without a length the drop isn't known.
    const Json corto = Json::parse(Correr({"cable", "seccion", "--corriente", "20", "--json"}).salida);
    EXPECT_EQ(corto.at("seccion_mm2"), 1.5);
    EXPECT_TRUE(corto.at("caida_V").is_null());
    EXPECT_TRUE(corto.at("tension_V").is_null());
}

TEST(OrdenCable, DiceLoQueNoCumpleYTerminaConUno)
{
    const Corrida corta = Correr(
        {"cable", "caida", "--seccion", "6", "--corriente", "20", "--tension", "230", "--longitud", "25"});
    EXPECT_EQ(corta.iEstado, 1);
    EXPECT_TRUE(Contiene(corta.salida, {"3,82 V (1,66 %)", "NO CUMPLE"}));
    EXPECT_TRUE(Contiene(corta.errores, {"la caída es 1,66 %", "1,50 %"}));
    const Corrida calor =
        Correr({"cable", "seccion", "--corriente", "1", "--aislante", "pvc", "--temperatura", "65"});
    EXPECT_EQ(calor.iEstado, 1);
    EXPECT_TRUE(Contiene(calor.errores, {"no admite 65,0 ºC"}));
    EXPECT_TRUE(Contiene(calor.salida, {"—"}));
}

TEST(OrdenCable, ElMalUsoNombraLoQueFalla)
{
    const auto error = [](std::vector<std::string> argumentos) {
        argumentos.insert(argumentos.begin(), "cable");
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.iEstado, 2);
        EXPECT_TRUE(corrida.salida.empty());
        return corrida.errores;
    };
    EXPECT_TRUE(Contiene(error({}), {"seccion, caida, tabla o lista"}));
    EXPECT_TRUE(Contiene(error({"seccion"}), {"falta corriente o potencia"}));
    EXPECT_TRUE(Contiene(error({"seccion", "--potencia", "5"}), {"falta la tensión (tension)"}));
    EXPECT_TRUE(Contiene(error({"seccion", "--corriente", "5", "--potencia", "5"}), {"se excluyen"}));
    EXPECT_TRUE(Contiene(error({"seccion", "--corriente", "-5"}), {"--corriente", "fuera de"}));
    EXPECT_TRUE(Contiene(error({"seccion", "--corriente", "5", "--metodo", "Z"}), {"--metodo", "A1, A2"}));
    EXPECT_TRUE(Contiene(error({"caida", "--corriente", "5", "--seccion", "7"}), {"--seccion", "«7»"}));
    EXPECT_TRUE(Contiene(error({"seccion", "--corriente", "5", "--conductores", "1,5"}), {"entero"}));
    EXPECT_TRUE(Contiene(error({"lista"}), {"falta el fichero"}));
}

// A1, PVC, two conductors, at 40 ºC: 14.5 × 0.87; nothing above 25 mm².
TEST(OrdenCable, LaTablaDaDieciseisCorrientesCorregidas)
{
    const Json json = Json::parse(
        Correr({"cable", "tabla", "--metodo", "a1", "--aislante", "0", "--temperatura", "40", "--json"})
            .salida);
    const Json& filas = json.at("corrientes");
    ASSERT_EQ(filas.size(), 16U);
    EXPECT_EQ(filas[0].at("corriente_tabla_A"), 14.5);
    EXPECT_NEAR(filas[0].at("corriente_corregida_A").get<double>(), 12.615, 1e-12);
    EXPECT_TRUE(filas[7].at("corriente_tabla_A").is_null());
    EXPECT_TRUE(Contiene(Correr({"cable", "tabla"}).salida, {"30 ºC de aire y 20 ºC de suelo", "—"}));
}

TEST(OrdenCable, LaListaNombraLasFilasMalasYHaceLasDemas)
{
    const CarpetaTemporal carpeta;
    const std::string csv = carpeta.Crear("t.csv",
                                          "\xEF\xBB\xBFReferencia;Corriente;Tensión;Longitud;Trifásico\r\n"
                                          "\"Uno; y medio\";20;230;25;\r\n\r\n"
                                          "Dos;muchos;230;25;no\r\n"
                                          "Tres;20,5;400;25,5;sí\r\n");
    const Corrida texto = Correr({"cable", "lista", csv});
    EXPECT_EQ(texto.iEstado, 1);
    EXPECT_TRUE(Contiene(texto.salida, {"Uno; y medio", "10 mm²", "ERROR: corriente: se esperaba un número"}));
    EXPECT_TRUE(Contiene(texto.errores, {"1 de 3 filas no valen", "línea 4"}));
    const Json json = Json::parse(Correr({"cable", "lista", csv, "--json"}).salida);
    ASSERT_EQ(json.at("tramos").size(), 2U);
    EXPECT_EQ(json.at("tramos")[1].at("linea"), 5);
    EXPECT_EQ(json.at("tramos")[1].at("trifasico"), true);
    EXPECT_EQ(json.at("errores")[0].at("linea"), 4);
    EXPECT_TRUE(
        Contiene(Correr({"cable", "lista", csv, "--csv"}).salida, {"linea;referencia;", "4;\"Dos\";;"}));

    const std::string bien = carpeta.Crear("t.json",
                                           "{\"tramos\": [\n {\"corriente\": 20, \"tension\": 230,\n"
                                           "  \"longitud\": 25, \"referencia\": \"a ] } b\"},\n"
                                           " {\"corriente\": 5, \"trifasico\": true}]}");
    const Json dos = Json::parse(Correr({"cable", "lista", bien, "--json"}).salida).at("tramos");
    EXPECT_EQ(dos[0].at("linea"), 2);
    EXPECT_EQ(dos[1].at("linea"), 4);
    EXPECT_EQ(dos[0].at("seccion_mm2"), 10.0);
}

TEST(OrdenCable, UnaListaQueNoSeLeeLoDiceUnaVez)
{
    for (const auto& [bytes, motivo] : std::vector<std::pair<std::string, std::string>>{
             {"", "vacío"},
             {"corriente;nada\n1;2\n", "«nada»"},
             {"corriente;Corriente\n1;2\n", "dos veces"},
             {"corriente\n", "ningún tramo"},
             {"[{]", "JSON"},
             {"{\"otros\": []}", "tramos"},
         }) {
        try {
            AnalizarLista(bytes);
            ADD_FAILURE() << bytes;
        } catch (const ErrorEjecucion& error) {
            EXPECT_TRUE(Contiene(error.what(), {motivo}));
        }
    }
    EXPECT_EQ(AnalizarLista("[7, [], {\"corriente\": []}, {\"corriente\": 1, \"nada\": 2}]").size(), 4U);
}

}  // namespace

}  // namespace efv::orden::pruebas

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

Json Calcular(std::vector<std::string> argumentos)
{
    argumentos.insert(argumentos.begin(), "consumo");
    argumentos.emplace_back("--json");
    const Corrida corrida = Correr(argumentos);
    EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
    return corrida.iEstado == 0 ? Json::parse(corrida.salida) : Json();
}

void EsperarFallo(std::vector<std::string> argumentos, int iEstado, const char* fragmento)
{
    argumentos.insert(argumentos.begin(), "consumo");
    const Corrida corrida = Correr(argumentos);
    EXPECT_EQ(corrida.iEstado, iEstado) << corrida.errores;
    EXPECT_EQ(corrida.salida, "");
    EXPECT_NE(corrida.errores.find(fragmento), std::string::npos) << corrida.errores;
}

// A shop: the rows of its working days and of its Sunday sum 14.08 and 6.94. January has 5 Mondays,
// Tuesdays and Wednesdays, 4 of each other day: 27 working days and 4 Sundays.
TEST(Consumo, UnPatronDaSusHorasEnCsvYEnJson)
{
    const Corrida csv = Correr({"consumo", "patron", "8", "--potencia", "2000"});
    EXPECT_TRUE(csv.salida.starts_with("mes;dia;hora;consumo_Wh\n1;1;0;420\n")) << csv.errores;
    EXPECT_EQ(std::ranges::count(csv.salida, '\n'), 8761);
    EXPECT_TRUE(csv.salida.ends_with("\n12;31;23;420\n"));
    const Json json = Calcular({"patron", "8", "--potencia", "2000"});
    EXPECT_EQ(json["horas_Wh"].size(), 8760U);
    EXPECT_EQ(json["potencia_maxima_W"], 2000.0);
    EXPECT_NEAR(json["energia_mes_Wh"][0].get<double>(), 2000 * (27 * 14.08 + 4 * 6.94), 1e-6);
}

TEST(Consumo, UnFicheroSeImportaEnSuUnidadYTiempo)
{
    const CarpetaTemporal carpeta;
    std::string texto;
    for (int i = 0; i < 744 * 4; ++i)
        texto += "0,25\n";
    const std::string ruta = carpeta.Crear("enero.csv", texto);
    const Json json = Calcular({"importar", ruta, "--unidad", "kWh", "--tiempo", "1/4", "--periodo", "1"});
    EXPECT_EQ(json["energia_mes_Wh"][0], 744000.0);
    EXPECT_EQ(json["energia_año_Wh"], 744000.0);
    EXPECT_EQ(json["horas_Wh"][743], 1000.0);

    EsperarFallo({"importar", ruta}, 1, "2976 valores y se esperaban 8760");
    EsperarFallo({"importar", ruta, "--periodo", "1"}, 1, "más de los 744");
    EXPECT_EQ(Calcular({"importar", ruta, "--incompleto"})["energia_año_Wh"], 744.0);
    EsperarFallo({"importar", carpeta.Crear("c.csv", "Consumo;1;2")}, 1, "el valor 1 no es un número");
    EsperarFallo({"importar", carpeta.Crear("v.csv", "\n\n")}, 1, "no tiene ningún valor");
    EsperarFallo({"importar", carpeta.Crear("b.csv", std::string("1\0;", 3))}, 1, "no es texto");
    EsperarFallo({"importar", carpeta.Ruta()}, 1, "no se puede leer");
    EsperarFallo({"importar", ruta, "--unidad", "W"}, 2, "Wh, kWh");
}

// The shipped house: its twelve months read apart from this program, by the clock of each hour; six hours of 14
// May are missing, 29 February doesn't count.
TEST(Consumo, UnFicheroDeContadorSeImportaEnHorasSolares)
{
    const std::string contador = EFV_CARPETA_PRUEBAS "/../data/ejemplos/contador-casa.csv";
    const Json json = Calcular({"importar", contador, "--longitud", "-5,9"});
    EXPECT_EQ(json["horas_Wh"][0], 147.0);     // 1 to 2 by the clock
    EXPECT_EQ(json["horas_Wh"][8759], 158.0);  // the first hour of the year closes it
    EXPECT_EQ(json["contador"]["horas_rellenas"], 6);
    EXPECT_EQ(json["contador"]["primer_dia"], "2024-01-01");
    const Corrida texto = Correr({"consumo", "importar", contador});
    EXPECT_TRUE(Contiene(texto.salida, {"Faltan 6 horas", "El 29 de febrero no cuenta", "3641,0"}));

    // What --valores writes is a list of values, which the same command and the dialogs read.
    const CarpetaTemporal carpeta;
    const Corrida valores = Correr({"consumo", "importar", contador, "--valores"});
    const Json otra = Calcular({"importar", carpeta.Crear("v.txt", valores.salida)});
    EXPECT_EQ(otra["horas_Wh"], json["horas_Wh"]);

    EsperarFallo({"importar", contador, "--estricto"}, 1, "faltan 6 horas del 1/1/2024 al 31/12/2024");
    EsperarFallo({"importar", contador, "--cups", "ES77"}, 1, "no hay ningún punto de suministro «ES77»");
    EsperarFallo({"importar", contador, "--tiempo", "1"}, 2, "esto es un fichero de contador");
    EsperarFallo({"importar", contador, "--csv", "--valores"}, 2, "se excluyen");
    const std::string lista = carpeta.Crear("l.txt", "1;2;3");
    EsperarFallo({"importar", lista, "--cups", "ES1"}, 2, "esto es una lista de valores");
    EsperarFallo({"importar", carpeta.Crear("m.csv", "Fecha;Hora;Consumo_kWh\n1/1/2024;1;x\n")}, 1,
                 "m.csv»: línea 2: «x» no es un consumo");
}

TEST(Consumo, LasEnergiasMensualesSeReparten)
{
    const std::string doce = "10 20 30 40 50 60 70 80 90 100 110 120,5";
    const Json json =
        Calcular({"mensual", "--p3", doce, "--horas", "333333331111111111111133", "--patron", "2"});
    EXPECT_NEAR(json["energia_mes_Wh"][11].get<double>(), 120500, 1e-6);
    EXPECT_EQ(json["horas_Wh"][8], 0.0);
    EXPECT_GT(json["horas_Wh"][7].get<double>(), 0.0);
    const CarpetaTemporal carpeta;
    const Corrida dibujo =
        Correr({"consumo", "mensual", "--p1", doce, "--svg", carpeta.Ruta().string() + "/m.svg"});
    EXPECT_EQ(dibujo.iEstado, 0) << dibujo.errores;
    EsperarFallo({"mensual", "--p2", doce}, 2, "ninguna hora");
    EsperarFallo({"mensual", "--p1", "1 2 3"}, 2, "12 valores");
    EsperarFallo({"mensual", "--p1", doce, "--horas", "4"}, 2, "24 cifras");
    EsperarFallo({"mensual"}, 2, "faltan las energías");
}

TEST(Consumo, LosReceptoresDeUnaLista)
{
    const CarpetaTemporal carpeta;
    Json receptor = {{"iCantidad", 2}, {"dPotencia", 60}, {"dHorario", std::vector<double>(504)}};
    for (std::size_t i = 0; i < 84; ++i) {
        receptor["dHorario"][6 * i] = 480;
        receptor["dHorario"][6 * i + 1] = 570;
    }
    Json excluido = receptor;
    excluido["bNoCalcular"] = 1;
    const std::string ruta = carpeta.Crear("r.json", Json({receptor, excluido}).dump());
    const Json json = Calcular({"receptores", ruta});
    EXPECT_EQ(json["potencia_maxima_W"], 120.0);
    EXPECT_EQ(json["energia_año_Wh"], 365 * 180.0);
    EsperarFallo({"receptores", carpeta.Crear("o.json", "{}")}, 1, "no es una lista");
    EsperarFallo(
        {"receptores", carpeta.Crear("m.json", "[{\"dPotencia\":1},{\"dPotencia\":1,\"dHorario\":[1]}]")}, 1,
        "receptor 2");
    EsperarFallo({"receptores", carpeta.Crear("v.json", "")}, 1, "está vacío");
    // A project's loads, with their models and bands: 8 lamps of 7 W for 4.5 hours are 252 Wh a day, a part of
    // it all.
    const std::string casa = (kEjemplos / "casa-aislada.json").string();
    const Json receptores = Json::parse(LeerTodo(casa))["receptores"];
    const Json proyecto = Calcular({"receptores", casa});
    EXPECT_EQ(proyecto["horas_Wh"],
              Calcular({"receptores", carpeta.Crear("r.json", receptores.dump())})["horas_Wh"]);
    EXPECT_NEAR(
        Calcular({"receptores", carpeta.Crear("l.json", Json::array({receptores[0]}).dump())})["energia_año_Wh"]
            .get<double>(),
        242 * 252.0 + 123 * 140.0, 1e-6);
}

TEST(Consumo, SeDibujaComoDiaSemanaOAno)
{
    const CarpetaTemporal carpeta;
    const auto dibujar = [&](std::vector<std::string> mas) {
        std::vector<std::string> argumentos = {
            "consumo", "patron", "1", "--potencia", "1000", "--svg", carpeta.Ruta().string() + "/c.svg"};
        argumentos.insert(argumentos.end(), mas.begin(), mas.end());
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        EXPECT_NE(corrida.salida.find("Gráfica escrita"), std::string::npos);
        std::ifstream fichero(carpeta.Ruta().string() + "/c.svg");
        return std::string(std::istreambuf_iterator<char>(fichero), {});
    };
    const std::string mapa = dibujar({});
    EXPECT_NE(mapa.find(">DIC</text>"), std::string::npos);
    EXPECT_GT(std::ranges::count(mapa, '\n'), 24);
    EXPECT_NE(dibujar({"--vista", "semana", "--mes", "12", "--dia", "31"}).find("semanal"), std::string::npos);
    EXPECT_NE(dibujar({"--vista", "dia", "--mes", "2", "--dia", "28"}).find("diario"), std::string::npos);
    EsperarFallo({"patron", "1", "--potencia", "1", "--svg", "x.svg", "--mes", "2", "--dia", "29"}, 2, "--dia");
    EsperarFallo({"patron", "1", "--potencia", "1", "--vista", "dia"}, 2, "necesitan --svg");
    EsperarFallo({"patron", "1", "--potencia", "0"}, 2, "--potencia");
    EsperarFallo({"patron", "10", "--potencia", "1"}, 2, "1 a 9");
    EsperarFallo({"patron", "1"}, 2, "--potencia");
}

// Both records go to their archive and back through the scripted host.
TEST(Consumo, SusRegistrosSeArchivanPorElAnfitrion)
{
    Anfitrion anfitrion;
    const Json receptor = {{"csModelo", "F#ñ"}, {"iCantidad", 3}, {"dHorario", std::vector<double>(504, 7.5)}};
    const Json bytes =
        anfitrion.Resultado("rpc.archive", {{"record", "CSFVDataReceptor"}, {"value", receptor}});
    EXPECT_TRUE(bytes.get<std::string>().starts_with("01000000fffeff03"));
    const Json leido = anfitrion.Resultado("rpc.archive", {{"record", "CSFVDataReceptor"}, {"bytes", bytes}});
    EXPECT_EQ(leido["csModelo"], "F#ñ");
    EXPECT_EQ(leido["dHorario"], receptor["dHorario"]);
    EXPECT_EQ(leido["dRendimiento"], 100.0);
    const Json item = anfitrion.Resultado(
        "rpc.archive",
        {{"record", "CItemConsumo"}, {"value", {{"dConsumoHora", std::vector<double>(8760, 1.0)}}}});
    EXPECT_EQ(item.get<std::string>().size(), 2 * (2U + 4 + 4 + 70080));
    EXPECT_EQ(anfitrion.Error("rpc.archive", {{"record", "CItemConsumo"}, {"bytes", "0100fffeff"}}).first,
              -32000);
}

}  // namespace
}  // namespace efv::orden::pruebas

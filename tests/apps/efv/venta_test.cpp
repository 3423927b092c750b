// The sale to the grid at the terminal.
#include <algorithm>
#include <cmath>
#include <fstream>

#include <quorvel/framework/CArchive.h>

#include "apoyo.h"
#include "economics/vectores.h"

namespace efv::orden::pruebas {
namespace {

class Venta : public testing::Test {
protected:
    Corrida Estudiar(const Json& estudio, std::vector<std::string> opciones = {})
    {
        opciones.insert(opciones.begin(), {"venta", m_carpeta.Crear("estudio.json", estudio.dump())});
        return Correr(opciones);
    }
    Json Calcular(const Json& estudio)
    {
        const Corrida corrida = Estudiar(estudio, {"--json"});
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        return corrida.iEstado == 0 ? Json::parse(corrida.salida) : Json();
    }
    void EsperarFallo(const Json& estudio, const char* fragmento)
    {
        const Corrida corrida = Estudiar(estudio);
        EXPECT_EQ(corrida.iEstado, 1) << corrida.salida;
        EXPECT_NE(corrida.errores.find(fragmento), std::string::npos) << corrida.errores;
    }
    bool Avisa(const Json& json, const char* fragmento)
    {
        for (const Json& aviso : json["avisos"])
            if (aviso["texto"].get<std::string>().find(fragmento) != std::string::npos)
                return true;
        return false;
    }

    CarpetaTemporal m_carpeta;
};

TEST_F(Venta, DaLosNumerosDelProgramaIndependiente)
{
    int nComparados = 0;
    for (const auto& vector : efv::pruebas::LeerVectoresEconomia("venta")) {
        if (vector["iTipoAmortizacion"] > 1)
            continue;  // no method that a study file may ask for
        Json estudio = vector.entradas;
        for (const char* entero : {"iTipoPrima", "iTipoCoste", "iTipoAmortizacion"})
            estudio[entero] = static_cast<int>(vector[entero]);
        const Json json = Calcular(estudio);
        const Json& v = json["valores"];
        const auto cerca = [&](const Json& hallado, const char* nombre) {
            EXPECT_NEAR(hallado.get<double>(), vector.resultados.at(nombre),
                        1e-9 * std::max(1.0, std::abs(vector.resultados.at(nombre))))
                << nombre;
        };
        cerca(v["dTotalPagar"], "dTotalPagar");
        cerca(v["aAcumulado"].back(), "acumulado");
        EXPECT_NEAR(v["dTIR"].get<double>(), vector.resultados.at("dTIR"), 1e-4);
        EXPECT_EQ(json["tasa_hallada"].get<bool>(), vector.resultados.at("dTIR") != 0.0);
        EXPECT_EQ(Avisa(json, "no está al alcance"), vector.resultados.at("dTIR") == 0.0);
        EXPECT_EQ(Avisa(json, "más corto que el préstamo"), vector["dAniosEstudio"] < vector["dAniosPrestamo"]);
        ++nComparados;
    }
    EXPECT_GT(nComparados, 20);
}

// Radiation of 3600 · 5 kJ/m² on every day and a table of factors 1: 10 kWp give 50 kWh a day, 18,250 a year,
// at 80 % 14,600; the months are those of the field.
TEST_F(Venta, LaEnergiaSaleDelLugarElPlanoYLaPotencia)
{
    m_carpeta.Crear("ZqFactorKHE5.xml", TablaK(LatitudK(40, "1") + LatitudK(41, "1")));
    const Json estudio = {{"latitud", 40},
                          {"radiacion", std::vector<double>(12, 18000)},
                          {"dInclinacion", 20},
                          {"dPotenciaGenerador", 10000},
                          {"dPrimaFija", 0.1}};
    const Corrida corrida = Estudiar(estudio, {"--json", "--datos", m_carpeta.Ruta().string()});
    ASSERT_EQ(corrida.iEstado, 0) << corrida.errores;
    const Json valores = Json::parse(corrida.salida)["valores"];
    EXPECT_NEAR(valores["dEnergiaBase"].get<double>(), 18250, 1e-9);
    EXPECT_NEAR(valores["dEnergiaResultante"].get<double>(), 14600, 1e-9);
    ASSERT_EQ(valores["aEnergiaMes"].size(), 13U);
    EXPECT_NEAR(valores["aEnergiaMes"][1].get<double>(), 1120, 1e-9);
    EXPECT_NEAR(valores["aEnergiaMes"][12].get<double>(), 14600.0 / 12, 1e-9);
    EXPECT_NEAR(valores["aRadInclinada"][0].get<double>(), 5.0, 1e-12);
}

TEST_F(Venta, EscribeTablaCsvArchivoEInforme)
{
    const Json estudio = {{"titulo", "Nave <1>"},      {"dEnergiaBase", 10000}, {"dPotenciaGenerador", 5000},
                          {"dCosteInstalacion", 9000}, {"dPrimaFija", 0.5},     {"dAniosEstudio", 15.5}};
    const Corrida csv = Estudiar(estudio, {"--csv"});
    EXPECT_TRUE(
        csv.salida.starts_with("año;energia_kWh;prima_eur_kWh;ingresos_eur;ingresos_acumulados_eur;"
                               "capital_e_interes_eur;mantenimiento_eur;flujo_eur;flujo_acumulado_eur\n"
                               "1;8000;0,5;4000;4000;"))
        << csv.salida;
    EXPECT_EQ(std::ranges::count(csv.salida, '\n'), 17);  // 15.5 years have 16 rows
    const std::string archivo = (m_carpeta.Ruta() / "venta.bin").string();
    const std::string informe = (m_carpeta.Ruta() / "venta.html").string();
    const Corrida texto = Estudiar(estudio, {"--guardar", archivo, "--informe", informe});
    EXPECT_NE(texto.salida.find("Tasa interna de retorno"), std::string::npos);
    EXPECT_NE(texto.salida.find("Valores por defecto: performance ratio 80,00 %"), std::string::npos);
    const std::string pagina = LeerTodo(informe);
    EXPECT_NE(pagina.find("Nave &lt;1&gt;"), std::string::npos);
    EXPECT_NE(pagina.find("Cash Flow acumulado"), std::string::npos);
    CSFVCalculoEconomico leido;
    const std::string bytes = LeerTodo(archivo);
    CArchive ar{std::as_bytes(std::span(bytes))};
    leido.Serialize(ar);
    EXPECT_EQ(leido.iTipoCoste, 1);  // the cost that was given is the one that counts
    EXPECT_EQ(leido.dRepercusion, 1.8);
    EXPECT_EQ(leido.dRendimientoInicial, 4000.0);
}

TEST_F(Venta, LoQueNoSirveSeDiceConSuSitio)
{
    const Json bueno = {{"dEnergiaBase", 10000}, {"dPotenciaGenerador", 5000}};
    const auto con = [&](const char* nombre, Json valor) {
        Json estudio = bueno;
        estudio[nombre] = std::move(valor);
        return estudio;
    };
    EXPECT_EQ(Estudiar(bueno).iEstado, 0);
    EsperarFallo(con("dAniosEstudio", 300), "dAniosEstudio");
    EsperarFallo(con("dTipoInteres", 0), "dTipoInteres");
    EsperarFallo(con("iTipoAmortizacion", 2), "iTipoAmortizacion");
    EsperarFallo(con("dPrimaFja", 1), "dPrimaFija");
    EsperarFallo(con("tipo", "red"), "\"venta\"");
    EsperarFallo(con("lugar", "Ningunsitio"), "lugar");
    EsperarFallo({{"dPotenciaGenerador", 5000}}, "falta el lugar");
    EsperarFallo({{"dEnergiaBase", 5000}}, "dPotenciaGenerador");
    EsperarFallo({{"latitud", 80}, {"radiacion", std::vector<double>(12, 9000)}, {"dPotenciaGenerador", 1}},
                 "dEnergiaBase");
    EsperarFallo(Json::array(), "objeto");
    EXPECT_TRUE(Avisa(Calcular(con("dTIR", 5)), "«dTIR» se calcula siempre"));
    EXPECT_TRUE(Avisa(Calcular(con("dRepercusion", 0)), "no cuesta nada"));
    EXPECT_EQ(Correr({"venta"}).iEstado, 2);
    EXPECT_EQ(Estudiar(bueno, {"--json", "--csv"}).iEstado, 2);
}

}  // namespace
}  // namespace efv::orden::pruebas

// Tilt, minimum power, grid sale and the climate library, as a scripted host asks for them.
#include <vector>

#include "comun/anfitrion.h"

namespace efv::rpc::pruebas {

using namespace efv::pruebas;
namespace {

TEST(FuncionesEstudio, ElCieloYLaInclinacionOptimaDeUnLugar)
{
    Anfitrion anfitrion;
    const Json hora = anfitrion.Pedir("rpc.climate", {{"hour", {650, 40.4, 6, 21, 12, 25, 0.5, 0, 0, 0}}});
    EXPECT_NEAR(hora["result"].get<double>(), 972.7012340754928, 1e-9);  // with the model's definition
    EXPECT_EQ(anfitrion.Pedir("rpc.climate", {{"id", {12, 0, 0}}})["result"], 0.0);  // no record
    EXPECT_EQ(anfitrion.Pedir("rpc.climate", {{"record", nullptr}})["result"], true);
    EXPECT_EQ(anfitrion.Error("rpc.climate", {{"record", "/no/existe"}}).first, -32000);
    EXPECT_EQ(anfitrion.Error("rpc.climate", {{"record", ""}}).first, -32000);
    EXPECT_EQ(anfitrion.Error("rpc.climate", {{"hour", {1, 2}}}).first, -32602);
    EXPECT_EQ(anfitrion.Error("rpc.climate", {{"otra", nullptr}}).first, -32602);

    const Json temperaturas = std::vector<double>(372, 25.0);
    const Json optimo = anfitrion.Resultado("phCalcularOrientacionInclinacionOptima",
                                            {12, 650, 40.4, 0.5, temperaturas, nullptr, nullptr});
    EXPECT_NEAR(optimo["return"].get<double>(), 2444019.5, 0.05);
    EXPECT_DOUBLE_EQ(optimo["params"][5].get<double>(), 36.0);
    EXPECT_EQ(optimo["params"][6], 0.0);
    const Json perdidas = anfitrion.Resultado("phCalcularPerdidasOrientacionInclinacion",
                                              {-1, 650, 40.4, 0.5, temperaturas, 36.0, 0, optimo["return"]});
    EXPECT_NEAR(perdidas["return"].get<double>(), 0.0, 1e-9);
}

TEST(FuncionesEstudio, PotenciaMinimaDeDosUsos)
{
    Anfitrion anfitrion;
    // 1.0 · (18.75 - 3.13), and administrative rooms without surface: 1.36
    EXPECT_NEAR(anfitrion.Resultado("phGetPotMinInstalarCTE", {1, 0, 10000, 3, 0, 1})["return"].get<double>(),
                15.62 + 1.36, 1e-12);
    EXPECT_EQ(anfitrion.Resultado("phGetCsTipoUso", {4, ""})["params"][1], "Hoteles y hostales");
}

// 10 kWp with 10,000 kWh a year and 80 %: 8,000 kWh at 0.5 €, 4,000 € in the first year. Monthly tables add up
// to their mean.
TEST(FuncionesEstudio, UnaVentaALaRedLlenaSuRegistro)
{
    Anfitrion anfitrion;
    const Json doce = std::vector<double>(12, 5000.0);
    const Json estudio = {{"dEnergiaBase", 10000},
                          {"dPotenciaGenerador", 10000},
                          {"dPrimaFija", 0.5},
                          {"dAniosEstudio", 20},
                          {"dRepercusion", 3}};
    const Json r = anfitrion.Resultado("phCalcularViabilidadEconomicaRed2", {doce, doce, doce, estudio});
    const Json& hecho = r["params"][3];
    EXPECT_EQ(r["return"], 1);
    EXPECT_DOUBLE_EQ(hecho["dRendimientoInicial"].get<double>(), 4000.0);
    EXPECT_DOUBLE_EQ(hecho["dCosteInstalacion"].get<double>(), 30000.0);
    EXPECT_EQ(hecho["aEnergia"].size(), 20U);
    EXPECT_EQ(hecho["aEnergiaMes"].size(), 13U);
    EXPECT_DOUBLE_EQ(hecho["aEnergiaMes"][0].get<double>(), 1240.0);  // 10 · 5 · 0.8 · 31
    const auto [iCodigo, mensaje] =
        anfitrion.Error("phCalcularViabilidadEconomicaRed3", {doce, doce, doce, {{"dAniosEstudio", 100001}}});
    EXPECT_EQ(iCodigo, -32000) << mensaje;
}

// A house of one element: 3 kWh produced and 1 used each hour. The blocks have two times 8,928 numbers.
TEST(FuncionesEstudio, ElAutoconsumoPorSusBloques)
{
    Anfitrion anfitrion;
    const Json dos3 = std::vector<double>(2 * 8928, 3.0);
    const Json dos1 = std::vector<double>(2 * 8928, 1.0);
    const Json compra = std::vector<double>(8928, 0.2);
    const Json venta = std::vector<double>(8928, 0.05);
    const Json estudios =
        Json::array({{{"csReferencia", "Casa"}, {"dCosteInstalacion", 1314}, {"dTipoInteres", 0}}});
    const auto params = [&](const Json& produccion, const Json& carga) {
        return Json::array(
            {produccion, dos1, carga, nullptr, nullptr, nullptr, nullptr, 0.03, compra, venta, estudios});
    };
    const Json guion = {{"dialogs",
                         {{{"dialog", "CCalculoEconomicoAutoSheet"},
                           {"steps", {{{"select", {"tab", "Amortización"}}}, {{"read", {"lista"}}}}}}}}};
    const Json r = anfitrion.Resultado("phViabilidadEconomicaAutoconsumo", params(dos3, nullptr), guion);
    EXPECT_EQ(r["return"], 0);
    EXPECT_NEAR(r["params"][10][0]["dAniosRecuperacion"].get<double>(), 0.5, 1e-9);  // 2,628 a year
    EXPECT_EQ(r["params"][3], nullptr);
    EXPECT_EQ(r["dialogs"][0]["reads"][0]["lista"]["rows"].size(), 7U);
    EXPECT_EQ(anfitrion.Error("phViabilidadEconomicaAutoconsumo", params(compra, nullptr)).first, -32602);
    EXPECT_EQ(anfitrion.Error("phViabilidadEconomicaAutoconsumo", params(nullptr, nullptr)).first, -32602);
    EXPECT_EQ(anfitrion.Error("phViabilidadEconomicaAutoconsumo", params(dos3, compra)).first, -32602);
}

TEST(FuncionesEstudio, LaTarifaSeAbrePorSuClase)
{
    Anfitrion anfitrion;
    const Json guion = {{"dialogs", {{{"dialog", "CDlgGeneradorTarifa"}, {"steps", {{{"press", "OK"}}}}}}}};
    const Json r = anfitrion.Resultado("rpc.open", {"CDlgGeneradorTarifa"}, guion);
    EXPECT_EQ(r["return"], 1);
    EXPECT_EQ(r["params"], Json::array({"CDlgGeneradorTarifa"}));
    EXPECT_EQ(r["messages"][0]["text"], "Tarifa generada");
    EXPECT_EQ(anfitrion.Resultado("rpc.open", {"CDlgGeneradorTarifa"})["return"], 2);
    EXPECT_EQ(anfitrion.Error("rpc.open", {"CDlgOtro"}).first, -32602);
    EXPECT_EQ(anfitrion.Error("rpc.open", Json::array()).first, -32602);
}

}  // namespace
}  // namespace efv::rpc::pruebas

// Sky, tilt and the PVGIS service at the terminal.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "apoyo.h"
#include "comun/servidor_pvgis.h"

namespace efv::orden::pruebas {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kMadrid = {"--lat", "40.4", "--altitud", "650"};

Json CorrerJson(std::vector<std::string> argumentos, const std::vector<std::string>& mas)
{
    argumentos.insert(argumentos.end(), mas.begin(), mas.end());
    const Corrida corrida = Correr(argumentos);
    EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
    return corrida.iEstado == 0 ? Json::parse(corrida.salida) : Json();
}

// The year's figures of the sky's definition: optimum 2444.0195 kWh/m² at 36 degrees, 2065.8947 on the
// horizontal.
TEST(OrdenInclinacion, OptimasYPerdidasDelAno)
{
    const Json json = CorrerJson({"inclinacion", "--json", "--inclinacion", "0"}, kMadrid);
    const Json ano = json["meses"][12];
    EXPECT_EQ(ano["inclinacion_grados"], 36.0);
    EXPECT_NEAR(ano["radiacion_kWh_m2"].get<double>(), 2444.0195, 5e-5);
    EXPECT_NEAR(ano["perdidas_pct"].get<double>(), 15.47143, 1e-5);
    EXPECT_FALSE(ano["limitada"]);
    EXPECT_EQ(json["meses"][11]["inclinacion_grados"], 39.5);  // the last one that is tried
    EXPECT_TRUE(json["meses"][11]["limitada"]);
    const Corrida texto = Correr({"inclinacion", "--lat", "-33.45", "--altitud", "520"});
    EXPECT_NE(texto.salida.find("hacia el norte"), std::string::npos);
    EXPECT_NE(texto.salida.find("limitado por el método"), std::string::npos);
    EXPECT_NE(texto.salida.find("2538,73"), std::string::npos);
}

// 2 panels of 1.5 m at 30 degrees and 40 of latitude: 3·sin 30 = 1.5 m high, 1.5/tan 21 = 3.9076 m of shadow.
TEST(OrdenInclinacion, FilasYMapa)
{
    const CarpetaTemporal carpeta;
    const std::string svg = (carpeta.Ruta() / "p.svg").string();
    const Json json = CorrerJson({"inclinacion", "--json", "--lat", "40", "--inclinacion", "30", "--panel",
                                  "1,5", "--paneles", "2", "--svg", svg},
                                 {});
    EXPECT_NEAR(json["filas"]["distancia_libre_m"].get<double>(), 3.90763, 1e-5);
    EXPECT_NEAR(json["filas"]["altura_fila_m"].get<double>(), 1.5, 1e-12);
    std::ifstream fichero(svg);
    const std::string mapa{std::istreambuf_iterator<char>(fichero), {}};
    EXPECT_NE(mapa.find("<title>0º, 0º: "), std::string::npos);
    EXPECT_TRUE(mapa.ends_with("</svg>\n"));
    for (const std::vector<std::string>& mal :
         std::vector<std::vector<std::string>>{{"inclinacion"},
                                               {"inclinacion", "--lat", "40", "--panel", "1"},
                                               {"inclinacion", "--lat", "40", "--orientacion", "10"},
                                               {"inclinacion", "--lat", "95"}})
        EXPECT_EQ(Correr(mal).iEstado, 2);
    EXPECT_EQ(Correr({"inclinacion", "--lat", "40", "--horizonte", svg}).iEstado, 1);
}

TEST(OrdenClima, CieloPorHorasYPorMeses)
{
    const Corrida horas = Correr({"clima", "cielo", "--lat", "40.4", "--altitud", "650"});
    EXPECT_EQ(std::ranges::count(horas.salida, '\n'), 8760);
    EXPECT_NE(horas.salida.find("\n972.701234"), std::string::npos);  // noon of 21 June
    const Corrida meses =
        Correr({"clima", "cielo", "--lat", "40.4", "--altitud", "650", "--inclinacion", "35", "--meses"});
    EXPECT_NE(meses.salida.find("2443,82"), std::string::npos) << meses.salida;
}

class OrdenClimaRed : public ::testing::Test {
protected:
    static void SetUpTestSuite() { servidor = std::make_unique<efv::pruebas::ServidorPvgis>(); }
    static void TearDownTestSuite() { servidor.reset(); }
    ~OrdenClimaRed() override { ::unsetenv("EFV_PVGIS_URL"); }  // NOLINT(concurrency-mt-unsafe)

    static void Usar(const std::string& url)
    {
        ::setenv("EFV_PVGIS_URL", url.c_str(), 1);  // NOLINT(concurrency-mt-unsafe)
    }
    std::string Ruta(const char* nombre) const { return (carpeta.Ruta() / nombre).string(); }
    Corrida Descargar(const std::string& ruta) const
    {
        return Correr({"clima", "descargar", ruta, "--lat", "40,4", "--lon=-3,7", "--espera", "0,4"});
    }

    static inline std::unique_ptr<efv::pruebas::ServidorPvgis> servidor;
    const CarpetaTemporal carpeta;
};

TEST_F(OrdenClimaRed, DescargadoSeVeYSeUsa)
{
    Usar(servidor->http + "troceado/");
    const Corrida corrida = Descargar(Ruta("madrid.txt"));
    ASSERT_EQ(corrida.iEstado, 0) << corrida.errores;
    EXPECT_EQ(corrida.salida.find("UTC"), std::string::npos);
    const Json ver = CorrerJson({"clima", "ver", Ruta("madrid.txt"), "--json"}, {});
    EXPECT_EQ(ver["longitud_grados"], -3.7);
    // 400 at noon, 60 less for each hour before or after: 2680 a day of June, whose sun is up in all of them.
    EXPECT_NEAR(ver["horizontal_kWh_m2"][5].get<double>(), 30 * 2.68, 1e-9);
    const Corrida plano = Correr({"clima", "plano", Ruta("madrid.txt"), "--inclinacion", "30"});
    EXPECT_EQ(std::ranges::count(plano.salida, '\n'), 8760);
    EXPECT_EQ(Descargar(Ruta("m.epw")).iEstado, 0);
    const Corrida lejos = Correr({"clima", "descargar", Ruta("l.txt"), "--lat", "28", "--lon=-15,4"});
    EXPECT_NE(lejos.salida.find("desde 7,5° de longitud"), std::string::npos);
}

TEST_F(OrdenClimaRed, LoQueFallaDiceQueYNoDejaRastro)
{
    const std::pair<const char*, const char*> casos[] = {{"rechazo/", "estado 400: Location over the sea"},
                                                         {"corto/", "8001 horas de 8760"},
                                                         {"parado/", "0.4 segundos sin enviar nada"},
                                                         {"vacio/", "0 horas"},
                                                         {"bucle/", "no acaba de enviar"}};
    for (const auto& [modo, texto] : casos) {
        Usar(servidor->http + modo);
        const Corrida corrida = Descargar(Ruta("x.txt"));
        EXPECT_EQ(corrida.iEstado, 1) << modo;
        EXPECT_NE(corrida.errores.find(texto), std::string::npos) << corrida.errores;
    }
    EXPECT_TRUE(fs::is_empty(carpeta.Ruta()));
    Usar("ftp://nada");
    EXPECT_EQ(Descargar(Ruta("x.txt")).iEstado, 2);
    EXPECT_EQ(Correr({"clima", "descargar", Ruta("x.txt"), "--lat", "40"}).iEstado, 2);
    EXPECT_EQ(Correr({"clima"}).iEstado, 2);
}

TEST_F(OrdenClimaRed, LaMensualValeParaOtrasOrdenes)
{
    Usar(servidor->http + "bien");
    const Corrida texto = Correr({"clima", "mensual", "--lat", "40,4", "--lon=-3,7"});
    EXPECT_NE(texto.salida.find("--lat 40.4 --radiacion 2700.0 5978.6 "), std::string::npos) << texto.salida;
    const Json json = CorrerJson({"clima", "mensual", "--lat", "40,4", "--lon=-3,7", "--json"}, {});
    EXPECT_NEAR(json["radiacion_kJ_m2_dia"][1].get<double>(), 46.5 / 28 * 3600, 1e-9);
    Usar(servidor->http + "rechazo");
    EXPECT_EQ(Correr({"clima", "mensual", "--lat", "40,4", "--lon=-3,7"}).iEstado, 1);
}

}  // namespace
}  // namespace efv::orden::pruebas

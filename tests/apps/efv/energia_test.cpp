#include <cstdlib>
#include <optional>
#include <sstream>

#include "apoyo.h"
#include "comun/reloj.h"

namespace efv::orden::pruebas {
namespace {

// Sets a variable of the environment, or removes it. The tests run in one thread.
void Entorno(const char* nombre, const char* valor)
{
    if (valor == nullptr)
        ::unsetenv(nombre);  // NOLINT(concurrency-mt-unsafe)
    else
        ::setenv(nombre, valor, 1);  // NOLINT(concurrency-mt-unsafe)
}

std::vector<std::string> Mas(std::vector<std::string> unos, const std::vector<std::string>& otros)
{
    unos.insert(unos.end(), otros.begin(), otros.end());
    return unos;
}

// A failure says why in one line and writes nothing else.
void EsperarFallo(const std::vector<std::string>& argumentos, int iEstado, const char* fragmento)
{
    const Corrida corrida = Correr(argumentos);
    EXPECT_EQ(corrida.iEstado, iEstado) << corrida.errores;
    EXPECT_EQ(corrida.salida, "");
    EXPECT_EQ(corrida.errores.find('\n'), corrida.errores.size() - 1) << corrida.errores;
    EXPECT_NE(corrida.errores.find(fragmento), std::string::npos) << corrida.errores;
    EXPECT_TRUE(corrida.errores.starts_with("efv")) << corrida.errores;
}

class Energia : public ::testing::Test {
protected:
    void SetUp() override
    {
        Entorno("EFV_DATOS", m_datos.Ruta().c_str());
        Entorno("EFV_AHORA", "2028-02-01T12:00:00");
        m_datos.Crear("ZqFactorKHE5.xml",
                      TablaK(LatitudK(40, "1.2") + LatitudK(41, "1.4") + LatitudK(-40, "0.8")));
    }
    void TearDown() override
    {
        Entorno("EFV_DATOS", nullptr);
        Entorno("EFV_AHORA", nullptr);
        FijarReloj(std::nullopt);
    }

    static Json Calcular(const std::vector<std::string>& argumentos)
    {
        const Corrida corrida = Correr(Mas({"energia", "--json"}, argumentos));
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        EXPECT_EQ(corrida.errores, "");
        return Json::parse(corrida.salida);
    }

    CarpetaTemporal m_datos;
};

const char* const kNorte = "7200,10100,15000,18200,22400,25000,26000,22600,17100,11500,7900,6300";
const char* const kSur = "25200,22300,18000,12600,8600,6800,7600,10400,14000,18700,22700,25200";
const std::vector<std::string> kCampo = {"--lat", "40.4",       "--radiacion", kNorte,     "--inclinacion",
                                         "35",    "--potencia", "5",           "--factor", "0,9"};

// Expected values of the correlation: a Python script of the published method, sunset angles by arccosine, for
// a year of 365 days; the clock's is one of 366.
TEST_F(Energia, LaCorrelacionDaLoDelMetodoEnUnAnoDe365Dias)
{
    const Json json = Calcular(kCampo);
    EXPECT_NEAR(json["meses"][0]["correlacion"]["ri_kWh_m2_dia"].get<double>(), 3.464593662209625, 1e-9);
    EXPECT_NEAR(json["meses"][9]["correlacion"]["ri_kWh_m2_dia"].get<double>(), 3.8232280882574825, 1e-9);
    EXPECT_NEAR(json["anual"]["correlacion"]["energia_kWh"].get<double>(), 6457.640007268944, 1e-6);
}

// Factor at 40.4 between 1.2 and 1.4: 1.28. 10100 × 1.28 / 3600 = 3.591111; × 5 × 0.8 × 0.9 × 28 = 361.984.
TEST_F(Energia, LosDosMetodosLlevanPRFactorYLosMismosDias)
{
    const Json json = Calcular(kCampo);
    const Json tabla = json["meses"][1]["tabla"];
    EXPECT_NEAR(tabla["ri_kWh_m2_dia"].get<double>(), 3.591111111111111, 1e-12);
    EXPECT_NEAR(tabla["energia_kWh_mes"].get<double>(), 361.984, 1e-9);
    for (const char* metodo : {"correlacion", "tabla"}) {
        const Json ano = json["anual"][metodo];
        EXPECT_NEAR(ano["energia_kWh"].get<double>(),
                    ano["ri_media_kWh_m2_dia"].get<double>() * 5 * 0.8 * 0.9 * 365, 1e-9);
    }
    EXPECT_EQ(json["de_uso"]["metodo"], "tabla");
    EXPECT_EQ(json["de_uso"]["energia_kWh"], json["anual"]["tabla"]["energia_kWh"]);
    const Json correlacion = Calcular(Mas(kCampo, {"--metodo", "correlacion"}));
    EXPECT_EQ(correlacion["de_uso"]["energia_kWh"], json["anual"]["correlacion"]["energia_kWh"]);
    EXPECT_EQ(Calcular(Mas(kCampo, {"--metodo", "tabla"}))["meses"][1]["correlacion"], nullptr);
}

TEST_F(Energia, UnCampoDelSurSeInclinaHaciaElNorte)
{
    const Json sur = Calcular({"--lat", "-33,4", "--radiacion", kSur, "--inclinacion", "30"});
    // Asked with +30 the correlation would give 6.4251 and 0.8622: a field that looks away from the sun.
    EXPECT_NEAR(sur["meses"][0]["correlacion"]["ri_kWh_m2_dia"].get<double>(), 6.281868308993964, 1e-9);
    EXPECT_NEAR(sur["meses"][5]["correlacion"]["ri_kWh_m2_dia"].get<double>(), 2.7564598565673415, 1e-9);
    // Between −40 (0.8) and 40 (1.2): 0.8 + 0.4 × 6.6 / 80 = 0.833.
    EXPECT_NEAR(sur["meses"][0]["tabla"]["ri_kWh_m2_dia"].get<double>(), 25200 * 0.833 / 3600, 1e-9);
    EXPECT_EQ(sur["inclinacion_grados"], 30.0);
    EXPECT_EQ(sur["inclinacion_correlacion_grados"], -30.0);
    EXPECT_EQ(sur["orientacion_grados"], 180.0);
    EXPECT_NE(sur["notas"].dump().find("Hemisferio sur"), std::string::npos);
}

TEST_F(Energia, LaInclinacionPropiaEsLaLatitudSinSigno)
{
    EXPECT_EQ(Calcular({"--lat", "-33,6", "--radiacion", kSur})["inclinacion_grados"], 34.0);
    EXPECT_EQ(Calcular({"--lat", "40.4", "--radiacion", kNorte})["inclinacion_grados"], 40.0);
}

// Each case is the one that is asked for alone; energy goes with the power.
TEST_F(Energia, VariosCasosSeComparan)
{
    const std::vector<std::string> campo = {"--lat", "40.4", "--radiacion", kNorte};
    const Json casos = Calcular(
        Mas(campo, {"--inclinacion", "20..30:5", "--orientacion", "-30;0", "--potencia", "2;4"}))["casos"];
    ASSERT_EQ(casos.size(), 12U);
    EXPECT_EQ(casos[5],
              Calcular(Mas(campo, {"--inclinacion", "25", "--orientacion", "-30", "--potencia", "4"})));
    EXPECT_EQ(casos[11]["orientada"]["planos"][0]["orientacion_grados"], 0.0);
    EXPECT_NEAR(casos[11]["de_uso"]["energia_kWh"].get<double>(),
                2 * casos[10]["de_uso"]["energia_kWh"].get<double>(), 1e-9);
    const std::string csv = Correr(Mas({"energia", "--csv", "--inclinacion", "20;30"}, campo)).salida;
    EXPECT_EQ(std::ranges::count(csv, '\n'), 3);
    EXPECT_TRUE(Contiene(Correr(Mas({"energia", "--inclinacion", "20;30"}, campo)).salida,
                         {"kWh/kWp", "El que más da por kWp"}));
    for (const char* mal : {"30..20", "20..30:0", "0..90:0,01", "20;;30", "80..95"})
        EXPECT_EQ(Correr(Mas({"energia", "--inclinacion", mal}, campo)).iEstado, 2) << mal;
}

TEST_F(Energia, LoQueNoTieneValorQuedaVacio)
{
    // At 70° north the sun doesn't set in June nor rise in December; the table ends at 41°.
    const std::vector<std::string> polar = {"--lat", "70", "--radiacion", kNorte};
    const Json json = Calcular(polar);
    EXPECT_EQ(json["meses"][5]["correlacion"]["energia_kWh_mes"], nullptr);
    EXPECT_TRUE(json["meses"][3]["correlacion"]["energia_kWh_mes"].is_number());
    EXPECT_EQ(json["anual"]["correlacion"]["energia_kWh"], nullptr);
    EXPECT_EQ(json["anual"]["tabla"], nullptr);
    EXPECT_NE(Correr(Mas({"energia"}, polar)).salida.find("—"), std::string::npos);
    const std::string csv = Correr(Mas({"energia", "--csv"}, polar)).salida;
    EXPECT_NE(csv.find("\nJunio;25000;6,944444444444445;;;;;;\n"), std::string::npos) << csv;
    EXPECT_EQ(csv.find('.'), std::string::npos);
    EsperarFallo(Mas({"energia", "--metodo", "tabla"}, polar), 1, "latitud");
}

TEST_F(Energia, LasRadiacionesSeEscribenDeVariasManeras)
{
    const auto radiacion = [](std::vector<std::string> valores) {
        valores.insert(valores.begin(), {"--lat", "40", "--metodo", "correlacion", "--radiacion"});
        return Calcular(valores)["meses"][1]["radiacion_kJ_m2_dia"];
    };
    EXPECT_EQ(radiacion({"7200,10100.5,15000,18200,22400,25000,26000,22600,17100,11500,7900,6300"}), 10100.5);
    EXPECT_EQ(radiacion({"7200;10100,5;15000;18200;22400;25000;26000;22600;17100;11500;7900;6300"}), 10100.5);
    EXPECT_EQ(radiacion({"7200", "10100,5", "15000", "18200", "22400", "25000", "26000", "22600", "17100",
                         "11500", "7900", "6300"}),
              10100.5);
}

TEST_F(Energia, UnaLlamadaMalHechaDiceQueYTerminaConDos)
{
    EsperarFallo({}, 2, "orden");
    EsperarFallo({"nada"}, 2, "nada");
    EsperarFallo({"energia", "--nada"}, 2, "--nada");
    EsperarFallo({"energia", "--lat"}, 2, "--lat");
    EsperarFallo({"energia"}, 2, "--lugar");
    EsperarFallo({"energia", "--lat", "40"}, 2, "--radiacion");
    EsperarFallo({"energia", "--lugar", "Madrid", "--lat", "40"}, 2, "--lat");
    EsperarFallo({"energia", "--lat", "40", "--lat", "41"}, 2, "más de una vez");
    EsperarFallo({"energia", "--lat", "40", "--radiacion", "1,2,3"}, 2, "12");
    EsperarFallo({"energia", "--lat", "40", "--radiacion", "-1,2,3,4,5,6,7,8,9,10,11,12"}, 2, "valor 1");
    EsperarFallo({"energia", "--lat", "40", "--radiacion", "2,2.6,3,4,5,6,7,6,5,3,2,1.5"}, 2, "3600");
    EsperarFallo(Mas({"energia", "--json", "--csv"}, kCampo), 2, "--csv");
    const std::pair<std::vector<std::string>, const char*> casos[] = {
        {{"--pr", "80"}, "fracción"},
        {{"--pr", "0"}, "--pr"},
        {{"--pr", "nan"}, "--pr"},
        {{"--metodo", "otro"}, "--metodo"},
        {{"--orientacion", "181"}, "--orientacion"},
        {{"sobra"}, "sobra"},
    };
    for (const auto& [opcion, fragmento] : casos)
        EsperarFallo(Mas(Mas({"energia"}, kCampo), opcion), 2, fragmento);
    for (const char* latitud : {"90,01", "-91", "inf", "40x", ""})
        EsperarFallo({"energia", "--lat", latitud, "--radiacion", kNorte}, 2, "--lat");
}

TEST_F(Energia, LoQueFaltaEnLosDatosTerminaConUno)
{
    EsperarFallo({"energia", "--lugar", "Madrid"}, 1, "localidades.xml");
    m_datos.Crear("ZqFactorKHE5.xml", TablaK(LatitudK(40, "1.2", 35) + LatitudK(41, "1.4", 40)));
    EsperarFallo(Mas({"energia"}, kCampo), 1, "falta datos para Alpha: 35.00º");
    m_datos.Crear("ZqFactorKHE5.xml", "<roto");
    EsperarFallo(Mas({"energia"}, kCampo), 1, "ZqFactorKHE5.xml");
    // The correlation needs no table.
    EXPECT_EQ(Correr(Mas({"energia", "--metodo", "correlacion"}, kCampo)).iEstado, 0);
    EsperarFallo(Mas({"energia", "--datos", "/no/existe"}, kCampo), 1, "/no/existe");
}

TEST_F(Energia, LosLugaresDistribuidosSeHallanPorSuNombre)
{
    Entorno("EFV_DATOS", nullptr);
    const Json lugares = Json::parse(Correr({"lugares", "malaga", "--json"}).salida);
    ASSERT_GE(lugares.size(), 1U);  // Vélez-Málaga and others contain it too
    const Json malaga = Calcular({"--lugar", "málaga"});
    EXPECT_EQ(malaga["latitud_grados"], lugares[0]["latitud_grados"]);
    EXPECT_EQ(malaga["meses"][11]["radiacion_kJ_m2_dia"], lugares[0]["radiacion_kJ_m2_dia"][11]);
    EXPECT_TRUE(malaga["anual"]["tabla"]["energia_kWh"].is_number());
    EsperarFallo({"energia", "--lugar", "Malga\n"}, 1, "Málaga");
    EsperarFallo({"lugares", "Atlántida"}, 1, "Atlántida");
}

// The parser's own words are English.
TEST(Ayuda, EstaTodaEnEspanol)
{
    for (const char* orden : {"", "energia", "lugares", "rpc"}) {
        std::vector<std::string> argumentos{orden, "--help"};
        std::erase(argumentos, "");
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.iEstado, 0);
        for (const char* palabra : {"Usage", "Options", "OPTIONS", "Subcommand", "SUBCOMMAND", "Positional",
                                    "TEXT ", "REQUIRED", "Print", "Display", "Excludes"})
            EXPECT_EQ(corrida.salida.find(palabra), std::string::npos) << corrida.salida;
    }
    EXPECT_EQ(Correr({"--version"}).salida, "QuorvelEFv: 1.0.1.0\n");
}

TEST(Reloj, AceptaMomentosQueExisten)
{
    const auto momento = LeerMomento("2028-02-29T23:05:59");
    ASSERT_TRUE(momento);
    EXPECT_EQ(momento->iDia, 29);
    EXPECT_EQ(momento->iHora, 23);
    EXPECT_EQ(momento->iSegundo, 59);
    EXPECT_EQ(LeerMomento("2027-12-31")->iMinuto, 0);
    for (const char* malo : {"", "2027-02-29", "2028-13-01", "2028-00-10", "2028-1-1", "2028-02-01T24:00:00",
                             "2028-02-01T12:60:00", "2028-02-01 12:00:00", "2028-02-01T12:00", "0000-01-01",
                             "2028-02-01T12:00:0x", "+028-02-01"})
        EXPECT_FALSE(LeerMomento(malo)) << malo;
    Entorno("EFV_AHORA", "ayer");
    EsperarFallo({"rpc"}, 2, "EFV_AHORA");
    Entorno("EFV_AHORA", nullptr);
}

}  // namespace
}  // namespace efv::orden::pruebas

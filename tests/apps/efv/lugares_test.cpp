// Places at the terminal: municipalities by name, one's own; minimum power by place.
#include <filesystem>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

namespace fs = std::filesystem;

class Lugares : public ::testing::Test {
protected:
    Lugares()
    {
        for (const char* nombre : {"localidades.xml", "municipios.txt"})
            fs::copy_file(fs::path(EFV_CARPETA_PRUEBAS "/../data") / nombre, m_datos.Ruta() / nombre);
    }

    Corrida Con(std::vector<std::string> argumentos) const
    {
        argumentos.insert(argumentos.end(), {"--datos", m_datos.Ruta().string()});
        return Correr(argumentos);
    }
    Json Lista(const std::string& texto) const
    {
        const Corrida corrida = Con({"lugares", texto, "--json"});
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        return corrida.iEstado == 0 ? Json::parse(corrida.salida) : Json::array();
    }

    CarpetaTemporal m_datos;
};

TEST_F(Lugares, MunicipiosEnCualquieraDeSusNombres)
{
    for (const char* nombre : {"ayala", "AIARA", "Ayala/Aiara"}) {
        const Json lista = Lista(nombre);
        ASSERT_EQ(lista.size(), 1U) << nombre;
        EXPECT_EQ(lista[0]["nombre"], "Ayala/Aiara");
        EXPECT_EQ(lista[0]["zona_he1"], "D1");
        EXPECT_EQ(lista[0]["altitud_m"], 306.0);
    }
    EXPECT_EQ(Lista("Moya (Cuenca)").size(), 1U);
    EXPECT_EQ(Lista("vitoria-gasteiz")[0]["zona_he1"], "D1");
    EXPECT_NE(Con({"lugares", "adeje"}).salida.find("la zona legal puede ser otra"), std::string::npos);
    // Without a text, what a page can hold.
    EXPECT_LT(std::ranges::count(Con({"lugares"}).salida, '\n'), 100);
}

TEST_F(Lugares, DosDelMismoNombrePidenLaProvincia)
{
    const Corrida dos = Con({"he5", "--uso", "0", "--superficie", "1", "--lugar", "moya"});
    EXPECT_EQ(dos.iEstado, 1);
    EXPECT_NE(dos.errores.find("hay 2 lugares «moya»: "), std::string::npos) << dos.errores;
    EXPECT_NE(dos.errores.find("Moya (Cuenca)"), std::string::npos) << dos.errores;
    EXPECT_EQ(Con({"he5", "--uso", "0", "--superficie", "1", "--lugar", "moya, cuenca"}).iEstado, 0);
    const Corrida ninguno = Con({"he5", "--uso", "0", "--superficie", "1", "--lugar", "Alcobendaz"});
    EXPECT_EQ(ninguno.iEstado, 1);
    EXPECT_NE(ninguno.errores.find("parecidos: Alcobendas"), std::string::npos) << ninguno.errores;
}

TEST_F(Lugares, CadaLugarDeLaListaSeHallaPorSuNombreYSusAlias)
{
    const Json lista = Json::parse(Con({"lugares", "--json"}).salida);
    ASSERT_EQ(lista.size(), 66U);
    for (const Json& lugar : lista) {
        std::vector<std::string> nombres{lugar["nombre"]};
        for (const Json& alias : lugar["alias"])
            nombres.push_back(alias);
        for (const std::string& nombre : nombres) {
            const Corrida corrida = Con({"inclinacion", "--lugar", nombre, "--json"});
            EXPECT_EQ(corrida.iEstado, 0) << nombre << ": " << corrida.errores;
        }
    }
}

TEST_F(Lugares, LosPropiosSeAnadenYVanDelante)
{
    const std::vector<std::string> orden{"lugares",  "anadir",      "Moya",      "--lat",      "40,25",
                                         "--lon=-3", "--provincia", "A & \"B\"", "--radiacion"};
    auto completa = orden;
    completa.emplace_back("7200,10100,15000,18200,22400,25000,26000,22600,17100,11500,7900,6300");
    const Corrida corrida = Con(completa);
    ASSERT_EQ(corrida.iEstado, 0) << corrida.errores;
    EXPECT_TRUE(corrida.salida.starts_with("Añadido: Moya (A & \"B\"), en "));
    const Json hallado = Json::parse(Con({"inclinacion", "--lugar", "moya", "--json"}).salida);
    EXPECT_EQ(hallado["latitud_grados"], 40.25);
    EXPECT_EQ(Lista("moya").size(), 5U);
    EXPECT_EQ(Con(completa).iEstado, 1);  // the name is taken
    EXPECT_EQ(Con({"lugares", "anadir", "X", "--lat", "91", "--radiacion", "1"}).iEstado, 2);
    EXPECT_EQ(Con({"lugares", "anadir", "X", "--lat", "9"}).iEstado, 2);
    EXPECT_EQ(Con({"lugares", "anadir"}).iEstado, 2);
    // A second place joins the first; a damaged file is left alone.
    completa[2] = "Otra";
    EXPECT_EQ(Con(completa).iEstado, 0);
    EXPECT_EQ(Lista("a & ").size(), 2U);  // by their province
    m_datos.Crear("lugares.xml", "<roto");
    completa[2] = "Tercera";
    EXPECT_EQ(Con(completa).iEstado, 1);
}

// C·(A·S + B) by hand: 1·(0.001875·10000 − 3.13); 1·(0.002·10000 − 5); 2022: min(0.01·10000, 0.1·(400 − 20)).
TEST_F(Lugares, PotenciaMinimaPorLasTresReglas)
{
    const Json uno = Json::parse(Con({"he5", "--zona", "I", "--uso", "hiper", "--superficie", "10000",
                                      "--cubierta", "800", "--captadores", "20", "--json"})
                                     .salida);
    EXPECT_NEAR(uno["por_coeficientes_kW"].get<double>(), 15.62, 1e-12);
    EXPECT_NEAR(uno["por_superficie_kW"].get<double>(), 15.0, 1e-12);
    EXPECT_NEAR(uno["informativo_2022_kW"].get<double>(), 38.0, 1e-12);
    // A second use of no surface still has its B.
    const Json dos = Json::parse(Con({"he5", "--zona", "4", "--uso", "3", "--superficie", "5000", "--uso", "5",
                                      "--superficie", "0", "--json"})
                                     .salida);
    EXPECT_NEAR(dos["por_coeficientes_kW"].get<double>(), 9.7175 + 4.277, 1e-12);
    EXPECT_TRUE(dos["informativo_2022_kW"].is_null());
    const Corrida madrid =
        Con({"he5", "--lugar", "Madrid", "--uso", "0", "--superficie", "900", "--cubierta", "1"});
    EXPECT_NE(madrid.salida.find("Zona climática: III (C = 1,2)"), std::string::npos);
    EXPECT_NE(madrid.salida.find("no pide nada hasta 1000 m²"), std::string::npos);
    for (const std::vector<std::string>& mal :
         std::vector<std::vector<std::string>>{{"he5"},
                                               {"he5", "--zona", "6", "--uso", "0", "--superficie", "1"},
                                               {"he5", "--zona", "1", "--uso", "ho", "--superficie", "1"},
                                               {"he5", "--zona", "1", "--uso", "0"}})
        EXPECT_EQ(Con(mal).iEstado, 2);
    EXPECT_EQ(Con({"he5", "--lugar", "Tokio", "--uso", "0", "--superficie", "1"}).iEstado, 1);
}

}  // namespace
}  // namespace efv::orden::pruebas

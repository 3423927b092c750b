// Several projects in one call.
#include <algorithm>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

TEST(Lote, UnFalloNoDetieneALosDemas)
{
    const CarpetaTemporal carpeta;
    const std::string bueno = (kEjemplos / "cubierta-red.json").string();
    const std::string malo = carpeta.Crear("malo.json", "{\"lugar\": \"Sevila\"}");
    const std::string informes = carpeta.Ruta().string() + "/{}.html";
    const Corrida json = Correr({"red", bueno, malo, bueno, "--json"});
    EXPECT_EQ(json.iEstado, 1);
    EXPECT_TRUE(Contiene(json.errores, {"1 de 3 proyectos", "malo.json", "Sevilla"}));
    const Json lista = Json::parse(json.salida);
    ASSERT_EQ(lista.size(), 3U);
    EXPECT_EQ(lista[0]["valores"], lista[2]["valores"]);
    EXPECT_EQ(lista[1]["proyecto"], malo);
    EXPECT_TRUE(lista[1].contains("error"));

    const Corrida texto = Correr({"red", bueno, malo, "--informe", informes});
    EXPECT_EQ(texto.iEstado, 1);
    EXPECT_TRUE(Contiene(texto.salida, {"── ", "Nº de inversores", "cubierta-red.json  cumple", "ERROR: "}));
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta() / "cubierta-red.html"));
    // One report for several projects would be the last one's.
    EXPECT_EQ(Correr({"red", bueno, bueno, "--informe", carpeta.Ruta().string() + "/x.html"}).iEstado, 2);
}

TEST(Lote, ElCsvEsUnaTablaConElProyectoDelante)
{
    const std::string venta = (kEjemplos / "venta-cubierta.json").string();
    const std::string csv = Correr({"venta", venta, venta, "--csv"}).salida;
    EXPECT_TRUE(csv.starts_with("proyecto;año;energia_kWh;"));
    EXPECT_EQ(std::ranges::count(csv, '\n'), 51);  // a heading and 25 years of each
}

}  // namespace
}  // namespace efv::orden::pruebas

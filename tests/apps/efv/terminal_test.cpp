// What the orders write on a terminal: as wide as it is, coloured, with or without notes.
#include <regex>
#include <set>

#include "apoyo.h"
#include "comun/terminal.h"

namespace efv::orden::pruebas {
namespace {

using Orden = std::vector<std::string>;

// One of each table that the orders write.
std::vector<Orden> OrdenesConTablas()
{
    const auto ejemplo = [](const char* nombre) { return (kEjemplos / nombre).string(); };
    return {{"energia", "--lugar", "Teruel", "--potencia", "500"},
            {"energia", "--lugar", "Teruel", "--inclinacion", "20..30:5", "--potencia", "3;5000"},
            {"lugares"},
            {"lugares", "sevilla"},
            {"inclinacion", "--lugar", "Teruel", "--inclinacion", "20", "--orientacion=-45"},
            {"he5", "--lugar", "Teruel", "--uso", "3", "--superficie", "50000"},
            {"catalogo", "listar", "--tipo", "inversores"},
            {"catalogo", "ver", "ET Solar#ET-M660285WW"},
            {"inversores", "--panel", "ET-M660285WW", "--paneles", "12", "--todos"},
            {"cable", "seccion", "--potencia", "4600", "--tension", "230", "--longitud", "25"},
            {"cable", "seccion", "--potencia", "4600", "--tension", "230", "--longitud", "25", "--material",
             "Cu;Al"},
            {"cable", "tabla", "--metodo", "E"},
            {"tarifa", "--p1", "0,197", "--p2", "0,128", "--p3", "0,093"},
            {"aislada", ejemplo("casa-aislada.json")},
            {"red", ejemplo("cubierta-red.json")},
            {"venta", ejemplo("venta-cubierta.json")},
            {"autoconsumo", ejemplo("casa-autoconsumo.json"), "--barrido", "1..8"}};
}

// Words with a figure in them, thousands together.
std::set<std::string> Cifras(const std::string& texto)
{
    static const std::regex kCifra("[0-9]([0-9,]|\u00A0)*");
    return {std::sregex_token_iterator(texto.begin(), texto.end(), kCifra), std::sregex_token_iterator()};
}

TEST(Terminal, EnSesentaColumnasCabeTodoYNoFaltaNingunaCifra)
{
    for (const Orden& orden : OrdenesConTablas()) {
        const Corrida ancha = Correr(orden), estrecha = Correr(orden, {.nAnchura = 60, .bMiles = true});
        ASSERT_EQ(ancha.iEstado, 0) << orden[0] << ": " << ancha.errores;
        std::istringstream lineas(estrecha.salida);
        for (std::string linea; std::getline(lineas, linea);)
            EXPECT_LE(report::Anchura(linea), 60U) << orden[0] << ": " << linea;
        const std::set<std::string> cifras = Cifras(estrecha.salida);
        for (const std::string& cifra : Cifras(ancha.salida))
            EXPECT_TRUE(cifras.contains(cifra)) << orden[0] << ": " << cifra;
    }
}

TEST(Terminal, LoQueFallaVaEnRojoSoloEnUnTerminal)
{
    const Orden corto = {"cable", "caida",     "--seccion", "1,5",        "--corriente",
                         "20",    "--tension", "230",       "--longitud", "90"};
    const std::string rojo = std::string(report::kColorRojo) + "NO CUMPLE";
    EXPECT_TRUE(Contiene(Correr(corto, {.bColor = true}).salida, {rojo, report::kColorPropio}));
    EXPECT_EQ(Correr(corto).salida.find('\x1B'), std::string::npos);
    // A catalogue's own marks are none.
    const CarpetaTemporal carpeta;
    const std::string fichero = carpeta.Crear("c.xml",
                                              "<Q><TablaFamilias><Familia nombre='F'><Modelo "
                                              "csModelo='M\xC2\x9B[31m'/></Familia></TablaFamilias></Q>");
    const Orden listar = {"catalogo", "listar", "--tipo", "receptores", "--fichero", fichero};
    EXPECT_EQ(Correr(listar, {.bColor = true}).salida.find('\x1B'), std::string::npos);
}

TEST(Terminal, CalladoEscribeSoloElResultado)
{
    const std::string proyecto = (kEjemplos / "cubierta-red.json").string();
    const Corrida todo = Correr({"red", proyecto}), callado = Correr({"red", proyecto, "--callado"});
    EXPECT_TRUE(Contiene(todo.salida, {"Supuestos", "Avisos", "Nº de inversores"}));
    EXPECT_TRUE(Contiene(callado.salida, {"Nº de inversores", "Producida (kWh)"}));
    EXPECT_EQ(callado.salida.find("Supuestos"), std::string::npos);
    EXPECT_EQ(callado.salida, Correr({"--callado", "red", proyecto}).salida);
    const Corrida mal = Correr({"--callado", "red", "no_esta.json"});
    EXPECT_TRUE(mal.iEstado == 1 && !mal.errores.empty());
}

TEST(Terminal, LosMilesSePartenEnLasTablasYNoEnLosDatos)
{
    const Orden energia = {"energia", "--lugar", "Teruel", "--potencia", "500"};
    const auto con = [&](const char* opcion) {
        Orden orden = energia;
        orden.emplace_back(opcion);
        return Correr(orden).salida;
    };
    // January's radiation of the place and June's: four digits stay together.
    EXPECT_TRUE(Contiene(Correr(energia).salida, {" 6279 ", " 23\u00A0303 "}));
    EXPECT_TRUE(Contiene(con("--csv"), {";23302,8;"}));
    EXPECT_EQ(con("--json").find("\u00A0"), std::string::npos);
}

}  // namespace
}  // namespace efv::orden::pruebas

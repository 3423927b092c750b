#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "apoyo.h"
#include "comun/salidas.h"

namespace efv::orden::pruebas {
namespace {

namespace fs = std::filesystem;

std::string Modelo(const std::string& nombre, const std::string& voc = "50")
{
    return "<Modelo csModelo=\"" + nombre +
           "\" dPmpm=\"360\" dVsmax=\"1000\" dVmpm=\"40\" dImpm=\"9\" dVoc=\"" + voc +
           "\" dIsc=\"10\" dCTVoc=\"-150\" dCTIsc=\"5\" dCTPmpm=\"-1000\" dCEf=\"3.25\" iNp=\"1\" iNs=\"72\" "
           "dAcel=\"24340\" iTipoCelula=\"0\" dH=\"1956\" dB=\"992\" dA=\"40\" dP=\"21.4\" nColor=\"0\" "
           "csCodPrecio=\"\"/>";
}

std::string Catalogo(const std::string& otros = "")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QuorvelEFV><TablaFamilias><Familia nombre=\"Énergy\">" +
           Modelo("AB-360/x") + Modelo("Doble") + "</Familia><Familia nombre=\"Otra\">" + Modelo("Doble") +
           Modelo("DOBLE") + otros + "</Familia></TablaFamilias></QuorvelEFV>";
}

std::string Pan(const std::string& fabricante, const std::string& modelo, const std::string& voc = "49.5")
{
    return "PVObject_=pvModule\r\n  Manufacturer=" + fabricante + "\r\n  Model=" + modelo +
           "\r\n  Width=0.994\r\n  Height=1.956\r\n  Depth=0.04\r\n  Weight=23.5\r\n  Technol=mtSiMono\r\n"
           "  NCelS=72\r\n  NCelP=2\r\n  PNom=300\r\n  Isc=9\r\n  Voc=" +
           voc +
           "\r\n  Imp=8\r\n  Vmp=37.5\r\n  muISC=4\r\n  muVocSpec=-140\r\n  muPmpReq=-0.4\r\n"
           "  VMaxIEC=1500\r\nEnd of PVObject pvModule\r\n";
}

class OrdenCatalogo : public ::testing::Test {
protected:
    void SetUp() override { m_catalogo = m_carpeta.Crear("c.xml", Catalogo()); }

    std::string Contenido() const
    {
        std::ifstream fichero(m_catalogo, std::ios::binary);
        return {std::istreambuf_iterator<char>(fichero), {}};
    }
    // Runs with the catalogue of the test.
    Corrida Orden(std::vector<std::string> argumentos) const
    {
        argumentos.insert(argumentos.end(), {"--fichero", m_catalogo});
        return Correr(argumentos);
    }
    Json OrdenJson(std::vector<std::string> argumentos) const
    {
        argumentos.emplace_back("--json");
        const Corrida corrida = Orden(std::move(argumentos));
        EXPECT_EQ(corrida.errores, "");
        return Json::parse(corrida.salida);
    }
    std::vector<std::string> Ids(const std::vector<std::string>& argumentos) const
    {
        std::vector<std::string> ids;
        for (const Json& ficha : OrdenJson(argumentos))
            ids.push_back(ficha["id"]);
        return ids;
    }
    // A failure says why in one line, writes nothing else and leaves the catalogue alone.
    void EsperarFallo(const std::vector<std::string>& argumentos, int iEstado, const char* fragmento) const
    {
        const std::string antes = Contenido();
        const Corrida corrida = Orden(argumentos);
        EXPECT_EQ(corrida.iEstado, iEstado) << corrida.errores;
        EXPECT_EQ(corrida.salida, "");
        EXPECT_EQ(corrida.errores.find('\n'), corrida.errores.size() - 1) << corrida.errores;
        EXPECT_NE(corrida.errores.find(fragmento), std::string::npos) << corrida.errores;
        EXPECT_EQ(Contenido(), antes);
    }

    CarpetaTemporal m_carpeta;
    std::string m_catalogo;
};

using Textos = std::vector<std::string>;

TEST_F(OrdenCatalogo, SeListaYSeBuscaSinAcentosNiMayusculas)
{
    EXPECT_EQ(Ids({"catalogo", "listar"}),
              (Textos{"Énergy#AB-360/x", "Énergy#Doble", "Otra#Doble", "Otra#DOBLE"}));
    EXPECT_EQ(Ids({"catalogo", "listar", "--familia", "ENERGY"}), (Textos{"Énergy#AB-360/x", "Énergy#Doble"}));
    EXPECT_EQ(Ids({"catalogo", "buscar", "b-360/X"}), (Textos{"Énergy#AB-360/x"}));
    EXPECT_EQ(Ids({"catalogo", "buscar", "NERG"}), (Textos{"Énergy#AB-360/x", "Énergy#Doble"}));
    const std::string tabla = Orden({"catalogo", "listar", "--familia", "otra"}).salida;
    EXPECT_NE(tabla.find("360,00"), std::string::npos) << tabla;
    EXPECT_NE(tabla.find("monocristalino"), std::string::npos) << tabla;
    EXPECT_NE(tabla.find("2 modelos de 1 familia\n"), std::string::npos) << tabla;
    EsperarFallo({"catalogo", "listar", "--familia", "energi"}, 1, "Énergy");
    EsperarFallo({"catalogo", "buscar", "nada"}, 1, "«nada»");
}

TEST_F(OrdenCatalogo, UnModeloSeNombraEnteroOSolo)
{
    const auto id = [&](const std::string& nombre) { return OrdenJson({"catalogo", "ver", nombre})["id"]; };
    EXPECT_EQ(id("Otra#Doble"), "Otra#Doble");
    EXPECT_EQ(id("ab-360/X"), "Énergy#AB-360/x");
    // The very name goes before one that differs in case.
    EXPECT_EQ(id("DOBLE"), "Otra#DOBLE");
    EsperarFallo({"catalogo", "ver", "Doble"}, 1, "Énergy#Doble, Otra#Doble");
    EsperarFallo({"catalogo", "ver", "Otra#AB-360/x"}, 1, "parecidos: Énergy#AB-360/x");
    const std::string ficha = Orden({"catalogo", "ver", "AB-360/x"}).salida;
    for (const char* fragmento :
         {"Familia", "Énergy\n", "-0,300 %/ºC\n", "3,25\n", "24340,00\n", "Peso (kg)", "monocristalino\n"})
        EXPECT_NE(ficha.find(fragmento), std::string::npos) << fragmento << ficha;
}

TEST_F(OrdenCatalogo, ValidarTerminaConUnoSiHayHallazgos)
{
    EXPECT_EQ(Orden({"catalogo", "validar"}).salida, "4 modelos, sin hallazgos\n");
    EXPECT_EQ(Orden({"catalogo", "validar"}).iEstado, 0);
    m_carpeta.Crear("c.xml", Catalogo(Modelo("Mala", "0")));
    const Corrida corrida = Orden({"catalogo", "validar"});
    EXPECT_EQ(corrida.iEstado, 1);
    EXPECT_TRUE(corrida.salida.starts_with("Otra#Mala: ")) << corrida.salida;
    EXPECT_EQ(std::ranges::count(corrida.salida, '\n'), 1);
    const Json json = OrdenJson({"catalogo", "validar"});
    EXPECT_EQ(json["modelos"], 5);
    EXPECT_EQ(json["hallazgos"].size(), 1U);
}

// The second model lacks four attributes, which have the values of the one before, and doesn't know two.
TEST_F(OrdenCatalogo, LoQueUnModeloNoTieneSeDice)
{
    m_carpeta.Crear("c.xml", "<Q><TablaFamilias><Familia nombre=\"A\">" + Modelo("uno") +
                                 "<Modelo csModelo=\"dos\" dPmpm=\"400\" dVsmax=\"1500\" dVmpm=\"41\" "
                                 "dImpm=\"9.8\" dVoc=\"51\" dCTVoc=\"0\" dCTIsc=\"4\" dCEf=\"3\" iNp=\"1\" "
                                 "iNs=\"72\" dAcel=\"0\" dH=\"1956\" dB=\"992\" dA=\"40\" dP=\"22\" "
                                 "nColor=\"0\" csCodPrecio=\"\"/></Familia></TablaFamilias></Q>");
    const Corrida validar = Orden({"catalogo", "validar"});
    EXPECT_EQ(validar.iEstado, 1);
    EXPECT_EQ(validar.salida,
              "falta dIsc en 1 modelo: A#dos\nfalta dCTPmpm en 1 modelo: A#dos\nfalta iTipoCelula en 1 modelo: "
              "A#dos\n");
    const Json faltas = OrdenJson({"catalogo", "validar"})["ausentes"];
    ASSERT_EQ(faltas.size(), 3U);
    EXPECT_EQ(faltas[1], (Json{{"atributo", "dCTPmpm"}, {"familia", "A"}, {"modelo", "dos"}}));

    EXPECT_TRUE(Contiene(Orden({"catalogo", "ver", "dos"}).salida,
                         {"— (en vigor 10,00, heredado de A#uno)\n", "(mm²)     — (sin dato)\n",
                          "(mV/ºC)        — (sin dato)\n", "— (en vigor -0,250 %/ºC, heredado de A#uno)\n"}));
    const Json ficha = OrdenJson({"catalogo", "ver", "dos"});
    EXPECT_EQ(ficha["dIsc"], nullptr);
    EXPECT_EQ(ficha["en_vigor"]["dIsc"], (Json{{"valor", 10.0}, {"heredado_de", "A#uno"}}));
    EXPECT_EQ(ficha["sin_dato"], (Json{"dCTVoc", "dAcel"}));
    const std::string lista = Orden({"catalogo", "listar"}).salida;
    EXPECT_TRUE(Contiene(lista, {"A#uno     360,00     40,00      9,00  monocristalino\n",
                                 "A#dos     400,00     41,00      9,80  —\n"}));
    // Many of one kind are counted.
    std::string muchos;
    for (char c = 'a'; c <= 'g'; ++c)
        muchos += std::string("<Modelo csModelo=\"") + c + "\" dPmpm=\"1\"/>";
    m_carpeta.Crear("c.xml",
                    "<Q><TablaFamilias><Familia nombre=\"A\">" + muchos + "</Familia></TablaFamilias></Q>");
    EXPECT_TRUE(Contiene(Orden({"catalogo", "validar"}).salida,
                         {"falta dVoc en 7 modelos: A#a, A#b, A#c, A#d, A#e, … y 2 más\n"}));
    EXPECT_EQ(OrdenJson({"catalogo", "ver", "a"})["en_vigor"]["dVoc"],
              (Json{{"valor", 0.0}, {"heredado_de", nullptr}}));
}

TEST_F(OrdenCatalogo, UnPanSeAnadeALaFamiliaDeSuFabricante)
{
    const Corrida corrida = Orden({"catalogo", "importar-pan", m_carpeta.Crear("a.pan", Pan("Otra", "Nueva"))});
    EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
    EXPECT_NE(corrida.salida.find("Otra#Nueva\n  aviso: falta VMaxUL"), std::string::npos) << corrida.salida;
    const Json ficha = OrdenJson({"catalogo", "ver", "Otra#Nueva"});
    EXPECT_DOUBLE_EQ(ficha["dB"], 994);
    EXPECT_DOUBLE_EQ(ficha["dVsmax"], 1500);
    EXPECT_DOUBLE_EQ(ficha["dCTPmpm"], -1200);  // -0.4 % of 300 W
    EXPECT_EQ(ficha["iNp"], 2);
    EXPECT_EQ(Ids({"catalogo", "listar"}).size(), 5U);
}

TEST_F(OrdenCatalogo, VariosPanSeAnadenTodosONinguno)
{
    const std::string a = m_carpeta.Crear("a.pan", Pan("Una", "A"));
    const std::string b = m_carpeta.Crear("b.pan", Pan("Dos", "B"));
    const std::string mala = m_carpeta.Crear("mala.pan", Pan("Una", "Mala", "0"));
    EsperarFallo({"catalogo", "importar-pan", a, a}, 1, "ya tiene el modelo A");
    EsperarFallo({"catalogo", "importar-pan", a, m_carpeta.Ruta().string() + "/no.pan"}, 1, "no.pan");
    EsperarFallo({"catalogo", "importar-pan", a, m_carpeta.Crear("no_es.pan", "texto\n")}, 1, "no_es.pan");
    EsperarFallo({"catalogo", "importar-pan", a, "--familia", "x#y"}, 1, "#");
    EsperarFallo({"catalogo", "importar-pan", m_carpeta.Crear("sin.pan", Pan("", "A"))}, 1, "--familia");

    const std::string antes = Contenido();
    const Corrida corrida = Orden({"catalogo", "importar-pan", a, mala});
    EXPECT_EQ(corrida.iEstado, 1);
    EXPECT_NE(corrida.salida.find("Una#Mala: "), std::string::npos) << corrida.salida;
    EXPECT_EQ(Contenido(), antes);

    EXPECT_EQ(OrdenJson({"catalogo", "importar-pan", a, b, "--familia", "Ñ & Cía"})["añadidos"], 2);
    EXPECT_EQ(Ids({"catalogo", "listar", "--familia", "Ñ & Cía"}), (Textos{"Ñ & Cía#A", "Ñ & Cía#B"}));
    // Each to its maker; a name that stands elsewhere is told. A catalogue that is missing is made.
    const Corrida porMarcas = Orden({"catalogo", "importar-pan", a, b});
    EXPECT_EQ(porMarcas.iEstado, 0) << porMarcas.errores;
    EXPECT_NE(porMarcas.salida.find("está también en la familia Ñ & Cía"), std::string::npos)
        << porMarcas.salida;
    EXPECT_EQ(Ids({"catalogo", "listar", "--familia", "Dos"}), (Textos{"Dos#B"}));
    const std::string nuevo = m_carpeta.Ruta().string() + "/nuevo.xml";
    EXPECT_EQ(Correr({"catalogo", "importar-pan", a, "--fichero", nuevo}).iEstado, 0);
    EXPECT_EQ(Correr({"catalogo", "ver", "Una#A", "--fichero", nuevo}).iEstado, 0);
}

// What a file is stands in it: nothing of one kind goes to a catalogue of another.
TEST_F(OrdenCatalogo, CadaFicheroEsDeSuClase)
{
    const std::string pan = m_carpeta.Crear("a.pan", Pan("Una", "A"));
    const std::string ond = m_carpeta.Crear("a.ond", "PVObject_=pvGInverter\n Manufacturer=Una\n Model=A\n");
    EsperarFallo({"catalogo", "importar-pan", ond}, 1, "es de un inversor (OND)");
    EsperarFallo({"catalogo", "importar-ond", pan}, 1, "es de un módulo (PAN)");
    EsperarFallo({"catalogo", "listar", "--tipo", "inversores"}, 1, "es un catálogo de módulos");
    const std::string inversores = m_carpeta.Crear(
        "i.xml",
        "<QuorvelEFV><TablaFamilias><Familia nombre=\"F\"><Modelo csModelo=\"I\" iUsoPrincipal=\"0\" "
        "dPCCMax=\"5000\" dVMPPMax=\"500\" iNumMPPT=\"1\"/></Familia></TablaFamilias></QuorvelEFV>");
    const Corrida corrida = Correr({"catalogo", "importar-pan", pan, "--fichero", inversores});
    EXPECT_EQ(corrida.iEstado, 1);
    EXPECT_NE(corrida.errores.find("es un catálogo de inversores"), std::string::npos) << corrida.errores;
    EXPECT_EQ(Correr({"catalogo", "listar", "--tipo", "inversores", "--fichero", inversores}).iEstado, 0);
}

// What the file leaves open is taken from elsewhere and told, a line each.
TEST_F(OrdenCatalogo, LoQueUnPanNoDiceSeTomaYSeDice)
{
    const auto importar = [&](const char* modelo, const std::string& resto) {
        const std::string pan =
            "PVObject_=pvModule\n Manufacturer=M\n Width=1\n Height=1.7\n Technol=mtSiPoly\n NCelS=60\n "
            "PNom=285\n"
            " Isc=9.46\n Voc=39.18\n Imp=8.95\n Vmp=31.85\n muISC=4.5\n muVocSpec=0\n muPmpReq=-0.4\n"
            " VMaxIEC=1000\n CellArea=243.3\n RelEffic200=-3.2\n Model=" +
            std::string(modelo) + "\n" + resto;
        const Corrida corrida = Orden({"catalogo", "importar-pan", m_carpeta.Crear("x.pan", pan)});
        EXPECT_EQ(corrida.iEstado, 0) << corrida.salida << corrida.errores;
        for (const char* dicho :
             {"VMaxUL: se toma VMaxIEC = 1000", "NCelP: se toma 1", "Depth: se toma un canto"})
            EXPECT_NE(corrida.salida.find(dicho), std::string::npos) << dicho << corrida.salida;
        return OrdenJson({"catalogo", "ver", std::string("M#") + modelo});
    };
    const Json tipico = importar("T", "");
    EXPECT_NEAR(tipico["dCTVoc"].get<double>(), -39.18 * 0.31 * 10, 1e-3);
    EXPECT_NEAR(tipico["dAcel"].get<double>(), 24330, 1e-6);
    EXPECT_NEAR(tipico["dCEf"].get<double>(), 3.2, 1e-6);
    // Independent solution of the single-diode model by Newton's method at 24 and 26 ºC.
    const Json diodo = importar("D", " RSerie=0.25\n RShunt=400\n Gamma=1.05\n muGamma=-0.0004\n");
    EXPECT_NEAR(diodo["dCTVoc"].get<double>(), -124.360729, 1e-2);
}

TEST_F(OrdenCatalogo, LosValoresTipicosSonLosDeLaFicha)
{
    const Json valores = OrdenJson({"curvas", "Otra#Doble"})["valores"];
    // 200 W/m²: a fifth of the currents and the power, Voc less 5.8 %.
    const Json& debil = valores["temperatura_constante"][4];
    EXPECT_NEAR(debil["isc_A"].get<double>(), 2, 1e-9);
    EXPECT_NEAR(debil["voc_V"].get<double>(), 47.1, 1e-9);
    EXPECT_NEAR(debil["vmp_V"].get<double>(), 40, 1e-9);
    EXPECT_NEAR(debil["pmp_W"].get<double>(), 72, 1e-9);
    // 75 ºC is 50 more: +0.25 A, -7.5 V, -50 W.
    const Json& caliente = valores["irradiacion_constante"][3];
    EXPECT_EQ(caliente["temperatura_C"], 75);
    EXPECT_NEAR(caliente["isc_A"].get<double>(), 10.25, 1e-9);
    EXPECT_NEAR(caliente["voc_V"].get<double>(), 42.5, 1e-9);
    EXPECT_NEAR(caliente["vmp_V"].get<double>(), 310.0 / 9, 1e-9);
}

TEST_F(OrdenCatalogo, CadaCurvaLlevaSuCondicion)
{
    const Json curvas = OrdenJson({"curvas", "Otra#Doble"})["curvas"];
    // Each ends at its open-circuit voltage, of which a point more or less is a hundredth.
    const auto comprobar = [&](const char* familia, const char* nivel, std::map<int, double> adVoc) {
        ASSERT_EQ(curvas[familia].size(), adVoc.size());
        for (const Json& curva : curvas[familia]) {
            const double dVoc = adVoc.at(curva[nivel].get<int>());
            EXPECT_NEAR(curva["tension_V"].back().get<double>(), dVoc, 0.011 * dVoc) << curva[nivel];
            EXPECT_EQ(curva["tension_V"].size(), curva["potencia_W"].size());
        }
    };
    comprobar("irradiacion_constante", "temperatura_C", {{0, 53.75}, {25, 50}, {50, 46.25}, {75, 42.5}});
    comprobar("temperatura_constante", "irradiancia_W_m2",
              {{1000, 50}, {800, 49.275}, {600, 48.55}, {400, 47.825}, {200, 47.1}});
    for (const Json& curva : curvas["temperatura_constante"])
        EXPECT_NEAR(curva["corriente_A"][0].get<double>(), curva["irradiancia_W_m2"].get<double>() / 100, 1e-3);
}

TEST_F(OrdenCatalogo, LasGraficasSeEscribenEnteras)
{
    const std::string base = m_carpeta.Ruta().string() + "/nueva/graficas";
    const auto nombres = [&] {
        std::set<std::string> hallados;
        for (const auto& entrada : fs::directory_iterator(base))
            hallados.insert(entrada.path().filename().string());
        return hallados;
    };
    const std::set<std::string> cuatro = {
        "_nergy_AB-360_x_T_constante_IV.svg", "_nergy_AB-360_x_T_constante_PI.svg",
        "_nergy_AB-360_x_G_constante_IV.svg", "_nergy_AB-360_x_G_constante_PI.svg"};
    OrdenJson({"curvas", "AB-360/x"});
    EXPECT_FALSE(fs::exists(base));
    EsperarFallo({"curvas", "AB-360/x", "--salida", base}, 1, "no existe");
    fs::create_directories(base);
    const Corrida corrida = Orden({"curvas", "AB-360/x", "--salida", base});
    EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
    EXPECT_EQ(nombres(), cuatro);
    for (const std::string& nombre : cuatro) {
        EXPECT_NE(corrida.salida.find(base + "/" + nombre), std::string::npos) << corrida.salida;
        std::string inicio;
        std::getline(std::ifstream(fs::path(base) / nombre), inicio);
        EXPECT_TRUE(inicio.starts_with("<")) << nombre;
    }
    // One that exists is replaced; what can't be replaced leaves nothing provisional behind.
    std::ofstream(fs::path(base) / *cuatro.begin()) << "viejo";
    EXPECT_EQ(OrdenJson({"curvas", "AB-360/x", "--salida", base})["ficheros"].size(), 4U);
    EXPECT_GT(fs::file_size(fs::path(base) / *cuatro.begin()), 1000U);
    fs::remove(fs::path(base) / *cuatro.begin());
    fs::create_directory(fs::path(base) / *cuatro.begin());
    EsperarFallo({"curvas", "AB-360/x", "--salida", base}, 1, cuatro.begin()->c_str());
    EXPECT_EQ(nombres(), cuatro);
    EsperarFallo({"curvas", "AB-360/x", "--salida", m_catalogo}, 1, "carpeta");
}

TEST(NombreDeFichero, NoSaleDeSuCarpeta)
{
    EXPECT_EQ(NombreDeFichero(L"../../a b:ñ"), "_.._.._a_b__");
    EXPECT_EQ(NombreDeFichero(L"-rf"), "_-rf");
    EXPECT_EQ(NombreDeFichero(L""), "_");
    EXPECT_LE(NombreDeFichero(std::wstring(1000, L'x')).size(), 200U);
}

TEST_F(OrdenCatalogo, UnaLlamadaMalHechaDiceQueYTerminaConDos)
{
    EXPECT_EQ(Correr({"catalogo"}).iEstado, 2);
    EXPECT_EQ(Correr({"catalogo", "nada"}).iEstado, 2);
    EsperarFallo({"catalogo", "buscar"}, 2, "texto");
    EsperarFallo({"catalogo", "ver"}, 2, "modelo");
    EsperarFallo({"catalogo", "ver", "Doble", "sobra"}, 2, "sobra");
    EsperarFallo({"catalogo", "importar-pan"}, 2, "PAN");
    EsperarFallo({"catalogo", "importar-pan", "a.pan", "--familia", ""}, 2, "--familia");
    EsperarFallo({"curvas"}, 2, "modelo");
    EsperarFallo({"curvas", "Otra#Doble", "--salida", ""}, 2, "--salida");
}

TEST_F(OrdenCatalogo, UnCatalogoQueNoSirveTerminaConUno)
{
    for (const char* orden : {"listar", "validar"}) {
        m_carpeta.Crear("c.xml", "<roto");
        EsperarFallo({"catalogo", orden}, 1, "XML");
        m_carpeta.Crear("c.xml", "<otro/>");
        EsperarFallo({"catalogo", orden}, 1, "ningún modelo");
    }
    EXPECT_EQ(Correr({"catalogo", "listar", "--fichero", m_carpeta.Ruta().string() + "/no.xml"}).iEstado, 1);
    // The shipped one has no findings.
    const Corrida corrida = Correr({"catalogo", "validar"});
    EXPECT_EQ(corrida.iEstado, 0) << corrida.salida << corrida.errores;
}

TEST(AyudaCatalogo, EstaTodaEnEspanol)
{
    const std::vector<Textos> ordenes = {{"catalogo"},
                                         {"catalogo", "listar"},
                                         {"catalogo", "buscar"},
                                         {"catalogo", "ver"},
                                         {"catalogo", "validar"},
                                         {"catalogo", "importar-pan"},
                                         {"catalogo", "importar-ond"},
                                         {"catalogo", "importar-cec"},
                                         {"catalogo", "exportar"},
                                         {"curvas"}};
    for (Textos argumentos : ordenes) {
        argumentos.emplace_back("--help");
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.iEstado, 0);
        for (const char* palabra : {"Usage", "ptions", "OPTIONS", "ubcommand", "SUBCOMMAND", "Positional",
                                    "TEXT ", "REQUIRED", "Print", "Excludes"})
            EXPECT_EQ(corrida.salida.find(palabra), std::string::npos) << corrida.salida;
    }
}

}  // namespace
}  // namespace efv::orden::pruebas

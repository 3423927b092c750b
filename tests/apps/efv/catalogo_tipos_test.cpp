// The catalogues of every kind through the command: data sheets, imports, CSV.
#include <algorithm>
#include <iostream>
#include <iterator>
#include <map>

#include <quorvel/tipos_catalogo.h>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

namespace fs = std::filesystem;
using Textos = std::vector<std::string>;

const Textos kTipos = {"modulos",         "acumuladores",  "inversores",
                       "microinversores", "convertidores", "receptores"};

std::string Leer(const std::string& ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

std::string Catalogo(const std::string& modelos)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Q><TablaFamilias><Familia nombre=\"F\">" + modelos +
           "</Familia></TablaFamilias></Q>";
}

class TiposDeCatalogo : public ::testing::Test {
protected:
    std::string Escribir(const std::string& modelos) { return m_carpeta.Crear("c.xml", Catalogo(modelos)); }
    // The data sheet as caption to text.
    static std::map<std::string, std::string> Ficha(const Textos& argumentos)
    {
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.errores, "");
        std::map<std::string, std::string> ficha;
        std::istringstream lineas(corrida.salida);
        for (std::string linea; std::getline(lineas, linea);) {
            const std::size_t hueco = linea.find("  ");
            const std::size_t texto = hueco == std::string::npos ? hueco : linea.find_first_not_of(' ', hueco);
            ficha[linea.substr(0, hueco)] = texto == std::string::npos ? "" : linea.substr(texto);
        }
        return ficha;
    }
    static Json EnJson(Textos argumentos)
    {
        argumentos.emplace_back("--json");
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.errores, "");
        return Json::parse(corrida.salida);
    }
    static void EsperarFallo(const Textos& argumentos, int iEstado, const char* fragmento)
    {
        const Corrida corrida = Correr(argumentos);
        EXPECT_EQ(corrida.iEstado, iEstado) << corrida.errores;
        EXPECT_EQ(corrida.salida, "");
        EXPECT_NE(corrida.errores.find(fragmento), std::string::npos) << corrida.errores;
    }

    CarpetaTemporal m_carpeta;
};

TEST_F(TiposDeCatalogo, LosSeisInstaladosSeListanSeVenYNoTienenHallazgos)
{
    for (const std::string& tipo : kTipos) {
        SCOPED_TRACE(tipo);
        EXPECT_EQ(Correr({"catalogo", "validar", "--tipo", tipo}).iEstado, 0);
        const Json lista = EnJson({"catalogo", "listar", "--tipo", tipo});
        ASSERT_GT(lista.size(), 1U);
        for (const Json& ficha : lista) {
            const Textos ver = {"catalogo", "ver", ficha["id"], "--tipo", tipo};
            EXPECT_EQ(EnJson(ver), ficha);
            auto visible = Ficha(ver);
            EXPECT_EQ(visible["Familia"], ficha["csFamilia"]);
            EXPECT_EQ(visible["Modelo"], ficha["csModelo"]);
        }
    }
}

TEST_F(TiposDeCatalogo, LaFichaEsLoQueElDialogoMuestra)
{
    const std::string red =
        "<Modelo csModelo=\"R\" iUsoPrincipal=\"0\" dPCCMax=\"5000\" dVMPPMax=\"800\" dVMPPMin=\"430.375\" "
        "dVCCMax=\"1000\" iNumMPPT=\"2\" iNumEntradas=\"4\" dICCMax=\"12.5\" iTipoSalida=\"1\" dFP=\"1\" "
        "dRendMax=\"98\"/>";
    const std::string aislada = "<Modelo csModelo=\"A\" iUsoPrincipal=\"1\" dPCCMax=\"20\" dVMPPMax=\"33\"/>";
    const std::string fichero = Escribir(red + aislada);
    const Textos ver = {"catalogo", "ver", "R", "--tipo", "inversores", "--fichero", fichero};
    auto ficha = Ficha(ver);
    EXPECT_EQ(ficha["Rango de tensiones MPPT (V) [máx - mín]"], "800,00 / 430,38");
    EXPECT_EQ(ficha["Nº de inversores MPPT y entradas (total)"], "2 / 4");
    EXPECT_EQ(ficha["Corriente máxima por MPPT (A)"], "12,50/12,50");
    EXPECT_EQ(ficha["Factor de potencia"], "1,00 / Trifase");
    EXPECT_EQ(ficha["Uso principal"], "Conexión a red");
    EXPECT_FALSE(ficha.contains("Fabricante"));
    EXPECT_EQ(EnJson(ver)["dVMPPMin"], 430.375);
    EXPECT_EQ(EnJson(ver)["iTipoSalida"], 1);

    ficha = Ficha({"catalogo", "ver", "A", "--tipo", "inversores", "--fichero", fichero});
    EXPECT_EQ(ficha["Potencia de autoconsumo (W)"], "20,00");
    EXPECT_FALSE(ficha.contains("Factor de potencia"));
    const std::string lista =
        Correr({"catalogo", "listar", "--tipo", "inversores", "--fichero", fichero}).salida;
    EXPECT_NE(lista.find("Instalación aislada"), std::string::npos) << lista;
    EXPECT_NE(lista.find("Trifase"), std::string::npos) << lista;
}

TEST_F(TiposDeCatalogo, LaFichaTieneFilasDeRegimenesYCasillas)
{
    const std::string bateria =
        Escribir("<Modelo csModelo=\"B\" iTipo=\"0\" dCapC10=\"100\" dVccC10=\"10.8\"/>");
    auto ficha = Ficha({"catalogo", "ver", "B", "--tipo", "acumuladores", "--fichero", bateria});
    EXPECT_EQ(ficha["C10"], "Cap. (Ah) 100,00 / Voltaje (V) 10,80");
    EXPECT_TRUE(ficha.contains("C120"));
    const std::string receptor = Escribir("<Modelo csModelo=\"L\" bIlum=\"1\" iTipoRed=\"7\"/>");
    ficha = Ficha({"catalogo", "ver", "L", "--tipo", "receptores", "--fichero", receptor});
    EXPECT_EQ(ficha["Receptor con caracter de luminaria"], "Sí");
    EXPECT_EQ(ficha["Tipo de red"], "—");
}

TEST_F(TiposDeCatalogo, UnTipoQueNoHayEsMalUso)
{
    EsperarFallo({"catalogo", "listar", "--tipo", "cables"}, 2, "modulos, acumuladores");
    EsperarFallo({"catalogo", "importar-ond", "a.ond", "--tipo", "modulos"}, 2, "inversores o microinversores");
    EsperarFallo({"catalogo", "importar-pan", "a.pan", "--tipo", "inversores"}, 2, "--tipo");
    EsperarFallo({"catalogo", "ver", "SUN2000-40KT", "--tipo", "inversores"}, 1, "SUN2000-40KTL-US");
    EsperarFallo({"catalogo", "ver", "nada de nada", "--tipo", "inversores"}, 1, "listar --tipo inversores");
}

std::string Ond(const std::string& modelo)
{
    return "Manufacturer=F\nModel=" + modelo +
           "\nPNomConv=20\nPMaxOUT=20\nVAbsMax=1000\nIMaxDC=50\nEfficMax=98\nNbMPPT=2\nNbInputs=4\nMonoTri="
           "Tri\n";
}

TEST_F(TiposDeCatalogo, UnOndSeAnadeCorregidoOComoElDialogo)
{
    const std::string fichero = Escribir("");
    const std::string a = m_carpeta.Crear("a.ond", Ond("A"));
    const Corrida corrida = Correr({"catalogo", "importar-ond", a, "--fichero", fichero});
    EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
    EXPECT_NE(corrida.salida.find("F#A\n  aviso: "), std::string::npos) << corrida.salida;
    EXPECT_NE(corrida.salida.find("1 modelo añadido"), std::string::npos) << corrida.salida;
    EXPECT_EQ(EnJson({"catalogo", "ver", "A", "--tipo", "inversores", "--fichero", fichero})["dPCANom"], 20000);

    // Without "EfficEuro" the dialog takes a power factor of 0, which it then refuses.
    const std::string antes = Leer(fichero);
    const std::string b = m_carpeta.Crear("b.ond", Ond("B"));
    const Textos comoDialogo = {"catalogo", "importar-ond", b, "--como-dialogo", "--fichero", fichero};
    const Corrida mala = Correr(comoDialogo);
    EXPECT_EQ(mala.iEstado, 1);
    EXPECT_NE(mala.salida.find("F#B: Factor de potencia: "), std::string::npos) << mala.salida;
    EXPECT_EQ(Leer(fichero), antes);
    m_carpeta.Crear("b.ond", Ond("B") + "EfficEuro=97\n");
    EXPECT_EQ(EnJson(comoDialogo)["modelos"][0]["ficha"]["sin_dato"][0], "dPCCMax");  // that of "PNomDC"
    EsperarFallo({"catalogo", "importar-ond", "--fichero", fichero}, 2, "OND");
}

constexpr const char* kCec =
    "Name,Vac,Pso,Paco,Pdco,C0,Vdcmax,Idcmax,Mppt_low,Mppt_high\nUnits,V,W,W,W,1/W,V,A,V,V\n"
    "Uno: A,240,20,5000,5200,0,600,13,200,500\nDos: B,480,20,5000,5200,0,600,13,200,500\n"
    "Uno: C,240,20,5000,5200,0,600,13,200,500\nUno: D,nada,20,5000,5200,0,600,13,200,500\n";

TEST_F(TiposDeCatalogo, UnaBibliotecaCecCreaSuCatalogoYNoRepite)
{
    const std::string cec = m_carpeta.Crear("cec.csv", kCec);
    const std::string fichero = m_carpeta.Ruta().string() + "/nuevo.xml";
    const Textos orden = {"catalogo", "importar-cec", cec, "--fichero", fichero};
    Corrida corrida = Correr({"catalogo", "importar-cec", cec, "--fichero", fichero, "--solo", "uno: c"});
    EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
    EXPECT_NE(corrida.salida.find("1 modelo añadido"), std::string::npos) << corrida.salida;
    corrida = Correr(orden);
    EXPECT_EQ(corrida.iEstado, 0);
    EXPECT_NE(corrida.salida.find("línea 6, Uno: D: Vac no es un número: «nada»\n"), std::string::npos)
        << corrida.salida;
    EXPECT_NE(corrida.salida.find("línea 5, Uno: C: ya está en la familia Uno\n"), std::string::npos)
        << corrida.salida;
    EXPECT_NE(corrida.salida.find("2 modelos añadidos"), std::string::npos) << corrida.salida;
    const std::string completo = Leer(fichero);
    const Json otra = EnJson(orden);
    EXPECT_EQ(otra["añadidos"], 0);
    EXPECT_EQ(otra["tipo"], "inversores");
    EXPECT_EQ(otra["ya_estaban"].size(), 3U);
    EXPECT_EQ(otra["no_sirven"][0]["linea"], 6);
    EXPECT_EQ(Leer(fichero), completo);
    Textos ids;
    for (const Json& ficha : EnJson({"catalogo", "listar", "--tipo", "inversores", "--fichero", fichero}))
        ids.push_back(ficha["id"]);
    EXPECT_EQ(ids, (Textos{"Uno#C", "Uno#A", "Dos#B"}));
}

TEST_F(TiposDeCatalogo, UnaBibliotecaCecQueNoSirveNoTocaNada)
{
    const std::string cec = m_carpeta.Crear("cec.csv", kCec);
    const std::string fichero = m_carpeta.Ruta().string() + "/nuevo.xml";
    const auto fallo = [&](Textos argumentos, int iEstado, const char* fragmento) {
        argumentos.insert(argumentos.begin(), {"catalogo", "importar-cec"});
        argumentos.insert(argumentos.end(), {"--fichero", fichero});
        EsperarFallo(argumentos, iEstado, fragmento);
        EXPECT_FALSE(fs::exists(fichero));
    };
    fallo({cec, "--solo", "nadie"}, 1, "«nadie»");
    fallo({m_carpeta.Crear("otra.csv", "a,b\n1,2\n")}, 1, "CEC");
    fallo({m_carpeta.Ruta().string() + "/no.csv"}, 1, "no.csv");
    fallo({cec, "--canto", "0"}, 2, "--canto");
    fallo({cec, "--proporcion", "x"}, 2, "--proporcion");
    fallo({cec, "--familia", "a#b"}, 1, "#");
    fallo({cec, cec}, 2, "biblioteca");
    // A library of which nothing serves makes no catalogue.
    EXPECT_EQ(Correr({"catalogo", "importar-cec", cec, "--solo", "uno: d", "--fichero", fichero}).iEstado, 1);
    EXPECT_FALSE(fs::exists(fichero));
}

TEST_F(TiposDeCatalogo, ElCsvLoAbreUnaHojaDeCalculo)
{
    const std::string fichero = Escribir(
        "<Modelo csModelo=\"=1+1\" dP=\"0.1\" dVs=\"-5\" csCodPrecio=\"a;&quot;b&quot;\"/>"
        "<Modelo csModelo=\"ñ, x\" dP=\"1e300\" dVs=\"12\" csCodPrecio=\"-3\"/>");
    const Textos orden = {"catalogo", "exportar", "--tipo", "receptores", "--fichero", fichero};
    EXPECT_EQ(Correr(orden).salida,
              "\xEF\xBB\xBF"
              "csFamilia;csModelo;dP;dVs;dVsMin;dRend;iTipoRed;bIlum;nColor;csCodPrecio\r\n"
              "F;'=1+1;0,1;-5;;;;;;\"a;\"\"b\"\"\"\r\n"
              "F;ñ, x;1e+300;12;;;;;;'-3\r\n");
    Textos conComa = orden;
    const std::string salida = m_carpeta.Ruta().string() + "/s.csv";
    conComa.insert(conComa.end(), {"--separador", ",", "--salida", salida, "--familia", "f"});
    EXPECT_EQ(Correr(conComa).salida, "");
    EXPECT_EQ(Leer(salida),
              "\xEF\xBB\xBF"
              "csFamilia,csModelo,dP,dVs,dVsMin,dRend,iTipoRed,bIlum,nColor,csCodPrecio\r\n"
              "F,'=1+1,0.1,-5,,,,,,\"a;\"\"b\"\"\"\r\n"
              "F,\"ñ, x\",1e+300,12,,,,,,'-3\r\n");
    EsperarFallo({"catalogo", "exportar", "--separador", "|"}, 2, "--separador");
    EsperarFallo({"catalogo", "exportar", "--salida", m_carpeta.Ruta()}, 1, "no se puede escribir");
}

// Shipped data in one folder; what an order adds without being told a file goes to the person's own.
TEST_F(TiposDeCatalogo, LosPropiosEstanSobreLosDistribuidosYSeRestauran)
{
    const std::string datos = m_carpeta.Ruta().string();
    const std::string ond = m_carpeta.Crear("a.ond", Ond("A"));
    const auto orden = [&](Textos argumentos) {
        argumentos.insert(argumentos.begin(), "catalogo");
        argumentos.insert(argumentos.end(), {"--tipo", "inversores", "--datos", datos});
        return argumentos;
    };
    const std::string enviado = m_carpeta.Crear(
        "ZqInversorHE5.xml", Catalogo("<Modelo csModelo=\"Z\" iUsoPrincipal=\"0\" dPCANom=\"5000\" "
                                      "csICCMaxMPPT=\"9\" csICCMinMPPT=\"0\" dIScMax=\"12\"/>"));
    const std::string antes = Leer(enviado), propio = datos + "/propios/ZqInversorHE5.xml";
    EXPECT_EQ(EnJson(orden({"importar-ond", ond}))["catalogo"], propio);
    EXPECT_EQ(Leer(enviado), antes);
    const Json lista = EnJson(orden({"listar"}));
    ASSERT_EQ(lista.size(), 2U);
    EXPECT_EQ(lista[0]["id"], "F#Z");
    EXPECT_FALSE(lista[0].contains("propio"));
    EXPECT_EQ(lista[1]["id"], "F#A");
    EXPECT_EQ(lista[1]["propio"], true);
    EXPECT_EQ(Ficha(orden({"ver", "A"}))["Catálogo"], "propio");
    EXPECT_TRUE(Contiene(Correr(orden({"listar"})).salida, {"Catálogo\n", "propio\n"}));
    EsperarFallo(orden({"importar-ond", ond}), 1, "ya tiene el modelo A");
    // A file that is given is read as it stands.
    EXPECT_EQ(EnJson({"catalogo", "listar", "--tipo", "inversores", "--fichero", enviado}).size(), 1U);

    EsperarFallo({"catalogo", "restaurar", "--datos", datos}, 2, "--todos");
    EsperarFallo({"catalogo", "restaurar", "--todos", "--fichero", enviado}, 2, "--fichero");
    const Corrida sinSi = Correr({"catalogo", "restaurar", "--todos", "--datos", datos});
    EXPECT_EQ(sinSi.iEstado, 2);
    EXPECT_EQ(sinSi.salida, "inversores:\n  añadido F#A\n");
    EXPECT_TRUE(fs::exists(propio));
    const Json hecho = EnJson(orden({"restaurar", "--si"}));
    EXPECT_EQ(hecho[0]["cambios"][0], (Json{{"cambio", "añadido"}, {"familia", "F"}, {"modelo", "A"}}));
    EXPECT_TRUE(fs::exists(hecho[0]["copia"].get<std::string>()));
    EXPECT_FALSE(fs::exists(propio));
    EXPECT_EQ(EnJson(orden({"listar"})).size(), 1U);
    EXPECT_EQ(Correr(orden({"restaurar", "--si"})).salida, "no hay ningún cambio propio que retirar\n");

    // From the standard input.
    std::istringstream entrada(Ond("E"));
    std::streambuf* const otra = std::cin.rdbuf(entrada.rdbuf());
    const Corrida deEntrada = Correr(orden({"importar-ond", "-"}));
    std::cin.rdbuf(otra);
    EXPECT_TRUE(deEntrada.salida.starts_with("-: F#E\n")) << deEntrada.salida << deEntrada.errores;
}

std::string Escrito(const std::string& tipo)
{
    return tipo == "modulos" ? "módulos" : tipo;
}

// Whatever kind a catalogue is opened as, another's is refused.
TEST_F(TiposDeCatalogo, UnCatalogoDeOtraClaseSeRechaza)
{
    for (const std::string& suyo : kTipos) {
        const std::string fichero =
            std::string(EFV_CARPETA_PRUEBAS) + "/../data/" + CadenaUtf8(BuscarTipoCatalogo(suyo)->Fichero());
        for (const std::string& tipo : kTipos) {
            const Corrida corrida = Correr({"catalogo", "listar", "--tipo", tipo, "--fichero", fichero});
            EXPECT_EQ(corrida.iEstado, suyo == tipo ? 0 : 1) << suyo << " " << tipo;
            if (suyo != tipo) {
                EXPECT_TRUE(Contiene(corrida.errores,
                                     {"es un catálogo de " + Escrito(suyo) + ", no de " + Escrito(tipo)}));
            }
        }
    }
}

}  // namespace
}  // namespace efv::orden::pruebas

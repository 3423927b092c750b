#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "comun/ficheros.h"
#include "platform/xml/atributos.h"
#include "platform/xml/xml.h"

namespace {

using namespace efv;
using namespace efv::xml;

class Xml : public ::testing::Test {
protected:
    int Abrir(std::string_view bytes) { return xmlOpenDocument(carpeta.Escribir("d.xml", bytes), 0); }

    // Attribute "n" of the first top-level node.
    static CString Nombre()
    {
        CString cs = L"?";
        xmlGetTextAttribute(xmlGetFirstChildNode(nullptr), "n", cs);
        return cs;
    }

    ~Xml() override { xmlCloseDocument(); }

    pruebas::CarpetaTemporal carpeta;
};

TEST_F(Xml, RecorreElementosYSaltaLoDemas)
{
    ASSERT_EQ(Abrir("<?xml version='1.0'?><!-- c --><R><!-- c --><A/>texto<?p i?><B><C/></B></R>"), 1);
    const Nodo a = xmlGetFirstChildNode(nullptr);
    CString cs;
    xmlGetNodeName(a, cs);
    EXPECT_EQ(cs, L"A");
    EXPECT_EQ(xmlGetFirstChildNode(a), nullptr);
    const Nodo b = xmlGetNextSiblingNode(a);
    EXPECT_TRUE(SeLlama(b, "B"));
    EXPECT_TRUE(SeLlama(xmlGetFirstChildNode(b), "C"));
    EXPECT_EQ(xmlGetNextSiblingNode(b), nullptr);
}

TEST_F(Xml, UnaTablaExteriorEsElNodoUnico)
{
    ASSERT_EQ(Abrir("<TablaFamilias><Familia/></TablaFamilias>"), 1);
    EXPECT_TRUE(SeLlama(xmlGetFirstChildNode(nullptr), "TablaFamilias"));
    EXPECT_EQ(xmlGetNextSiblingNode(xmlGetFirstChildNode(nullptr)), nullptr);
    ASSERT_EQ(Abrir("<tablafamilias><Familia/></tablafamilias>"), 1);
    EXPECT_TRUE(SeLlama(xmlGetFirstChildNode(nullptr), "Familia"));
}

TEST_F(Xml, LosAtributosAusentesDejanLaVariable)
{
    ASSERT_EQ(Abrir("<R><A z='9' b='2.5x' a='7' c='nada'/></R>"), 1);
    const Nodo a = xmlGetFirstChildNode(nullptr);
    int i = 1;
    double d = 1.0;
    xmlGetIntAttribute(a, "a", i);
    EXPECT_EQ(i, 7);
    xmlGetFloatAttribute(a, "b", d);
    EXPECT_EQ(d, 2.5);
    xmlGetFloatAttribute(a, "B", d);
    EXPECT_EQ(d, 2.5);
    xmlGetFloatAttribute(a, "c", d);
    EXPECT_EQ(d, 0.0);
    xmlGetIntAttribute(a, "z", i);
    EXPECT_EQ(i, 9);
}

// Whoever asks in turns, backwards or for what isn't there is answered like who asks in file order.
TEST_F(Xml, ElOrdenDeLasPreguntasNoCambiaLasRespuestas)
{
    ASSERT_EQ(Abrir("<R><A a='1' b='2' c='3'/><A c='30' a='10' d=''/></R>"), 1);
    const Nodo primero = xmlGetFirstChildNode(nullptr);
    const Nodo segundo = xmlGetNextSiblingNode(primero);
    const std::map<std::string, int> uno{{"a", 1}, {"b", 2}, {"c", 3}, {"d", -1}};
    const std::map<std::string, int> dos{{"a", 10}, {"b", -1}, {"c", 30}, {"d", 0}};
    std::vector<std::string> orden{"a", "b", "c", "d"};
    do {
        Atributos delPrimero(primero);
        Atributos delSegundo(segundo);
        for (const std::string& nombre : orden) {
            int i = -1, j = -1, k = -1, l = -1;
            xmlGetIntAttribute(primero, nombre.c_str(), i);
            xmlGetIntAttribute(segundo, nombre.c_str(), j);
            delPrimero.Leer(nombre.c_str(), k);
            delSegundo.Leer(nombre.c_str(), l);
            EXPECT_EQ(i, uno.at(nombre)) << nombre;
            EXPECT_EQ(j, dos.at(nombre)) << nombre;
            EXPECT_EQ(k, i) << nombre;
            EXPECT_EQ(l, j) << nombre;
        }
    } while (std::ranges::next_permutation(orden).found);
}

TEST_F(Xml, LeeLasCodificacionesQueSeDeclaran)
{
    ASSERT_EQ(Abrir("<R><A n='ñ€'/></R>"), 1);
    EXPECT_EQ(Nombre(), L"ñ€");
    ASSERT_EQ(Abrir("<?xml version='1.0' encoding='Windows-1252'?><R><A n='\xF1\x80'/></R>"), 1);
    EXPECT_EQ(Nombre(), L"ñ€");
    ASSERT_EQ(Abrir("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><R><A n='\xF1'/></R>"), 1);
    EXPECT_EQ(Nombre(), L"ñ");
    ASSERT_EQ(Abrir("\xEF\xBB\xBF<R><A n='ñ'/></R>"), 1);
    EXPECT_EQ(Nombre(), L"ñ");
    std::string utf16 = "\xFF\xFE";
    for (char16_t c : std::u16string(u"<R><A n='ñ€\U0001F31E'/></R>")) {
        utf16 += static_cast<char>(c & 0xFF);
        utf16 += static_cast<char>(c >> 8);
    }
    ASSERT_EQ(Abrir(utf16), 1);
    EXPECT_EQ(Nombre(), L"ñ€\U0001F31E");
}

TEST_F(Xml, LoQueNoEsUnDocumentoNoSeAbre)
{
    using namespace std::string_view_literals;
    const std::string_view malos[] = {
        ""sv,
        "   "sv,
        "texto"sv,
        "<R><A></R>"sv,
        "<R><A n='1'/>"sv,
        "<R/><R/>"sv,
        "<R><A n=1/></R>"sv,
        "<R n='\xF1'/>"sv,  // neither UTF-8 nor declared otherwise
        "<?xml version='1.0' encoding='koi8-r'?><R/>"sv,
        "<?xml version='1.0' encoding='utf-16'?><R/>"sv,
        "<R n='a\0b'/>"sv,
        "\xFF\xFE<"sv,
    };
    for (const std::string_view malo : malos) {
        EXPECT_EQ(Abrir(malo), 0) << malo;
        EXPECT_EQ(xmlGetFirstChildNode(nullptr), nullptr);
    }
}

TEST_F(Xml, NiCarpetasNiTuberiasNiFicherosEnormes)
{
    EXPECT_EQ(xmlOpenDocument(L"/no/existe.xml", 0), 0);
    EXPECT_EQ(xmlOpenDocument(CadenaDesdeUtf8(carpeta.Ruta().string()), 0), 0);
    const std::string tuberia = (carpeta.Ruta() / "t").string();
    ASSERT_EQ(::mkfifo(tuberia.c_str(), 0600), 0);
    EXPECT_EQ(xmlOpenDocument(CadenaDesdeUtf8(tuberia), 0), 0);
    const CString enorme = carpeta.Escribir("g.xml", "<R/>");
    std::filesystem::resize_file(carpeta.Ruta() / "g.xml", kMaximoFichero + 1);
    EXPECT_EQ(xmlOpenDocument(enorme, 0), 0);
}

TEST_F(Xml, NiElAnidamientoNiLasEntidadesAgotanNada)
{
    std::string hondo;
    for (int i = 0; i < 100'000; ++i)
        hondo += "<n>";
    for (int i = 0; i < 100'000; ++i)
        hondo += "</n>";
    EXPECT_EQ(Abrir(hondo), 1);

    ASSERT_EQ(Abrir("<!DOCTYPE R [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>]>"
                    "<R><A n='&b;&amp;'/></R>"),
              1);
    EXPECT_EQ(Nombre(), L"&b;&");
}

}  // namespace

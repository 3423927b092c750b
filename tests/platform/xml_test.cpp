#include <algorithm>
#include <map>
#include <optional>
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
    bool Abrir(std::string_view bytes)
    {
        documento.emplace(carpeta.Escribir("d.xml", bytes));
        return static_cast<bool>(*documento);
    }

    // The first top-level node; null when there is none.
    Nodo Primero() const { return *documento->Superiores().begin(); }

    // Attribute "n" of it.
    CString Nombre() const
    {
        CString cs = L"?";
        Atributos(Primero()).Leer("n", cs);
        return cs;
    }

    pruebas::CarpetaTemporal carpeta;
    std::optional<Documento> documento;
};

TEST_F(Xml, RecorreElementosYSaltaLoDemas)
{
    ASSERT_TRUE(Abrir("<?xml version='1.0'?><!-- c --><R><!-- c --><A/>texto<?p i?><B><C/></B></R>"));
    const Nodo a = Primero();
    EXPECT_TRUE(SeLlama(a, "A"));
    EXPECT_EQ(PrimerHijo(a), nullptr);
    const Nodo b = SiguienteHermano(a);
    EXPECT_TRUE(SeLlama(b, "B"));
    EXPECT_TRUE(SeLlama(PrimerHijo(b), "C"));
    EXPECT_EQ(SiguienteHermano(b), nullptr);
}

TEST_F(Xml, UnaTablaExteriorEsElNodoUnico)
{
    ASSERT_TRUE(Abrir("<TablaFamilias><Familia/></TablaFamilias>"));
    EXPECT_TRUE(SeLlama(Primero(), "TablaFamilias"));
    EXPECT_EQ(SiguienteHermano(Primero()), nullptr);
    ASSERT_TRUE(Abrir("<tablafamilias><Familia/></tablafamilias>"));
    EXPECT_TRUE(SeLlama(Primero(), "Familia"));
}

TEST_F(Xml, LosAtributosAusentesDejanLaVariable)
{
    ASSERT_TRUE(Abrir("<R><A z='9' b='2.5x' a='7' c='nada'/></R>"));
    const Nodo a = Primero();
    int i = 1;
    double d = 1.0;
    Atributos(a).Leer("a", i);
    EXPECT_EQ(i, 7);
    Atributos(a).Leer("b", d);
    EXPECT_EQ(d, 2.5);
    Atributos(a).Leer("B", d);
    EXPECT_EQ(d, 2.5);
    Atributos(a).Leer("c", d);
    EXPECT_EQ(d, 0.0);
    Atributos(a).Leer("z", i);
    EXPECT_EQ(i, 9);
}

// Whoever asks in turns, backwards or for what isn't there is answered like who asks in file order.
TEST_F(Xml, ElOrdenDeLasPreguntasNoCambiaLasRespuestas)
{
    ASSERT_TRUE(Abrir("<R><A a='1' b='2' c='3'/><A c='30' a='10' d=''/></R>"));
    const Nodo primero = Primero();
    const Nodo segundo = SiguienteHermano(primero);
    const std::map<std::string, int> uno{{"a", 1}, {"b", 2}, {"c", 3}, {"d", -1}};
    const std::map<std::string, int> dos{{"a", 10}, {"b", -1}, {"c", 30}, {"d", 0}};
    std::vector<std::string> orden{"a", "b", "c", "d"};
    do {
        Atributos delPrimero(primero);
        Atributos delSegundo(segundo);
        for (const std::string& nombre : orden) {
            int i = -1, j = -1;
            delPrimero.Leer(nombre.c_str(), i);
            delSegundo.Leer(nombre.c_str(), j);
            EXPECT_EQ(i, uno.at(nombre)) << nombre;
            EXPECT_EQ(j, dos.at(nombre)) << nombre;
        }
    } while (std::ranges::next_permutation(orden).found);
}

// Names are compared by the word, longer ones than the words to their end.
TEST_F(Xml, UnNombreEsElMismoDePrincipioAFin)
{
    const std::vector<std::string> nombres{"a",
                                           "ab",
                                           "dVoc123",
                                           "dVoc1234",
                                           "dVoc12345",
                                           "quince_letras_1",
                                           "dieciseis_letras",
                                           "diecisiete_letras_a",
                                           "diecisiete_letras_b"};
    for (const std::string& leido : nombres) {
        ASSERT_TRUE(Abrir("<R><A " + leido + "='7'/></R>"));
        for (const std::string& pedido : nombres) {
            int i = 0;
            EXPECT_EQ(Atributos(Primero()).Leer(NombreAtributo(pedido.c_str()), i), leido == pedido)
                << leido << ' ' << pedido;
            EXPECT_EQ(i, leido == pedido ? 7 : 0);
        }
    }
}

TEST_F(Xml, LeeLasCodificacionesQueSeDeclaran)
{
    ASSERT_TRUE(Abrir("<R><A n='ñ€'/></R>"));
    EXPECT_EQ(Nombre(), L"ñ€");
    ASSERT_TRUE(Abrir("<?xml version='1.0' encoding='Windows-1252'?><R><A n='\xF1\x80'/></R>"));
    EXPECT_EQ(Nombre(), L"ñ€");
    ASSERT_TRUE(Abrir("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><R><A n='\xF1'/></R>"));
    EXPECT_EQ(Nombre(), L"ñ");
    ASSERT_TRUE(Abrir("\xEF\xBB\xBF<R><A n='ñ'/></R>"));
    EXPECT_EQ(Nombre(), L"ñ");
    std::string utf16 = "\xFF\xFE";
    for (char16_t c : std::u16string(u"<R><A n='ñ€\U0001F31E'/></R>")) {
        utf16 += static_cast<char>(c & 0xFF);
        utf16 += static_cast<char>(c >> 8);
    }
    ASSERT_TRUE(Abrir(utf16));
    EXPECT_EQ(Nombre(), L"ñ€\U0001F31E");
    // Another attribute whose name has the word declares nothing.
    ASSERT_TRUE(Abrir("<?xml vencodingersion='1.0' encoding='latin1'?><R><A n='\xF1'/></R>"));
    EXPECT_EQ(Nombre(), L"ñ");
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
        EXPECT_FALSE(Abrir(malo)) << malo;
        EXPECT_EQ(Primero(), nullptr);
    }
}

TEST_F(Xml, NiCarpetasNiTuberiasNiFicherosEnormes)
{
    EXPECT_FALSE(Documento(L"/no/existe.xml"));
    EXPECT_FALSE(Documento(CadenaDesdeUtf8(carpeta.Ruta().string())));
    const std::string tuberia = (carpeta.Ruta() / "t").string();
    ASSERT_EQ(::mkfifo(tuberia.c_str(), 0600), 0);
    EXPECT_FALSE(Documento(CadenaDesdeUtf8(tuberia)));
    const CString enorme = carpeta.Escribir("g.xml", "<R/>");
    std::filesystem::resize_file(carpeta.Ruta() / "g.xml", kMaximoFichero + 1);
    EXPECT_FALSE(Documento(enorme));
}

TEST_F(Xml, NiElAnidamientoNiLasEntidadesAgotanNada)
{
    std::string hondo;
    for (int i = 0; i < 100'000; ++i)
        hondo += "<n>";
    for (int i = 0; i < 100'000; ++i)
        hondo += "</n>";
    EXPECT_TRUE(Abrir(hondo));

    ASSERT_TRUE(
        Abrir("<!DOCTYPE R [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>]>"
              "<R><A n='&b;&amp;'/></R>"));
    EXPECT_EQ(Nombre(), L"&b;&");
}

}  // namespace

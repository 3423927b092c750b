// Questions to a catalogue by value.
#include <quorvel/tipos_catalogo.h>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

using Textos = std::vector<std::string>;

class Pregunta : public ::testing::Test {
protected:
    // Names of the models that the order lists.
    Textos Modelos(Textos opciones)
    {
        opciones.insert(opciones.begin(), {"catalogo", "buscar", "--fichero", m_fichero, "--json"});
        const Corrida corrida = Correr(opciones);
        EXPECT_EQ(corrida.errores, "");
        Textos modelos;
        for (const Json& ficha : Json::parse(corrida.salida))
            modelos.push_back(ficha["id"].get<std::string>().substr(2));
        return modelos;
    }
    Corrida Buscar(Textos opciones)
    {
        opciones.insert(opciones.begin(), {"catalogo", "buscar", "--fichero", m_fichero});
        return Correr(opciones);
    }

    CarpetaTemporal m_carpeta;
    // D's power isn't known.
    std::string m_fichero = m_carpeta.Crear(
        "c.xml",
        "<Q><TablaFamilias><Familia nombre='F'>"
        "<Modelo csModelo='A' dPmpm='400.5' dVoc='50'/><Modelo csModelo='B' dPmpm='500' dVoc='40'/>"
        "<Modelo csModelo='C' dPmpm='500' dVoc='30'/><Modelo csModelo='D' dVoc='20'/>"
        "</Familia></TablaFamilias></Q>");
};

TEST_F(Pregunta, TodasLasCondicionesYElOrden)
{
    EXPECT_EQ(Modelos({"--donde", "dPmpm>=400,5", "--ordenar", "dVoc"}), (Textos{"C", "B", "A"}));
    EXPECT_EQ(Modelos({"--donde", "pmpm=500", "--donde", "dVoc < 40"}), (Textos{"C"}));
    EXPECT_EQ(Modelos({"--donde", "dPmpm!=500"}), (Textos{"A"}));
    EXPECT_EQ(Modelos({"--donde", "familia~f", "--ordenar=-dPmpm,dVoc"}), (Textos{"C", "B", "A", "D"}));
    EXPECT_EQ(Modelos({"f", "--ordenar", "dPmpm", "--descendente"}), (Textos{"B", "C", "A", "D"}));
}

TEST_F(Pregunta, CadaCampoTieneSuNombreYOtroTipoSeDice)
{
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const Corrida campos = Correr({"catalogo", "campos", "--tipo", std::string(tipo->Nombre()), "--json"});
        for (const Json& campo : Json::parse(campos.salida))
            EXPECT_NE(campo["titulo"], campo["campo"]) << tipo->Nombre();
    }
    EXPECT_TRUE(Contiene(Correr({"catalogo", "ver", "SB5.0-1AV-40"}).errores,
                         {"no está en módulos, está en inversores", "--tipo inversores 'SMA#SB5.0-1AV-40'"}));
}

TEST_F(Pregunta, LasColumnasSonLasPedidas)
{
    const Corrida texto = Buscar({"f", "--columnas", "dVoc,dPmpm"});
    EXPECT_TRUE(Contiene(texto.salida, {"Voc (V)  Pmpm (W)", "F#D", "—"}));
    const Json json = Json::parse(Buscar({"f", "--columnas", "dVoc", "--json"}).salida);
    EXPECT_EQ(json[0], Json({{"id", "F#A"}, {"dVoc", 50.0}}));
}

TEST_F(Pregunta, UnCampoMalEscritoSeContestaConLosParecidos)
{
    for (const Textos& opciones :
         std::vector<Textos>{{"--donde", "dPmp>3"}, {"f", "--ordenar", "dPmp"}, {"f", "--columnas", "dPmp"}}) {
        const Corrida corrida = Buscar(opciones);
        EXPECT_EQ(corrida.iEstado, 2);
        EXPECT_TRUE(Contiene(corrida.errores, {opciones[opciones.size() - 2], "«dPmp»; parecidos: dPmpm"}));
    }
    EXPECT_EQ(Buscar({"--donde", "dPmpm"}).iEstado, 2);
    EXPECT_EQ(Buscar({"--donde", "dPmpm>mucho"}).iEstado, 2);
    EXPECT_EQ(Buscar({"--donde", "dPmpm>900"}).iEstado, 1);
}

}  // namespace
}  // namespace efv::orden::pruebas

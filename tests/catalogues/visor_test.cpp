#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/catalogues/consulta.h>
#include <quorvel/frame.h>

#include "comun/ficheros.h"
#include "comun/guion.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kPanel =
    "csModelo='%' dPmpm='250.000000' dVmpm='30' dImpm='8' dVoc='37' dIsc='9' iNp='1' iNs='60' dH='1' dB='1' "
    "dA='1' nColor='7'";

std::string Modelo(const std::string& nombre)
{
    std::string texto = kPanel;
    return "    <Modelo " + texto.replace(texto.find('%'), 1, nombre) + " propio='x'/>\n";
}

const std::string kDocumento =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- antes -->\n<Datos>\n  <Otra a=\"1\">texto</Otra>\n"
    "  <TablaFamilias>\n   <Familia nombre=\"Ácme\">\n<!-- dentro -->\n" +
    Modelo("uno") + Modelo("dos") + "   </Familia>\n   <Familia nombre=\"Beta\">\n" + Modelo("tres") +
    "   </Familia>\n  </TablaFamilias>\n</Datos>\n";

class Visor : public ::testing::Test {
protected:
    Visor()
    {
        Poner(kDocumento);
        phSetPathHE5BD((CadenaDesdeUtf8(carpeta.Ruta().string()) + L"/").c_str());
    }

    ~Visor() override
    {
        phSetPathHE5BD(L"");
        phGetBasePanelFoto().Vaciar();
        phGetBasePanelFoto().csSeleccion.clear();
    }

    void Poner(const std::string& texto) { carpeta.Escribir("ZqModFotoHE5.xml", texto); }

    std::string Contenido() const
    {
        std::ifstream fichero(carpeta.Ruta() / "ZqModFotoHE5.xml", std::ios::binary);
        return {std::istreambuf_iterator<char>(fichero), std::istreambuf_iterator<char>()};
    }

    int Editar(std::vector<ui::Paso> pasos, int iModo = 0)
    {
        guion.presentador.guiones.push_front({"CDlgVisorXML", std::move(pasos)});
        const int iResultado = phEditarBasePanelesFotovoltaicos(iModo);
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return iResultado;
    }

    std::vector<CString> Arbol(std::size_t iLectura = 0) const
    {
        std::vector<CString> textos;
        for (const auto& fila :
             std::get<ui::EstadoControl::DeLista>(guion.Estado(0, iLectura, "arbol").propio).filas)
            textos.push_back(fila[0]);
        return textos;
    }

    static std::string Reemplazar(std::string texto, const std::string& que, const std::string& por)
    {
        const std::size_t i = texto.find(que);
        EXPECT_NE(i, texto.npos);
        return texto.replace(i, que.size(), por);
    }

    CarpetaTemporal carpeta;
    Guion guion;
};

TEST_F(Visor, AceptarSinCambiosNoEscribe)
{
    EXPECT_EQ(Editar({paso::Leer{}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(Contenido(), kDocumento);
    EXPECT_EQ(Arbol(), (std::vector<CString>{L"Ácme", L"uno", L"dos", L"Beta", L"tres"}));
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Base de Datos de Paneles Fotovoltaicos");
    CString csFamilia;
    EXPECT_EQ(phGetFabricantePanelFoto(L"tres", csFamilia), 1);
}

TEST_F(Visor, EditarCambiaSoloLosValores)
{
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Poner{"dPmpm", L"260,5"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Editar({paso::Abrir{"arbol", 2, 0}, paso::Pulsar{"OK"}}), 1);
    std::string esperado = kDocumento;
    // The other numbers take the six decimals of what is written; all else stays as it was.
    const std::string editado =
        "    <Modelo csModelo=\"dos\" dPmpm=\"260.500000\" dVmpm=\"30.000000\" dImpm=\"8.000000\" "
        "dVoc=\"37.000000\" "
        "dIsc=\"9.000000\" iNp=\"1\" iNs=\"60\" dH=\"1.000000\" dB=\"1.000000\" dA=\"1.000000\" nColor=\"7\" "
        "propio=\"x\"/>\n";
    const auto sinComillas = [](std::string t) {
        std::ranges::replace(t, '\'', '"');
        std::erase(t, ' ');
        return t;
    };
    esperado = Reemplazar(esperado, Modelo("dos"), editado);
    EXPECT_EQ(sinComillas(Contenido()), sinComillas(esperado));
    EXPECT_EQ(phGetBasePanelFoto().BuscarModelo(L"dos")->dPmpm, 260.5);
}

TEST_F(Visor, CancelarNoEscribeYDaCero)
{
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Poner{"dPmpm", L"1"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Editar({paso::Abrir{"arbol", 1, 0}, paso::Pulsar{"Cancel"}}), 0);
    EXPECT_EQ(Contenido(), kDocumento);
}

TEST_F(Visor, DeshacerVuelveHastaElPrincipio)
{
    guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"Gamma"}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"one"}, paso::Pulsar{"OK"}});
    guion.presentador.respuestas = {ui::Respuesta::si, ui::Respuesta::si};
    std::vector<ui::Paso> pasos = {paso::Pulsar{"NuevaFamilia"},
                                   paso::Elegir{"arbol", CString(L"Ácme#uno")},
                                   paso::Pulsar{"Renombrar"},
                                   paso::Pulsar{"Duplicar"},
                                   paso::Elegir{"arbol", CString(L"dos")},
                                   paso::Pulsar{"Eliminar"},
                                   paso::Elegir{"arbol", CString(L"Beta")},
                                   paso::Pulsar{"Eliminar"},
                                   paso::Leer{{"arbol"}}};
    for (int i = 0; i < 6; ++i)
        pasos.emplace_back(paso::Pulsar{"Deshacer"});
    pasos.emplace_back(paso::Leer{{"arbol", "Deshacer"}});
    pasos.emplace_back(paso::Pulsar{"OK"});
    EXPECT_EQ(Editar(pasos), 1);
    EXPECT_EQ(Arbol(0), (std::vector<CString>{L"Ácme", L"one", L"one (copia)", L"Gamma"}));
    EXPECT_EQ(Arbol(1), (std::vector<CString>{L"Ácme", L"uno", L"dos", L"Beta", L"tres"}));
    EXPECT_FALSE(guion.Estado(0, 1, "Deshacer").bHabilitado);
    EXPECT_EQ(Contenido(), kDocumento);
}

TEST_F(Visor, UnModeloNuevoLlevaTodosLosAtributos)
{
    guion.Dialogo(
        "CDlgItemDatosPanelFoto",
        {paso::Leer{}, paso::Poner{"csModelo", L"cuatro"}, paso::Poner{"dPmpm", L"100"},
         paso::Poner{"dVmpm", L"17"}, paso::Poner{"dImpm", L"6"}, paso::Poner{"dVoc", L"21"},
         paso::Poner{"dIsc", L"6,5"}, paso::Poner{"dH", L"900"}, paso::Poner{"dB", L"600"},
         paso::Poner{"dA", L"35"}, paso::Poner{"iNp", L"1"}, paso::Poner{"iNs", L"36"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Editar({paso::Elegir{"arbol", CString(L"tres")}, paso::Pulsar{"Nuevo"}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(guion.Texto(1, 0, "csModelo"), L"");
    EXPECT_EQ(guion.Texto(1, 0, "iNs"), L"0");
    const std::string contenido = Contenido();
    EXPECT_NE(contenido.find("<Modelo csModelo=\"cuatro\" dPmpm=\"100.000000\" dVsmax=\"0.000000\""),
              contenido.npos);
    EXPECT_NE(contenido.find("nColor=\"0\" csCodPrecio=\"\"/>\n   </Familia>\n  </TablaFamilias>"),
              contenido.npos);
    CString csFamilia;
    EXPECT_EQ(phGetFabricantePanelFoto(L"cuatro", csFamilia), 1);
    EXPECT_EQ(csFamilia, L"Beta");
}

TEST_F(Visor, EnLaTablaSeBuscaSeFiltraYSeCambiaComoEnElArbol)
{
    ElegirModelosEn(FormaDeElegir::tabla);
    guion.Dialogo("CDlgFiltroModelos",
                  {paso::Elegir{"iDato", 2}, paso::Leer{}, paso::Poner{"csValor", L"no"}, paso::Pulsar{"OK"},
                   paso::Poner{"csValor", L"260"}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Poner{"dPmpm", L"300"}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"Gamma"}, paso::Pulsar{"OK"}});
    guion.presentador.respuestas = {ui::Respuesta::si};
    EXPECT_EQ(Editar({paso::Leer{{"modelos"}}, paso::Teclear{"csBuscar", L"tres beta"}, paso::Leer{{"modelos"}},
                      paso::Pulsar{"Filtrar"}, paso::Leer{{"modelos", "Eliminar"}},
                      paso::Teclear{"csCondiciones", L""}, paso::Abrir{"modelos", 0, 0},
                      paso::Pulsar{"RenombrarFamilia"}, paso::Leer{{"modelos"}}, paso::Teclear{"csBuscar", L""},
                      paso::Elegir{"modelos", 0}, paso::Pulsar{"Eliminar"}, paso::Leer{{"modelos"}},
                      paso::Pulsar{"OK"}}),
              1);
    ElegirModelosEn(FormaDeElegir::arbol);
    const auto modelos = [&](std::size_t iLectura) {
        std::vector<CString> textos;
        for (const auto& fila :
             std::get<ui::EstadoControl::DeLista>(guion.Estado(0, iLectura, "modelos").propio).filas)
            textos.push_back(fila[0] + L"#" + fila[1] + L" " + fila[2]);
        return textos;
    };
    EXPECT_EQ(modelos(0), (std::vector<CString>{L"Ácme#uno 250,00", L"Ácme#dos 250,00", L"Beta#tres 250,00"}));
    EXPECT_EQ(modelos(1), (std::vector<CString>{L"Beta#tres 250,00"}));
    EXPECT_EQ(guion.Texto(1, 0, "csNota"), L"Hay de 250,00 a 250,00.");
    EXPECT_EQ(guion.Mensajes().at(0), L"«no» no es un número");
    EXPECT_TRUE(modelos(2).empty());  // at least 260
    EXPECT_FALSE(guion.Estado(0, 2, "Eliminar").bHabilitado);
    EXPECT_TRUE(modelos(3).empty());  // "beta" is no longer the family's name
    EXPECT_EQ(modelos(4), (std::vector<CString>{L"Ácme#dos 250,00", L"Gamma#tres 300,00"}));
    CString csFamilia;
    EXPECT_EQ(phGetFabricantePanelFoto(L"tres", csFamilia), 1);
    EXPECT_EQ(csFamilia, L"Gamma");
    EXPECT_EQ(phGetFabricantePanelFoto(L"uno", csFamilia), 0);
}

TEST_F(Visor, BuscaPorCualquierParteSinAcentosNiCaja)
{
    Editar({paso::Teclear{"csBuscar", L"TRE"}, paso::Leer{{"arbol"}}, paso::Teclear{"csBuscar", L"acme"},
            paso::Leer{{"arbol"}}, paso::Teclear{"csBuscar", L"zz"}, paso::Leer{{"arbol"}}});
    EXPECT_EQ(Arbol(0), (std::vector<CString>{L"Beta", L"tres"}));
    EXPECT_EQ(Arbol(1), (std::vector<CString>{L"Ácme", L"uno", L"dos"}));
    EXPECT_TRUE(Arbol(2).empty());
}

// Another program that acts while the viewer asks for a name.
class Intruso final : public ui::Presentador {
public:
    explicit Intruso(ui::PresentadorGuionizado& b) : base(b) {}
    ui::PresentadorGuionizado& base;
    std::function<void()> alPedirNombre;

    ui::Respuesta MostrarMensaje(const ui::Mensaje& m) override { return base.MostrarMensaje(m); }
    void MostrarModal(ui::Dialogo& d) override
    {
        if (d.clase == "CDlgVisorNombre")
            alPedirNombre();
        base.MostrarModal(d);
    }
    void MostrarRechazo(ui::Dialogo& d, const ui::Rechazo& r) override { base.MostrarRechazo(d, r); }
    std::optional<CString> ElegirFichero(const ui::PeticionFichero& p) override
    {
        return base.ElegirFichero(p);
    }
    CString LeerPortapapeles() override { return {}; }
    void EscribirPortapapeles(const CString& /*csTexto*/) override {}
    void Esperar(bool /*bEmpieza*/) override {}
    void Refrescar(ui::Dialogo& /*dialogo*/) override {}
};

TEST_F(Visor, NoPisaLoQueOtroCambio)
{
    const std::string ajeno = Reemplazar(kDocumento, "Beta", "Otro");
    guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"Mío"}, paso::Pulsar{"OK"}});
    const std::vector<ui::Paso> pasos = {paso::Elegir{"arbol", CString(L"Beta")}, paso::Pulsar{"Renombrar"},
                                         paso::Pulsar{"OK"}};
    guion.presentador.guiones.push_front({"CDlgVisorXML", pasos});
    Intruso intruso(guion.presentador);
    intruso.alPedirNombre = [&] { Poner(ajeno); };
    ui::InstalarPresentador(&intruso);
    EXPECT_EQ(phEditarBasePanelesFotovoltaicos(0), 0);  // the question was answered no
    EXPECT_EQ(Contenido(), ajeno);
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_NE(guion.Mensajes()[0].find(L"Otro programa"), CString::npos);
}

TEST_F(Visor, GuardaATravesDeUnEnlace)
{
    std::filesystem::remove(carpeta.Ruta() / "ZqModFotoHE5.xml");
    std::filesystem::create_directory(carpeta.Ruta() / "real");
    carpeta.Escribir("real/f.xml", kDocumento);
    std::filesystem::create_symlink(carpeta.Ruta() / "real" / "f.xml", carpeta.Ruta() / "ZqModFotoHE5.xml");
    guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"Nueva"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Editar({paso::Pulsar{"NuevaFamilia"}, paso::Pulsar{"OK"}}), 1);
    // Saved through the link, which stays one.
    EXPECT_TRUE(std::filesystem::is_symlink(carpeta.Ruta() / "ZqModFotoHE5.xml"));
    EXPECT_NE(Contenido().find("<Familia nombre=\"Nueva\"/>"), std::string::npos);
}

TEST_F(Visor, LoQueNoSePuedeEscribirSeDiceYNoSePierde)
{
    guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"Nueva"}, paso::Pulsar{"OK"}});
    guion.presentador.guiones.push_front(
        {"CDlgVisorXML", {paso::Pulsar{"NuevaFamilia"}, paso::Pulsar{"OK"}, paso::Leer{{"arbol"}}}});
    Intruso intruso(guion.presentador);
    // A folder takes the file's place.
    intruso.alPedirNombre = [&] {
        std::filesystem::remove(carpeta.Ruta() / "ZqModFotoHE5.xml");
        std::filesystem::create_directory(carpeta.Ruta() / "ZqModFotoHE5.xml");
    };
    ui::InstalarPresentador(&intruso);
    EXPECT_EQ(phEditarBasePanelesFotovoltaicos(0), 0);
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_TRUE(guion.Mensajes()[0].starts_with(L"No se ha podido guardar el archivo "));
    EXPECT_TRUE(guion.Mensajes()[0].ends_with(L": es una carpeta"));
    EXPECT_EQ(Arbol().back(), L"Nueva");  // the dialog stayed open with what was edited
}

TEST_F(Visor, ElegirDevuelveLaIdentificacion)
{
    phCargarBasePanelesFotovoltaicos(CadenaDesdeUtf8((carpeta.Ruta() / "ZqModFotoHE5.xml").string()));
    CString csId = L"dos";
    guion.Dialogo("CDlgVisorXML",
                  {paso::Leer{}, paso::Elegir{"arbol", CString(L"Beta#tres")}, paso::Pulsar{"OK"}});
    EXPECT_EQ(phSeleccionPanelFoto(csId), 1);
    EXPECT_EQ(csId, L"Beta#tres");
    EXPECT_EQ(guion.Texto(0, 0, "arbol"), L"dos");
    EXPECT_FALSE(guion.Estado(0, 0, "Nuevo").bVisible);

    // Cancelled: success, and the text as it was. On a family: failure, and the text as it was.
    guion.Dialogo("CDlgVisorXML", {paso::Pulsar{"Cancel"}});
    csId = L"dos";
    EXPECT_EQ(phSeleccionPanelFoto(csId), 1);
    EXPECT_EQ(csId, L"dos");
    guion.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", 0}, paso::Pulsar{"OK"}});
    EXPECT_EQ(phSeleccionPanelFoto(csId), 0);
    EXPECT_EQ(csId, L"dos");
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"¡Atención! Debe elegir un modelo"}));
}

TEST_F(Visor, AlElegirLaFichaSoloSeLee)
{
    guion.Dialogo("CDlgVisorXML", {paso::Abrir{"arbol", 1, 0}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Leer{{"dPmpm"}}});
    EXPECT_EQ(phEditarBasePanelesFotovoltaicos(1), 1);
    EXPECT_TRUE(guion.Estado(1, 0, "dPmpm").bSoloLectura);
    EXPECT_EQ(Contenido(), kDocumento);
}

TEST_F(Visor, UnFicheroQueNoSeAbreSeDice)
{
    std::filesystem::remove(carpeta.Ruta() / "ZqModFotoHE5.xml");
    EXPECT_EQ(phEditarBasePanelesFotovoltaicos(0), 0);
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_TRUE(guion.Mensajes()[0].starts_with(L"Error: No se ha podido abrir el archivo <"));
    EXPECT_TRUE(guion.presentador.transcripciones.empty());
}

}  // namespace

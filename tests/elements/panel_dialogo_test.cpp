// The dialog of an array of panels, by script.
#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <QuorvelEFV.h>

#include "comun/ficheros.h"
#include "comun/guion.h"
#include "module/singletons.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kDialogo = "CDlgDatosPanelFotovoltaico";
constexpr const char* kEstudio = "CDlgCalculoInclinacionPanel";

struct Bloque {
    double ad[12][31][24] = {};
};

/// What a host holds, as it hands it over.
struct Elemento {
    CString csReferencia = L"FV1", csId = L"Sol#M-300", csOptimizador, csString = L"S3", csIdMicro;
    int nPaneles = 4, bModelo = 1, bInclinacion = 1, iOrientacion = 0, iMontaje = 0, iOptimizador = 0;
    int bAutoDesconexion = 0, bMPPT = 0, bInformarSombra = 0, bExcluir = 0, bNoSombras = 0, iAux = 77;
    int bClima = 0, iFuente = 1, bMicro = 0, bMicroModelo = 0, iConexion = 1, bForzado = 0;
    double dInclinacion = 30.0, dRendimiento = 100.0, dDesconexion = 0.0, dSombreado = 25.0;
    double dLatitud = 40.4, dOrientacion = 0.0, dDatoSitio = 650.0;
    CStringArray acsOptimizadores;
    std::unique_ptr<Bloque> horas = std::make_unique<Bloque>();
    short nColor = 256;

    int Abrir()
    {
        return phShowPropertyPanelFoto(csReferencia, csId, nPaneles, bModelo, bInclinacion, dInclinacion,
                                       iOrientacion, iMontaje, dRendimiento, iOptimizador, bAutoDesconexion,
                                       dDesconexion, bMPPT, csOptimizador, acsOptimizadores, csString,
                                       bInformarSombra, dSombreado, bExcluir, bNoSombras, iAux, dLatitud,
                                       dOrientacion, dDatoSitio, bClima, iFuente, bMicro, csIdMicro,
                                       bMicroModelo, iConexion, horas->ad, bForzado, nColor);
    }
};

class PanelFotovoltaico : public testing::Test {
protected:
    PanelFotovoltaico()
    {
        module::RecuerdoDialogos().iPaginaPanel = 0;
        phCargarBasePanelesFotovoltaicos(Catalogo("modulos.xml", "Sol",
                                                  "<Modelo csModelo='M-300' dPmpm='300' dVoc='45.5'/>"
                                                  "<Modelo csModelo='M-400' dPmpm='400' dVmpm='33.25'/>"));
        phCargarBaseMicroInversores(Catalogo(
            "micro.xml", "Mini",
            "<Modelo csModelo='DUO' iNumEntradas='2' iNumMPPT='1' dPCCMax='440' dVMPPMax='45' dVMPPMin='27.25' "
            "dVCANom='230' iTipoSalida='0'/>"
            "<Modelo csModelo='CIEN' iNumEntradas='121' iNumMPPT='3' dVCANom='400' iTipoSalida='1'/>"));
    }
    ~PanelFotovoltaico() override
    {
        phGetBasePanelFoto().Vaciar();
        phGetBaseMicroInversores().Vaciar();
    }

    CString Catalogo(const std::string& nombre, const std::string& familia, const std::string& modelos)
    {
        return carpeta.Escribir(nombre, "<QuorvelEFV><TablaFamilias><Familia nombre='" + familia + "'>" +
                                            modelos + "</Familia></TablaFamilias></QuorvelEFV>");
    }

    /// Opens the element with that script; the script must come to its end.
    int Abrir(std::vector<ui::Paso> pasos)
    {
        guion.emplace();
        guion->Dialogo(kDialogo, std::move(pasos));
        return Representar();
    }
    int Representar()
    {
        const int iResultado = elemento.Abrir();
        const auto& csError = guion->presentador.csErrorGuion;
        EXPECT_FALSE(csError) << CadenaUtf8(csError.value_or(L""));
        return iResultado;
    }
    CString Texto(std::size_t iLectura, const std::string& control) const
    {
        return guion->Texto(0, iLectura, control);
    }
    const ui::EstadoControl& Estado(std::size_t iLectura, const std::string& control) const
    {
        return guion->Estado(0, iLectura, control);
    }

    CarpetaTemporal carpeta;
    Elemento elemento;
    std::optional<Guion> guion;
};

TEST_F(PanelFotovoltaico, LoAceptadoVuelveYLoCanceladoNo)
{
    const std::vector<ui::Paso> pasos = {paso::Poner{"csReferencia", L"FV2"},
                                         paso::Poner{"nPaneles", L"9"},
                                         paso::Poner{"dInclinacion", L"90"},
                                         paso::Poner{"dRendimiento", L"95,5"},
                                         paso::Elegir{"iOrientacion", 1},
                                         paso::Elegir{"iMontaje", 2},
                                         paso::Elegir{"iConexion", CString(L"S")},
                                         paso::Marcar{"bInformarSombra", true},
                                         paso::Poner{"dSombreado", L"40"},
                                         paso::Marcar{"bNoSombras", true},
                                         paso::Marcar{"bForzado", true},
                                         paso::Elegir{"nColor", CString(L"Azul")},
                                         paso::Marcar{"Excluir del cálculo", true},
                                         paso::Leer{}};
    auto cancelados = pasos;
    cancelados.emplace_back(paso::Pulsar{"Cancel"});
    EXPECT_EQ(Abrir(cancelados), 2);
    EXPECT_EQ(elemento.csReferencia, L"FV1");
    EXPECT_EQ(elemento.nPaneles, 4);
    EXPECT_EQ(elemento.nColor, 256);
    EXPECT_EQ(Texto(0, "csModelo"), L"M-300");
    EXPECT_EQ(Texto(0, "csFabricante"), L"Sol");
    EXPECT_EQ(Texto(0, "dPmpm"), L"300,00");
    EXPECT_EQ(Texto(0, "csString"), L"S3");
    EXPECT_EQ(Texto(0, "grafica"), L"");  // no climate
    auto aceptados = pasos;
    aceptados.emplace_back(paso::Pulsar{"OK"});
    EXPECT_EQ(Abrir(aceptados), 1);
    EXPECT_EQ(elemento.csReferencia, L"FV2");
    EXPECT_EQ(elemento.csId, L"Sol#M-300");
    EXPECT_EQ(elemento.nPaneles, 9);
    EXPECT_EQ(elemento.dInclinacion, 90.0);
    EXPECT_EQ(elemento.dRendimiento, 95.5);
    EXPECT_EQ(elemento.iOrientacion + 10 * elemento.iMontaje + 100 * elemento.iConexion, 21);
    EXPECT_EQ(elemento.bInformarSombra + elemento.bNoSombras + elemento.bForzado + elemento.bExcluir, 4);
    EXPECT_EQ(elemento.dSombreado, 40.0);
    EXPECT_EQ(elemento.nColor, 5);
    EXPECT_EQ(elemento.iAux, 77);
}

TEST_F(PanelFotovoltaico, LaImagenDelMontajeEsLaDeSuNumero)
{
    struct {
        int iOrientacion, iMontaje;
        const wchar_t* csNumero;
        std::wstring_view imagenes[2];  // of one panel, of several
    } const casos[] = {
        {0, 0, L"2", {L"5023", L"5105"}}, {0, 1, L"3", {L"5023", L"5106"}}, {0, 2, L"100", {L"5023", L"5104"}},
        {1, 0, L"2", {L"5024", L"5108"}}, {1, 1, L"3", {L"5024", L"5107"}}, {1, 2, L"100", {L"5024", L"5109"}},
    };
    for (const auto& caso : casos) {
        Abrir({paso::Elegir{"iOrientacion", caso.iOrientacion}, paso::Elegir{"iMontaje", caso.iMontaje},
               paso::Poner{"nPaneles", L"1"}, paso::Leer{}, paso::Poner{"nPaneles", caso.csNumero},
               paso::Leer{}, paso::Poner{"nPaneles", L"101"}, paso::Leer{}});
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(Texto(i, "imagenMontaje"), caso.imagenes[i]);
            EXPECT_FALSE(ui::FigurasDe(caso.imagenes[i]).empty());
            EXPECT_EQ(Estado(i, "iConexion").bVisible, i == 1);
        }
        EXPECT_EQ(Texto(2, "imagenMontaje"), caso.imagenes[1]);  // what is out of range isn't taken yet
    }
}

TEST_F(PanelFotovoltaico, ElCuadroSoloAdmiteCuadrados)
{
    elemento.iMontaje = 2;
    elemento.nPaneles = 12;
    EXPECT_EQ(Abrir({paso::Pulsar{"OK"}, paso::Poner{"nPaneles", L"16"}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(
        guion->Mensajes(),
        std::vector<CString>({L"Un número de 12 paneles, no se ajusta correctamente al modo cuadro (Np x H "
                              L"= Np x V)."}));
    EXPECT_EQ(elemento.nPaneles, 16);
    elemento.nPaneles = 1;
    EXPECT_EQ(Abrir({paso::Pulsar{"OK"}}), 1);
}

// Without a second half the family comes from the catalogue, where it has the model.
TEST_F(PanelFotovoltaico, LaIdentificacionSePartEnDosCamposYSeRehace)
{
    struct {
        CString csId, csModelo, csFabricante, csVuelve;
    } const casos[] = {
        {L"Otra#M-400", L"M-400", L"Sol", L"Sol#M-400"}, {L"M-300", L"M-300", L"Sol", L"Sol#M-300"},
        {L"Otra#X", L"X", L"Otra", L"Otra#X"},           {L"X", L"X", L"", L"#X"},
        {L"A#B#C", L"A\u00A0B\u00A0C", L"", L"#A#B#C"},
    };
    for (const auto& caso : casos) {
        elemento.csId = caso.csId;
        EXPECT_EQ(Abrir({paso::Leer{}, paso::Pulsar{"OK"}}), 1);
        EXPECT_EQ(Texto(0, "csModelo"), caso.csModelo);
        EXPECT_EQ(Texto(0, "csFabricante"), caso.csFabricante);
        EXPECT_EQ(elemento.csId, caso.csVuelve);
    }
    EXPECT_EQ(Texto(0, "dVmpm"), L"0,00");  // nothing is known of that one
    for (const wchar_t* csVacia : {L"", L"Sol#"}) {
        elemento.csId = csVacia;
        EXPECT_EQ(Abrir({paso::Pulsar{"OK"}}), 2);
        EXPECT_EQ(guion->Mensajes().at(0), L"El panel fotovoltaico no tiene seleccionado un modelo válido.");
    }
}

TEST_F(PanelFotovoltaico, ElModeloSeEligeSoloConSuMarca)
{
    guion.emplace();
    guion->Dialogo(kDialogo, {paso::Marcar{"bModelo", false}, paso::Leer{}, paso::Marcar{"bModelo", true},
                              paso::Pulsar{"ElegirModelo"}, paso::Leer{}, paso::Pulsar{"OK"}});
    guion->Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"Sol#M-400")}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Representar(), 1);
    EXPECT_FALSE(Estado(0, "ElegirModelo").bHabilitado);
    EXPECT_EQ(Texto(0, "dPmpm"), L"300,00");
    EXPECT_EQ(Texto(1, "dPmpm"), L"400,00");
    EXPECT_EQ(Texto(1, "dVmpm"), L"33,25");
    EXPECT_EQ(elemento.csId, L"Sol#M-400");
}

TEST_F(PanelFotovoltaico, ElMicroinversorFijaElNumeroDePaneles)
{
    elemento.csIdMicro = L"Mini#DUO";
    elemento.bMicro = 1;
    elemento.nPaneles = 500;  // out of range, and nobody could mend it
    EXPECT_EQ(Abrir({paso::Elegir{"tab", 2}, paso::Leer{}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(elemento.nPaneles, 2);
    EXPECT_EQ(elemento.csIdMicro, L"Mini#DUO");
    EXPECT_TRUE(Estado(0, "nPaneles").bSoloLectura);
    EXPECT_FALSE(Estado(0, "iConexion").bVisible);
    EXPECT_EQ(Texto(0, "imagenMontaje"), L"5105");
    EXPECT_EQ(Texto(0, "csIdMicro"), L"Mini\u00A0DUO");
    EXPECT_EQ(Texto(0, "csFabricanteMicro"), L"Mini");
    EXPECT_EQ(Texto(0, "Pcc (W):"), L"440,0");
    EXPECT_EQ(Texto(0, "Vcc (V):"), L"45,0/27,2");  // the double nearest to 27.25 is a tie, to even
    EXPECT_EQ(Texto(0, "Vca (V):"), L"230,0/MF");
    EXPECT_EQ(Texto(0, "NPPT:"), L"1");
    EXPECT_FALSE(Estado(0, "ElegirMicro").bHabilitado);

    guion.emplace();
    guion->Dialogo(kDialogo, {paso::Elegir{"tab", 2}, paso::Marcar{"bMicroModelo", true},
                              paso::Pulsar{"ElegirMicro"}, paso::Leer{}, paso::Pulsar{"OK"}});
    guion->Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"Mini#CIEN")}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Representar(), 1);
    EXPECT_EQ(elemento.nPaneles, 121);
    EXPECT_EQ(elemento.csIdMicro, L"Mini#CIEN");
    EXPECT_EQ(Texto(0, "Vca (V):"), L"400,0/TF");

    // Put off, the number can be typed again, and its limits hold.
    EXPECT_EQ(Abrir({paso::Elegir{"tab", 2}, paso::Marcar{"bMicroInversor", false}, paso::Leer{},
                     paso::Pulsar{"OK"}, paso::Poner{"nPaneles", L"3"}, paso::Marcar{"bMicroInversor", true},
                     paso::Leer{}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_FALSE(Estado(0, "nPaneles").bSoloLectura);
    EXPECT_TRUE(Estado(0, "iConexion").bVisible);
    EXPECT_FALSE(Estado(0, "csIdMicro").bHabilitado);
    EXPECT_EQ(Texto(1, "nPaneles"), L"3");
    EXPECT_EQ(elemento.nPaneles, 3);
}

TEST_F(PanelFotovoltaico, SinMicroinversorElAvisoTraeLaPaginaDelOptimizador)
{
    elemento.bMicro = 1;
    EXPECT_EQ(Abrir({paso::Elegir{"tab", 0}, paso::Pulsar{"OK"}, paso::Leer{{"tab"}}}), 2);
    EXPECT_EQ(guion->Mensajes().at(0),
              L"Se ha habilitado el uso de microinversores y no se ha seleccionado un modelo válido.");
    EXPECT_EQ(Texto(0, "tab"), L"Optimizador");
}

TEST_F(PanelFotovoltaico, SoloAceptarRecuerdaLaPaginaYLaTerceraNoVuelve)
{
    const auto alAbrir = [this](int iPagina, const char* boton) {
        Abrir({paso::Leer{{"tab"}}, paso::Elegir{"tab", iPagina}, paso::Pulsar{boton}});
        return std::get<int>(Estado(0, "tab").valor);
    };
    alAbrir(1, "OK");
    EXPECT_EQ(alAbrir(0, "Cancel"), 1);
    EXPECT_EQ(alAbrir(2, "OK"), 1);
    EXPECT_EQ(alAbrir(0, "OK"), 0);
}

TEST_F(PanelFotovoltaico, CadaOptimizadorHabilitaSuMitad)
{
    elemento.acsOptimizadores = {L"uno", L"dos", L"dos"};
    elemento.csOptimizador = L"dos";
    EXPECT_EQ(Abrir({paso::Elegir{"tab", 1}, paso::Marcar{"bAutoDesconexion", true}, paso::Pulsar{"OK"},
                     paso::Poner{"dAutoDesconexion", L"0,01"}, paso::Leer{}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_FALSE(Estado(0, "bOptimizadorMPPT").bHabilitado);
    EXPECT_FALSE(Estado(0, "bOptimizador").bVisible);
    EXPECT_EQ(elemento.dDesconexion, 0.01);
    EXPECT_EQ(elemento.csOptimizador, L"dos");

    elemento.iOptimizador = 1;
    elemento.dDesconexion = 0.0;  // off, and so never at fault
    EXPECT_EQ(Abrir({paso::Elegir{"tab", 1}, paso::Leer{}, paso::Marcar{"bOptimizadorMPPT", true},
                     paso::Elegir{"csOptimizadorMPPT", CString(L"uno")}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(std::get<int>(Estado(0, "csOptimizadorMPPT").valor), 1);
    EXPECT_FALSE(Estado(0, "csOptimizadorMPPT").bHabilitado);
    EXPECT_FALSE(Estado(0, "bAutoDesconexion").bHabilitado);
    EXPECT_EQ(elemento.csOptimizador, L"uno");
    EXPECT_EQ(elemento.bMPPT, 1);

    elemento.iOptimizador = 2;
    elemento.csOptimizador = L"tres";
    EXPECT_EQ(Abrir({paso::Elegir{"tab", 1}, paso::Leer{}, paso::Pulsar{"OK"}}), 1);
    EXPECT_FALSE(Estado(0, "bAutoDesconexion").bHabilitado || Estado(0, "bOptimizadorMPPT").bHabilitado);
    EXPECT_EQ(elemento.csOptimizador, L"tres");
}

// The study's best tilt of Madrid's year is typed back; the simulation runs in any case.
TEST_F(PanelFotovoltaico, LoEstudiadoSoloCuentaDondeSePuedeTeclear)
{
    elemento.bClima = 1;
    for (const int bInclinacion : {0, 1}) {
        elemento.bInclinacion = bInclinacion;
        guion.emplace();
        guion->Dialogo(kDialogo, {paso::Pulsar{"ElegirInclinacion"}, paso::Leer{}, paso::Pulsar{"OK"}});
        guion->Dialogo(kEstudio,
                       {paso::Leer{}, paso::Poner{"dInclinacionActual", L"12,5"}, paso::Pulsar{"OK"}});
        EXPECT_EQ(Representar(), 1);
        EXPECT_EQ(Estado(0, "dInclinacion").bSoloLectura, bInclinacion == 0);
        EXPECT_EQ(Texto(0, "dInclinacion"), bInclinacion == 0 ? L"30,00" : L"12,50");
        EXPECT_EQ(elemento.dInclinacion, bInclinacion == 0 ? 30.0 : 12.5);
        EXPECT_EQ(guion->Texto(1, 0, "dInclinacionActual"), L"30,00");
    }
    elemento.dInclinacion = 1000.0;
    elemento.bInclinacion = 0;
    EXPECT_EQ(Abrir({paso::Pulsar{"OK"}}), 1);
    elemento.bInclinacion = 1;
    EXPECT_EQ(Abrir({paso::Pulsar{"OK"}}), 2);
}

TEST_F(PanelFotovoltaico, LaGraficaSigueALaInclinacionYALaFuente)
{
    elemento.bClima = 1;
    elemento.dInclinacion = 0.0;
    Abrir({paso::Leer{}, paso::Poner{"dInclinacion", L"35"}, paso::Leer{}});
    // Year's sums of the sky's definition: 2065.8947 kWh/m² on the horizontal, 2443.8166 at 35 degrees south.
    EXPECT_TRUE(
        Texto(0, "grafica")
            .starts_with(L"Radiación incidente (w/m²·día) Lat=40,40N Or:S T=25ºC Hr=50% RiTanual=2065894,"));
    EXPECT_TRUE(Texto(1, "grafica").ends_with(L" w/m²·día"));
    EXPECT_NE(Texto(1, "grafica").find(L"RiTanual=2443816,"), CString::npos);
    // The host's hours count with 2 alone; another number has none, and the same factor.
    elemento.horas->ad[0][0][12] = 500.0;
    for (const int iFuente : {2, 3, -1}) {
        elemento.iFuente = iFuente;
        Abrir({paso::Leer{}});
        const auto& series = std::get<CCtrlCurva2D>(Estado(0, "grafica").propio).aSeries;
        ASSERT_EQ(series.size(), 2U);
        EXPECT_EQ(series[0].adY[0], iFuente == 2 ? 500.0 : 0.0);
        EXPECT_EQ(series[1].adY[0], iFuente == 2 ? 500.0 : 0.0);  // flat: its factor is 1
    }
}

}  // namespace

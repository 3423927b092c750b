#include <gtest/gtest.h>

#include <quorvel/framework/CException.h>
#include <quorvel/unidades.h>

#include "fichero_catalogo.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

TEST(Convertidor, UnFalloEnUnaPaginaLaMuestra)
{
    FicheroCatalogo fichero("ZqConvertCCHE5.xml", &phEditarBaseConvertidorCC);
    fichero.Modelo("csModelo='c' dVInMin='9' dRendMax='0' dAncho='20000'");
    Guion guion;
    fichero.Editar(guion, "CDlgItemDatosConvertidor",
                   {paso::Pulsar{"OK"}, paso::Leer{{"tab"}}, paso::Poner{"dRendMax", L"95"},
                    paso::Poner{"Potencia de autoconsumo (W)", L"2"}, paso::Poner{"csModelo", L""},
                    paso::Pulsar{"OK"}, paso::Poner{"csModelo", L"d"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.Texto(1, 0, "tab"), L"Datos del sistema");
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{L"Indique un nombre válido para el Modelo"});
    EXPECT_EQ(fichero.Atributo("csModelo"), "d");
    EXPECT_EQ(fichero.Atributo("dRendMax"), "95.000000");
    EXPECT_EQ(fichero.Atributo("dAncho"), "20000.000000");  // sizes have no limits here
    EXPECT_EQ(fichero.Atributo("dPAutoCons"), "-");
    phGetBaseConvertidores().Vaciar();
}

TEST(Receptor, LaTensionMinimaNoPasaDeLaDeServicio)
{
    FicheroCatalogo fichero("ZqReceptorHE5.xml", &phEditarBaseReceptores);
    fichero.Modelo("csModelo='r' dRend='50' dVs='24' dVsMin='30' bIlum='0' iTipoRed='0'");
    Guion guion;
    fichero.Editar(guion, "CDlgItemDatosReceptor",
                   {paso::Pulsar{"OK"}, paso::Poner{"dVs", L"31"}, paso::Poner{"csModelo", L""},
                    paso::Marcar{"Receptor con caracter de luminaria", true},
                    paso::Elegir{"iTipoRed", CString(L"Red de CA")}, paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.presentador.transcripciones[1].iResultado, ui::Dialogo::ok);
    EXPECT_EQ(fichero.Atributo("dVs"), "31.000000");
    EXPECT_EQ(fichero.Atributo("bIlum"), "1");
    EXPECT_EQ(fichero.Atributo("iTipoRed"), "1");
    EXPECT_EQ(fichero.Atributo("csModelo"), "");  // an empty name passes

    fichero.Modelo("csModelo='r' dRend='0'");
    Guion otro;
    fichero.Editar(otro, "CDlgItemDatosReceptor", {paso::Pulsar{"OK"}});
    EXPECT_EQ(otro.presentador.transcripciones[1].csRechazo, L"Introduzca un número entre 1 y 10000.");
    // Read as it stands, not as a fresh record has it.
    EXPECT_EQ(phGetBaseReceptores().BuscarModelo(L"r")->dRend, 0);

    Guion lectura;
    lectura.Dialogo("CDlgVisorXML", {paso::Abrir{"arbol", 1, 0}});
    lectura.Dialogo("CDlgItemDatosReceptor", {paso::Leer{}});
    phEditarBaseReceptores(1);
    EXPECT_FALSE(lectura.Estado(1, 0, "bIlum").bHabilitado);
    phGetBaseReceptores().Vaciar();
}

// The one lookup that minds the family.
TEST(Receptor, GetDataFamiliaDistingueLaFamilia)
{
    FicheroCatalogo fichero("r.xml", &phEditarBaseReceptores);
    phCargarBaseReceptores(
        fichero.Modelo("csModelo='r' dP='1'/></Familia><Familia nombre='G'/><Familia nombre='G'>"
                       "<Modelo csModelo='r' dP='2' dVs='24' bIlum='1'"));
    const CBaseReceptores& base = phGetBaseReceptores();
    double dP = -1, dVs = -1, dVsMin = -1, dRend = -1;
    int iTipoRed = -1, bIlum = -1;
    EXPECT_EQ(base.GetDataFamilia(L"r", L"g", dP, dVs, dVsMin, dRend, iTipoRed, bIlum), 0);
    EXPECT_EQ(dP, -1);
    EXPECT_EQ(base.GetDataFamilia(L"r", L"G", dP, dVs, dVsMin, dRend, iTipoRed, bIlum), 1);
    EXPECT_EQ(dP, 2);
    EXPECT_EQ(bIlum, 1);
    EXPECT_EQ(base.GetDataFamilia(L"F#r", L"G", dP, dVs, dVsMin, dRend, iTipoRed, bIlum), 1);
    phGetBaseReceptores().Vaciar();
}

TEST(Unidades, SeEligenYSoloCambiaLoQueSeVe)
{
    FicheroCatalogo fichero("ZqInversorHE5.xml", &phEditarBaseInversores);
    fichero.Modelo("csModelo='i' dAncho='300' dAlto='1000' dPeso='2.5' dRendMax='96' dFP='1'");
    ElegirUnidad(L"Dimensiones", L"cm");
    ElegirUnidad(L"Masa", L"g");
    EXPECT_THROW(ElegirUnidad(L"Dimensiones", L"kg"), CInvalidArgException);
    EXPECT_THROW(ElegirUnidad(L"Tiempo", L"s"), CInvalidArgException);
    Guion guion;
    fichero.Editar(guion, "CDlgItemDatosInversor",
                   {paso::Leer{{"Anchura (cm):", "Peso (g):", "dAlto"}}, paso::Poner{"dAncho", L"1000,1"},
                    paso::Pulsar{"OK"}, paso::Poner{"dAncho", L"35,5"}, paso::Pulsar{"OK"}});
    ElegirUnidad(L"Dimensiones", L"mm");
    ElegirUnidad(L"Masa", L"kg");
    EXPECT_EQ(guion.Texto(1, 0, "Anchura (cm):"), L"30,00");
    EXPECT_EQ(guion.Texto(1, 0, "Peso (g):"), L"2500,00");
    EXPECT_EQ(guion.Texto(1, 0, "dAlto"), L"100,00");
    EXPECT_EQ(fichero.Atributo("dAncho"), "355.000000");
    EXPECT_EQ(fichero.Atributo("dPeso"), "2.500000");
    phGetBaseInversores().Vaciar();
}

TEST(Catalogos, CargarTodosAnadeALaListaSoloLosQueFallan)
{
    CStringArray lista{L"otro"};
    phSetPathHE5BD(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/").c_str());
    EXPECT_EQ(phCargarBasesHE5(lista), 1);
    EXPECT_EQ(lista, CStringArray{L"otro"});
    EXPECT_FALSE(phGetBaseMicroInversores().EstaVacia());

    phSetPathHE5BD(L"/no/hay/");
    EXPECT_EQ(phCargarBasesHE5(lista), 0);
    phSetPathHE5BD(L"");
    const CStringArray esperada{L"otro",
                                L"/no/hay/ZqModFotoHE5.xml",
                                L"/no/hay/ZqAcumula2HE5.xml",
                                L"/no/hay/ZqInversorHE5.xml",
                                L"/no/hay/ZqMicroInversorHE5.xml",
                                L"/no/hay/ZqConvertCCHE5.xml",
                                L"/no/hay/ZqReceptorHE5.xml",
                                L"/no/hay/ZqFactorKHE5.xml"};
    EXPECT_EQ(lista, esperada);
    EXPECT_TRUE(phGetBasePanelFoto().EstaVacia());
}

}  // namespace

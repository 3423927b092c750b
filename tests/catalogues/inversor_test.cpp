#include <gtest/gtest.h>

#include "fichero_catalogo.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kDialogo = "CDlgItemDatosInversor";

class Inversor : public ::testing::Test {
protected:
    ~Inversor() override
    {
        phGetBaseInversores().Vaciar();
        phGetBaseMicroInversores().Vaciar();
    }

    const CBaseInversorModelo& Cargar(const std::string& atributos)
    {
        EXPECT_EQ(phCargarBaseInversores(fichero.Modelo(atributos)), 1);
        return *phGetBaseInversores().BuscarModelo(L"i");
    }

    FicheroCatalogo fichero{"ZqInversorHE5.xml", &phEditarBaseInversores};
    Guion guion;
};

TEST_F(Inversor, LaLecturaLimpiaLosFicherosViejos)
{
    const CBaseInversorModelo& m = Cargar(
        "csModelo='i' iUsoPrincipal='-1' dPCCMax='-5' dVMPPMax='0.0000005' dICCMax='12.5' dICCMin='-1' "
        "iNumMPPT='3' iNumEntradas='0' iTipoSalida='-2' dFP='0.9' csICCMinMPPT='1/2'");
    EXPECT_EQ(m.iUsoPrincipal, 0);
    EXPECT_EQ(m.dPCCMax, 0);
    EXPECT_EQ(m.dVMPPMax, 0);  // within the tolerance of zero
    EXPECT_EQ(m.dICCMin, 0);
    EXPECT_EQ(m.iNumEntradas, 1);
    EXPECT_EQ(m.iTipoSalida, 0);
    EXPECT_EQ(m.dFP, 0.9);
    EXPECT_EQ(m.csICCMaxMPPT, L"12,50/12,50/12,50");
    EXPECT_EQ(m.csICCMinMPPT, L"0,00/0,00/0,00");  // two values for three trackers
    // No file makes a list that exhausts memory.
    EXPECT_EQ(Cargar("csModelo='i' iNumMPPT='2000000000' iNumEntradas='2000000000'").iNumMPPT, 10000);
}

TEST_F(Inversor, LasListasNoSeHeredanDelModeloAnterior)
{
    Cargar("csModelo='a' iNumMPPT='2' csICCMaxMPPT='7/8' dICCMax='7'/><Modelo csModelo='i'");
    const CBaseInversorModelo& m = *phGetBaseInversores().BuscarModelo(L"i");
    EXPECT_EQ(m.iNumMPPT, 2);
    EXPECT_EQ(m.csICCMaxMPPT, L"7,00/7,00");
}

TEST_F(Inversor, LasCorrientesPorSeguidorSalenDeLaLista)
{
    Cargar("csModelo='i' iNumMPPT='2' csICCMaxMPPT='12,5/9' dICCMax='12.5' dICCMin='0.1' dPeso='40'");
    CString csFamilia = L"-", csPrecio, csMax = L"-", csMin = L"-";
    int i[4] = {};
    double d[16] = {};
    CArray<double, double&> max{1.0}, min{1.0};
    const auto pedir = [&](const wchar_t* csId) {
        return phGetDataInversor2(csId, csFamilia, i[0], i[1], d[0], d[1], d[2], d[3], d[4], max, min, d[5],
                                  i[2], i[3], d[6], d[7], d[8], d[9], d[10], d[11], d[12], d[13], d[14], d[15],
                                  d[0], csPrecio);
    };
    EXPECT_EQ(pedir(L"i"), 1);
    EXPECT_EQ(max, (CArray<double, double&>{12.5, 9.0}));
    EXPECT_EQ(min, (CArray<double, double&>{0.1, 0.1}));
    EXPECT_EQ(d[0], 40);
    csFamilia = L"-";
    EXPECT_EQ(pedir(L"no"), 0);
    EXPECT_TRUE(max.IsEmpty() && min.IsEmpty());  // emptied all the same
    EXPECT_EQ(csFamilia, L"-");
    EXPECT_EQ(phGetDataInversorCorrientesMPPT(L"i", csMax, csMin), 1);
    EXPECT_EQ(csMax, L"12,5/9");
    EXPECT_EQ(phGetDataInversorCorrientesMPPT(L"no", csMax, csMin), 0);
    EXPECT_EQ(csMax + csMin, L"");
}

// ---------------------------------------------------------------------------------------------------
// Dialog
// ---------------------------------------------------------------------------------------------------

constexpr const char* kViejo =
    "csModelo='i' dICCMax='10' dICCMin='1' dFP='0.9' dRendMax='97' dVSTCMax='5' nColor='3'";

TEST_F(Inversor, UnFicheroViejoGanaLosAtributosQueLeFaltan)
{
    fichero.Modelo(kViejo);
    fichero.Editar(guion, kDialogo,
                   {paso::Poner{"iNumMPPT", L"2"}, paso::Poner{"iNumEntradas", L"4"},
                    paso::Poner{"csICCMaxMPPT", L" 11,5 / 9 "}, paso::Poner{"csICCMinMPPT", L"1/1"},
                    paso::Elegir{"iTipoSalida", 1}, paso::Pulsar{"OK"}});
    EXPECT_EQ(fichero.Atributo("csICCMaxMPPT"), "11,5/9");
    EXPECT_EQ(fichero.Atributo("dICCMax"), "11.500000");  // the first of the list
    EXPECT_EQ(fichero.Atributo("iNumMPPT"), "2");
    EXPECT_EQ(fichero.Atributo("iNumEntradas"), "4");
    EXPECT_EQ(fichero.Atributo("dIScMax"), "0.000000");
    EXPECT_EQ(fichero.Atributo("iTipoSalida"), "-");  // changed only when present
    EXPECT_EQ(fichero.Atributo("dVSTCMax"), "5");
    EXPECT_EQ(fichero.Atributo("nColor"), "3");
}

TEST_F(Inversor, UnModeloNuevoTieneFactorYRendimientoPropuestos)
{
    fichero.Modelo(kViejo);
    guion.Dialogo(kDialogo, {paso::Leer{{"dFP", "dRendMax", "csICCMaxMPPT", "csFabricante"}},
                             paso::Pulsar{"OK"}, paso::Poner{"csModelo", L"nuevo"}, paso::Pulsar{"OK"}});
    fichero.Visor(guion, {paso::Elegir{"arbol", 0}, paso::Pulsar{"Nuevo"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.Texto(1, 0, "dFP"), L"1,00");
    EXPECT_EQ(guion.Texto(1, 0, "dRendMax"), L"99,00");
    EXPECT_EQ(guion.Texto(1, 0, "csICCMaxMPPT"), L"0,00");
    EXPECT_TRUE(guion.Estado(1, 0, "csFabricante").bSoloLectura);
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{L"Indique un nombre válido para el Modelo"});
    EXPECT_EQ(fichero.Atributo("csModelo"), "nuevo");
    EXPECT_EQ(fichero.Atributo("dRendEuro"), "0");
}

TEST_F(Inversor, LasListasMalasSeDicenLasDosYElFocoVaALaPrimera)
{
    fichero.Modelo(kViejo);
    fichero.Editar(guion, kDialogo,
                   {paso::Elegir{"tab", 2}, paso::Poner{"iNumMPPT", L"2"}, paso::Poner{"iNumEntradas", L"2"},
                    paso::Pulsar{"OK"}, paso::Leer{{"tab"}}, paso::Poner{"csICCMaxMPPT", L"1/2"},
                    paso::Poner{"csICCMinMPPT", L"1/x"}, paso::Pulsar{"OK"}});
    const CString csComun =
        L"Las intensidades de entrada deben contener un valor por cada MPPT, separados por '/'.";
    EXPECT_EQ(
        guion.Mensajes(),
        (std::vector<CString>{csComun + L"\n\nCorriente máxima: se esperaban 2 valores y se han indicado 1" +
                                  L"\n\nCorriente mínima: se esperaban 2 valores y se han indicado 1",
                              csComun + L"\n\nCorriente mínima: I2 contiene caracteres no válidos"}));
    EXPECT_EQ(guion.presentador.mostrados[0].mensaje.icono, ui::Icono::error);
    EXPECT_EQ(guion.Texto(1, 0, "tab"), L"Entrada CC");
    EXPECT_EQ(fichero.Atributo("csModelo"), "-");  // the file, in single quotes, was never written
}

TEST_F(Inversor, LaIndicacionSigueAlNumeroDeSeguidores)
{
    fichero.Modelo(kViejo);
    fichero.Editar(
        guion, kDialogo,
        {paso::Leer{{"csIndicacionMPPT"}}, paso::Teclear{"iNumMPPT", L"4"}, paso::Leer{{"csIndicacionMPPT"}},
         paso::Teclear{"iNumMPPT", L"101"}, paso::Leer{{"csIndicacionMPPT"}}, paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.Texto(1, 0, "csIndicacionMPPT"), L"Introduzca 1 valor de I máx. y 1 de I mín.");
    const CString csCuatro = L"Introduzca 4 valores para la I máx. e I mín., separados por '/'.";
    EXPECT_EQ(guion.Texto(1, 1, "csIndicacionMPPT"), csCuatro);
    EXPECT_EQ(guion.Texto(1, 2, "csIndicacionMPPT"), csCuatro);
    EXPECT_EQ(guion.Estado(1, 0, "csIndicacionMPPT").color, 0x808080U);
    EXPECT_EQ(guion.presentador.transcripciones[1].csRechazo, L"Introduzca un número entre 1 y 100.");
}

TEST_F(Inversor, EnAisladaCambianLosRotulosYNoSeCompruebaLoQueNoSeVe)
{
    fichero.Modelo(kViejo);
    fichero.Editar(guion, kDialogo,
                   {paso::Poner{"dFP", L"0"}, paso::Poner{"csICCMaxMPPT", L"nada"},
                    paso::Elegir{"iUsoPrincipal", CString(L"Instalación aislada")},
                    paso::Leer{{"dVCCMax", "csICCMinMPPT", "dIScMax", "csIndicacionMPPT", "dFP", "dICAMin"}},
                    paso::Poner{"Potencia de autoconsumo (W):", L"6"},
                    paso::Poner{"Rango tensiones entrada (V) [max.- min.]:", L"64"}, paso::Pulsar{"OK"}});
    for (const char* oculto : {"dVCCMax", "csICCMinMPPT", "dIScMax", "csIndicacionMPPT", "dFP", "dICAMin"})
        EXPECT_FALSE(guion.Estado(1, 0, oculto).bVisible) << oculto;
    EXPECT_FALSE(guion.Estado(1, 0, "csICCMinMPPT").bHabilitado);
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{});
    EXPECT_EQ(fichero.Atributo("dFP"), "0.000000");
    EXPECT_EQ(fichero.Atributo("dICCMax"), "10.000000");

    // Stored as stand-alone it opens as such; back on the grid the labels are the short ones.
    fichero.Modelo("csModelo='i' iUsoPrincipal='1' dRendMax='90' dFP='1'");
    Guion vuelta;
    fichero.Editar(vuelta, kDialogo,
                   {paso::Poner{"Potencia de autoconsumo (W):", L"5"}, paso::Elegir{"iUsoPrincipal", 0},
                    paso::Poner{"Corriente máx. por MPPT (A):", L"8"}, paso::Leer{{"dFP", "dVCCMin"}},
                    paso::Poner{"dFP", L"1,01"}, paso::Pulsar{"OK"}, paso::Leer{{"tab"}}});
    EXPECT_TRUE(vuelta.Estado(1, 0, "dFP").bVisible);
    EXPECT_TRUE(vuelta.Estado(1, 0, "dVCCMin").bHabilitado);
    EXPECT_EQ(vuelta.presentador.transcripciones[1].csRechazo, L"Introduzca un número entre 0,1 y 1.");
    EXPECT_EQ(vuelta.Texto(1, 1, "tab"), L"Salida CA");  // the page at fault
}

// ---------------------------------------------------------------------------------------------------
// OND import
// ---------------------------------------------------------------------------------------------------

const std::string kOnd =
    "PVObject_=pvGInverter\n  Manufacturer=Casa\n  Model=Uno\n  PNomDC=5200\n  VMPPMax=800\n  VMppMin=200\n"
    "  VAbsMax=1000\n  IDCMax=12.5\n  NbMPPT=2\n  NbInputs=0\n  PMaxOUT=5500\n  VOutConv=400\n"
    "  MonoTri=Tri\n  IMaxAC=8.5\n  EfficEuro=98.1\n  EfficMax=98\n  Width=0.4\n  Height=0.6\n  Depth=0.2\n"
    "  Weight=20\n";

TEST_F(Inversor, ElOndLlenaLaFichaConSusDosRarezas)
{
    fichero.Modelo("csModelo='i' iUsoPrincipal='1' dVCCMin='150' dICCMin='0.5' dRendMax='90' dFP='1'");
    const CString csOnd = fichero.Fichero("i.ond", kOnd);
    fichero.Editar(
        guion, kDialogo,
        {paso::Fichero{csOnd}, paso::Pulsar{"Importar archivo .OND de PVSyst ..."},
         paso::Leer{{"csFabricante", "dPCCMax", "dPCANom", "iNumEntradas", "csICCMaxMPPT", "csICCMinMPPT",
                     "dVCCMin", "dFP", "dLargo", "dAlto", "iTipoSalida", "csIndicacionMPPT"}},
         paso::Pulsar{"OK"}, paso::Poner{"iNumEntradas", L"2"}, paso::Pulsar{"OK"}});
    const auto texto = [&](const char* campo) { return guion.Texto(1, 0, campo); };
    EXPECT_EQ(texto("csFabricante"), L"Casa");
    EXPECT_EQ(texto("dPCCMax"), L"5200,00");
    EXPECT_EQ(texto("dPCANom"), L"5200,00");  // the DC power again
    EXPECT_EQ(texto("iNumEntradas"), L"1");
    EXPECT_EQ(texto("csICCMaxMPPT"), L"12,50/12,50");
    EXPECT_EQ(texto("csICCMinMPPT"), L"0,50/0,50");
    EXPECT_EQ(texto("dVCCMin"), L"150,00");  // the file doesn't tell it
    EXPECT_EQ(texto("dFP"), L"0,98");        // the European efficiency, 0.981
    EXPECT_EQ(texto("dLargo"), L"600,00");
    EXPECT_EQ(texto("dAlto"), L"200,00");
    EXPECT_EQ(texto("iTipoSalida"), L"Trifase");
    EXPECT_TRUE(guion.Estado(1, 0, "csICCMaxMPPT").bVisible);  // on the grid now
    EXPECT_EQ(texto("csIndicacionMPPT"), L"Introduzca 2 valores para la I máx. e I mín., separados por '/'.");
    EXPECT_EQ(guion.presentador.transcripciones[1].csRechazo, std::nullopt);
    EXPECT_EQ(phGetBaseInversores().GetIdModelo(L"Uno"), L"F#Uno");
}

TEST_F(Inversor, ElOndConservaLoTecleadoQueNoDice)
{
    fichero.Modelo(kViejo);
    const CString csOnd = fichero.Fichero("i.ond", kOnd);
    fichero.Editar(guion, kDialogo,
                   {paso::Poner{"csCodPrecio", L"P7"}, paso::Poner{"dVCCMin", L"130"},
                    paso::Poner{"csICCMinMPPT", L"0,7"}, paso::Poner{"dPCCMax", L"1"}, paso::Fichero{csOnd},
                    paso::Pulsar{"Importar archivo .OND de PVSyst ..."}, paso::Leer{}, paso::Pulsar{"Cancel"}});
    EXPECT_EQ(guion.Texto(1, 0, "csCodPrecio"), L"P7");
    EXPECT_EQ(guion.Texto(1, 0, "dVCCMin"), L"130,00");
    EXPECT_EQ(guion.Texto(1, 0, "csICCMinMPPT"), L"0,70/0,70");  // the one current, for its two trackers
    EXPECT_EQ(guion.Texto(1, 0, "dPCCMax"), L"5200,00");
}

TEST_F(Inversor, ElMicroinversorTieneCorrientesSencillas)
{
    FicheroCatalogo micro("ZqMicroInversorHE5.xml", &phEditarBaseMicroInversores);
    micro.Modelo("csModelo='i' dICCMax='10' iNumMPPT='1' iNumEntradas='1' dFP='1' dRendMax='96'");
    const CString csOnd = micro.Fichero("i.ond", kOnd);
    micro.Editar(guion, "CDlgItemDatosMicroInversor",
                 {paso::Fichero{csOnd}, paso::Pulsar{"Importar archivo .OND de PVSyst ..."}, paso::Pulsar{"OK"},
                  paso::Leer{{"tab"}}, paso::Poner{"Número de entradas:", L"2"}, paso::Poner{"dICCMin", L"1"},
                  paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.presentador.transcripciones[1].iResultado, ui::Dialogo::ok);
    EXPECT_EQ(micro.Atributo("dICCMax"), "12.500000");
    EXPECT_EQ(micro.Atributo("dICCMin"), "-");  // nothing is added here
    EXPECT_EQ(micro.Atributo("dFP"), "0.980000");
    EXPECT_EQ(micro.Atributo("iNumEntradas"), "2");
}

}  // namespace

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/framework.h>

#include "catalogues/dialogs/panel_foto_dialogo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

class PanelFoto : public ::testing::Test {
protected:
    int Cargar(const std::string& contenido)
    {
        return phCargarBasePanelesFotovoltaicos(
            carpeta.Escribir("m.xml", "<Q><TablaFamilias>" + contenido + "</TablaFamilias></Q>"));
    }

    static CString Familia(const CString& csId)
    {
        CString csFamilia = L"-";
        const int iExito = phGetFabricantePanelFoto(csId, csFamilia);
        EXPECT_EQ(iExito == 1, csFamilia != L"-");
        return csFamilia;
    }

    ~PanelFoto() override { phGetBasePanelFoto().Vaciar(); }

    CarpetaTemporal carpeta;
};

TEST_F(PanelFoto, LoQueFaltaSeHeredaDelModeloAnterior)
{
    ASSERT_EQ(
        Cargar("<Familia nombre='A'><Modelo csModelo='a' dPmpm='250' iNs='72' nColor='65537' csCodPrecio='p'/>"
               "<Modelo csModelo='b' dPmpm='nada'/></Familia><Familia><Modelo iNp='3'/><Otro/></Familia>"),
        1);
    const CBasePanelFotoModelo* b = phGetBasePanelFoto().BuscarModelo(L"b");
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->dPmpm, 0);
    EXPECT_EQ(b->iNs, 72);
    EXPECT_EQ(b->nColor, 1);  // the low 16 bits
    EXPECT_EQ(b->csCodPrecio, L"p");
    EXPECT_EQ(b->dVmpm, 0);  // held values start at 0, not at a fresh record's
    // The nameless family and its nameless model carry the names before them.
    const auto& ultima = static_cast<CBasePanelFotoFamilia&>(phGetBasePanelFoto().aFamilias[1]);
    EXPECT_EQ(ultima.csNombre, L"A");
    EXPECT_EQ(ultima.aModelos[0].csModelo, L"b");
    EXPECT_EQ(ultima.aModelos[0].iNp, 3);
}

TEST_F(PanelFoto, LaPrimeraFamiliaConEseNombreGana)
{
    ASSERT_EQ(Cargar("<Familia nombre='A'><Modelo csModelo='X'/></Familia>"
                     "<Familia nombre='B'><Modelo csModelo='X'/><Modelo csModelo='Y'/><Modelo "
                     "csModelo='B#X'/></Familia>"),
              1);
    for (const wchar_t* csId : {L"X", L"A#X", L"B#X", L"nadie#X", L"#X#Y"})
        EXPECT_EQ(Familia(csId), L"A") << CadenaUtf8(csId);
    EXPECT_EQ(Familia(L"Z#Y#X"), L"B");
    EXPECT_EQ(Familia(L"x"), L"-");
    EXPECT_EQ(Familia(L""), L"-");
    EXPECT_EQ(phGetBasePanelFoto().GetIdModelo(L"Y"), L"B#Y");
    EXPECT_EQ(phGetBasePanelFoto().GetIdModelo(L"no"), L"");

    CString csId = L"antes";
    EXPECT_EQ(phCadenaIdentificacionModeloPanelFoto(L"B#Y", csId), 1);
    EXPECT_EQ(csId, L"B#B#Y");
    EXPECT_EQ(phCadenaIdentificacionModeloPanelFoto(L"no", csId), 0);
    EXPECT_EQ(csId, L"");
}

// A key whose whole text is itself a name, beside one whose part is: the earlier in the file wins, as in
// a walk through it.
TEST_F(PanelFoto, ElIndiceDaElPrimeroDelFichero)
{
    ASSERT_EQ(Cargar("<Familia nombre='A'><Modelo csModelo='q#z' iNp='1'/></Familia><Familia "
                     "nombre='B'><Modelo csModelo='z' "
                     "iNp='2'/></Familia>"),
              1);
    EXPECT_EQ(Familia(L"q#z"), L"A");
    EXPECT_EQ(Familia(L"B#z"), L"B");
    ASSERT_EQ(Cargar("<Familia nombre='A'><Modelo csModelo=''/></Familia>"), 1);
    EXPECT_EQ(Familia(L"A#"), L"A");
    EXPECT_EQ(Familia(L""), L"A");
}

TEST_F(PanelFoto, LosGettersEscribenSoloSiExiste)
{
    ASSERT_EQ(Cargar("<Familia nombre='A'><Modelo csModelo='h' dPmpm='250' dVsmax='1000' dH='1640' dB='992' "
                     "dA='40' dP='19' "
                     "iNs='72' iTipoCelula='3'/></Familia>"),
              1);
    CString csFamilia = L"-", csPrecio = L"-";
    double d[16];
    std::ranges::fill(d, -1.0);
    int iNp = -1, iNs = -1, iTipo = -1;
    EXPECT_EQ(phGetDataPanelFoto(L"no", csFamilia, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7], d[8], d[9],
                                 iNp, iNs, d[10], iTipo, d[11], d[12], d[13], d[14], csPrecio),
              0);
    EXPECT_EQ(csFamilia, L"-");
    EXPECT_EQ(d[0], -1.0);
    EXPECT_EQ(phGetDataPanelFoto(L"h", csFamilia, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7], d[8], d[9],
                                 iNp, iNs, d[10], iTipo, d[11], d[12], d[13], d[14], csPrecio),
              1);
    EXPECT_EQ(d[0], 1000);
    EXPECT_EQ(d[1], 250);
    EXPECT_EQ(iNs, 200);  // whatever is stored, from technology 3 on
    EXPECT_EQ(d[11], 1640);
    EXPECT_EQ(phGetDimPanelFoto(L"A#h", csFamilia, d[0], d[1], d[2], d[3]), 1);
    EXPECT_EQ(d[3], 19);
}

TEST_F(PanelFoto, FuncionesPequenas)
{
    CString cs = L"x";
    EXPECT_STREQ(phGetCsTipoCelula(2, cs), L"Si Amorfo");
    EXPECT_STREQ(phGetCsTipoCelula(4, cs), L"");
    EXPECT_STREQ(phGetCsTipoCelula(-1, cs), L"");
    EXPECT_DOUBLE_EQ(phTranslateValor(1, 125, 0), 12.5);
    EXPECT_DOUBLE_EQ(phTranslateValor(1, 125, -3), 12.5);
    EXPECT_DOUBLE_EQ(phTranslateValor(1, -125, 37.8), -125 / 1000.0 * 100 / 37.8);
    EXPECT_DOUBLE_EQ(phTranslateValor(0, 12.5, 0), 0);
    EXPECT_DOUBLE_EQ(phTranslateValor(0, -0.4, 250), -1000);
}

// ---------------------------------------------------------------------------------------------------
// Dialog
// ---------------------------------------------------------------------------------------------------

CBasePanelFotoModelo Valido()
{
    CBasePanelFotoModelo m;
    m.csModelo = L"FX-250";
    m.dPmpm = 250;
    m.dVmpm = 30.5;
    m.dImpm = 8.2;
    m.dVoc = 37.8;
    m.dIsc = 8.7;
    m.dCTVoc = -125;
    return m;
}

TEST(PanelFotoDialogo, SeAbreConPorcentajesYUnidades)
{
    Guion guion;
    guion.Dialogo("CDlgItemDatosPanelFoto",
                  {paso::Leer{}, paso::Elegir{"iUnidadVoc", 0}, paso::Leer{{"dCTVoc"}},
                   paso::Elegir{"iUnidadVoc", CString(L"%/ºC")}, paso::Leer{{"dCTVoc"}}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(guion.Texto(0, 0, "dCTVoc"), L"-0,331");  // -125/1000 · 100/37.8
    EXPECT_EQ(guion.Texto(0, 0, "dPmpm"), L"250,00");
    EXPECT_EQ(guion.Texto(0, 0, "dH"), L"100");
    EXPECT_EQ(guion.Texto(0, 0, "iTipoCelula"), L"policristalino");
    EXPECT_EQ(guion.Texto(0, 1, "dCTVoc"), L"-125,000");
    EXPECT_EQ(guion.Texto(0, 2, "dCTVoc"), L"-0,331");
    EXPECT_EQ(dialogo.datos.dCTVoc, -125);  // showing changes nothing
}

TEST(PanelFotoDialogo, UnCoeficienteSeTomaAlSalirConLaReferenciaRecienTecleada)
{
    Guion guion;
    guion.Dialogo("CDlgItemDatosPanelFoto",
                  {paso::Poner{"dPmpm", L"300"}, paso::Poner{"dCTPmpm", L"-0.4"}, paso::Leer{{"dCTPmpm"}},
                   paso::Poner{"dPmpm", L"400"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "dCTPmpm"), L"-0,400");
    EXPECT_DOUBLE_EQ(dialogo.datos.dCTPmpm, -1200);  // of 300 W; a later power doesn't move it
    EXPECT_EQ(dialogo.datos.dPmpm, 400);
}

// What is typed counts, left or not: the reference when a unit is chosen, the coefficient at OK.
TEST(PanelFotoDialogo, LaUnidadYElAceptarMiranLoTecleado)
{
    Guion guion;
    guion.Dialogo("CDlgItemDatosPanelFoto",
                  {paso::Elegir{"iUnidadVoc", 0}, paso::Teclear{"dVoc", L"50"}, paso::Elegir{"iUnidadVoc", 1},
                   paso::Leer{{"dCTVoc"}}, paso::Teclear{"dCTIsc", L"0,05"}, paso::Elegir{"iUnidadIsc", 0},
                   paso::Leer{{"dCTIsc"}}, paso::Teclear{"dCTPmpm", L"-0,4"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "dCTVoc"), L"-0,250");  // -125 mV/ºC of 50 V
    EXPECT_EQ(guion.Texto(0, 1, "dCTIsc"), L"4,350");   // 0,05 % of 8,7 A, mA/ºC
    EXPECT_DOUBLE_EQ(dialogo.datos.dCTVoc, -125);
    EXPECT_DOUBLE_EQ(dialogo.datos.dCTPmpm, -1000);  // 0,4 % of 250 W
}

// A coefficient that waits for another field to be put right isn't forgotten.
TEST(PanelFotoDialogo, UnCoeficienteEsperaAQueLosDemasCamposSeanBuenos)
{
    Guion guion;
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Teclear{"dIsc", L"nada"}, paso::Poner{"dCTVoc", L"-0,3"},
                                             paso::Poner{"dIsc", L"9"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok);
    EXPECT_DOUBLE_EQ(dialogo.datos.dCTVoc, 37.8 / 100 * -300);
}

TEST(PanelFotoDialogo, ElRechazoNombraLosLimites)
{
    Guion guion;
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Poner{"dPmpm", L"15000,1"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.presentador.transcripciones[0].csRechazo, L"Introduzca un número entre 0 y 15000.");
    EXPECT_EQ(dialogo.foco->nombre, "dPmpm");
    EXPECT_EQ(dialogo.datos.dPmpm, 250);

    Guion otro;
    otro.Dialogo("CDlgItemDatosPanelFoto", {paso::Poner{"Peso (kg):", L"mucho"}, paso::Pulsar{"OK"},
                                            paso::Poner{"dP", L"20"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto segundo(Valido(), false);
    EXPECT_EQ(segundo.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(otro.presentador.transcripciones[0].csRechazo, std::nullopt);
    EXPECT_EQ(segundo.datos.dP, 20);
}

TEST(PanelFotoDialogo, LasComprobacionesVanEnOrden)
{
    Guion guion;
    guion.Dialogo(
        "CDlgItemDatosPanelFoto",
        {paso::Poner{"csModelo", L""}, paso::Poner{"dPmpm", L"0"}, paso::Pulsar{"OK"},
         paso::Poner{"csModelo", L"n"}, paso::Pulsar{"OK"}, paso::Poner{"dPmpm", L"0,000001"},
         paso::Pulsar{"OK"}, paso::Poner{"dPmpm", L"1"}, paso::Poner{"dA", L"0"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::cancelado);
    const CString csPotencia = L"La potencia máxima (Pmpm), no puede tener un valor nulo";
    EXPECT_EQ(guion.Mensajes(),
              (std::vector<CString>{L"El modelo del panel, necesita un nombre válido", csPotencia, csPotencia,
                                    L"La canto del panel (A), no puede tener un valor nulo"}));
    EXPECT_EQ(guion.presentador.mostrados[0].mensaje.icono, ui::Icono::advertencia);
    EXPECT_EQ(dialogo.foco->nombre, "dA");
}

TEST(PanelFotoDialogo, EnSoloLecturaNadaSePuedeCambiar)
{
    Guion guion;
    guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Leer{}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), true);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::cancelado);
    ASSERT_TRUE(guion.presentador.csErrorGuion);
    EXPECT_NE(guion.presentador.csErrorGuion->find(L"OK"), CString::npos);
    EXPECT_TRUE(guion.Estado(0, 0, "dPmpm").bSoloLectura);
    EXPECT_FALSE(guion.Estado(0, 0, "iTipoCelula").bHabilitado);
    EXPECT_FALSE(guion.Estado(0, 0, "Importar archivo .PAN de PVSyst ...").bHabilitado);
    EXPECT_TRUE(guion.Estado(0, 0, "Curvas I-V y P-A a T constante").bHabilitado);
    EXPECT_EQ(dialogo.csCancelar, L"&Cerrar");
}

// ---------------------------------------------------------------------------------------------------
// PAN import
// ---------------------------------------------------------------------------------------------------

const std::string kPan =
    "PVObject_=pvModule\n  Manufacturer=Fotónica\n  Model=FX 250\n  Technol=mtSiMono\n  PNom=250.0\n  "
    "Vmp=30.5\n"
    "  Imp=8.2\n  Voc=37.8\n  Isc=8.7\n  Width=0.992\n  Height=1.64\n  Depth=0.04\n  Weight=19\n  muISC=4.5\n"
    "  muVocSpec=-125.0\n  muPmpReq=-0.40\n  NCelS=60\n  NCelP=1\n  VMaxUL=600";

class PanelFotoPan : public PanelFoto {
protected:
    CBasePanelFotoModelo Importar(const std::string& texto, Guion& guion, bool existe = true)
    {
        const CString csRuta = carpeta.Escribir("m.pan", texto);
        guion.Dialogo("CDlgItemDatosPanelFoto",
                      {paso::Fichero{existe ? csRuta : csRuta + L"x"},
                       paso::Pulsar{"Importar archivo .PAN de PVSyst ..."}, paso::Leer{}});
        CDlgItemDatosPanelFoto dialogo(Valido(), false);
        dialogo.Mostrar();
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
        return dialogo.datos;
    }
};

TEST_F(PanelFotoPan, SeImportaConCualquierFinDeLinea)
{
    for (const char* fin : {"\n", "\r\n", "\r"}) {
        std::string texto;
        for (char c : kPan)
            c == '\n' ? texto += fin : texto += c;
        Guion guion;
        const auto m = Importar(texto, guion);
        EXPECT_EQ(m.csModelo, L"FX 250");
        EXPECT_EQ(m.iTipoCelula, 0);
        EXPECT_DOUBLE_EQ(m.dH, 1640);
        EXPECT_DOUBLE_EQ(m.dB, 992);
        EXPECT_DOUBLE_EQ(m.dA, 40);
        EXPECT_DOUBLE_EQ(m.dCTPmpm, -1000);
        EXPECT_EQ(m.dCTVoc, -125);
        EXPECT_EQ(m.dVsmax, 600);  // its line has no end of its own
        EXPECT_EQ(m.iNs, 60);
        EXPECT_EQ(guion.Texto(0, 0, "dCTPmpm"), L"-0,400");
        EXPECT_EQ(guion.Texto(0, 0, "dH"), L"1640");
    }
}

TEST_F(PanelFotoPan, LasClavesQueFaltanQuedanACero)
{
    Guion guion;
    // "VMaxIEC" is another key; "LongVoc" ends in "Voc" and stands first.
    const auto m = Importar(
        "LongVoc=99\nVoc=1\nTechnol=mtCdTe\nModel=M\xF3"
        "dulo\nVMaxIEC=1500\nImp=8,5\n",
        guion);
    EXPECT_EQ(m.dVoc, 99);
    EXPECT_EQ(m.iTipoCelula, 3);
    EXPECT_EQ(m.csModelo, L"Módulo");  // Windows-1252
    EXPECT_EQ(m.dVsmax, 0);
    EXPECT_EQ(m.dImpm, 8);
    EXPECT_EQ(m.iNs, 0);
}

TEST_F(PanelFotoPan, LoTecleadoSeConservaDondeElFicheroNoPoneNada)
{
    Guion guion;
    guion.Dialogo(
        "CDlgItemDatosPanelFoto",
        {paso::Poner{"csCodPrecio", L"P7"}, paso::Poner{"dCEf", L"4"}, paso::Poner{"dAcel", L"156x"},
         paso::Poner{"dVsmax", L"nada"}, paso::Poner{"dPmpm", L"1"}, paso::Teclear{"dCTVoc", L"9"},
         paso::Fichero{carpeta.Escribir("m.pan", kPan)}, paso::Pulsar{"Importar archivo .PAN de PVSyst ..."},
         paso::Leer{}, paso::Poner{"dAcel", L"1"}, paso::Pulsar{"OK"}});
    CDlgItemDatosPanelFoto dialogo(Valido(), false);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "csCodPrecio"), L"P7");
    EXPECT_EQ(guion.Texto(0, 0, "dCEf"), L"4,00");
    EXPECT_EQ(guion.Texto(0, 0, "dAcel"), L"156x");  // no number, but not the file's business
    EXPECT_EQ(guion.Texto(0, 0, "dVsmax"), L"600,00");
    EXPECT_EQ(dialogo.datos.dCEf, 4);
    EXPECT_EQ(dialogo.datos.dPmpm, 250);
    EXPECT_EQ(dialogo.datos.dCTVoc, -125);
}

TEST_F(PanelFotoPan, LoQueNoSePuedeLeerNoCambiaNada)
{
    Guion vacio;
    EXPECT_EQ(Importar("", vacio).csModelo, L"FX-250");
    EXPECT_TRUE(vacio.Mensajes().empty());
    Guion ausente;
    EXPECT_EQ(Importar("", ausente, false).csModelo, L"FX-250");
    ASSERT_EQ(ausente.Mensajes().size(), 1U);
    EXPECT_TRUE(ausente.Mensajes()[0].ends_with(L"m.panx no puede ser cargado."));
}

// The shipped catalogue: every model passes the dialog as it stands.
TEST_F(PanelFoto, ElCatalogoQueSeEntregaPasaSuDialogo)
{
    ASSERT_EQ(phCargarBasePanelesFotovoltaicos(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ZqModFotoHE5.xml")), 1);
    int modelos = 0;
    for (const auto& objeto : phGetBasePanelFoto().aFamilias) {
        for (const auto& modelo : static_cast<CBasePanelFotoFamilia&>(*objeto).aModelos) {
            ++modelos;
            Guion guion;
            guion.Dialogo("CDlgItemDatosPanelFoto", {paso::Pulsar{"OK"}});
            CDlgItemDatosPanelFoto dialogo(*modelo, false);
            EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok) << CadenaUtf8(modelo->csModelo);
        }
    }
    EXPECT_GE(modelos, 40);
}

}  // namespace

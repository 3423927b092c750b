// Dialogs of the elements, played by scripts: what they check, what they keep, what they hand back.
#include <gtest/gtest.h>

#include "comun/catalogos_enviados.h"
#include "comun/guion.h"
#include "elements/simples_dialogo.h"

namespace {

using namespace efv::pruebas;

const std::vector<efv::ui::Paso> kAceptar = {paso::Pulsar{"OK"}};

// ---------------------------------------------------------------------------------------------------
// Without a model
// ---------------------------------------------------------------------------------------------------

TEST(RedElectrica, SinElControlDelAnfitrionAcabaAntesDeVerse)
{
    Guion guion;
    guion.Dialogo("CDlgDatosNudo", kAceptar);
    CDlgDatosRedElectrica red({}, nullptr);
    EXPECT_EQ(red.Mostrar(), -1);
    CString csReferencia;
    int bCaja = 1, iRotulos = -1;
    EXPECT_EQ(phShowPropertyPageNudo(csReferencia, bCaja, iRotulos), 1);  // the script is still there
    EXPECT_EQ(bCaja, 1);
    EXPECT_EQ(iRotulos, -1);
}

TEST(CajaDeConexion, ElNumeroFijoSePideYNoSeToma)
{
    struct Caso {
        int bFijo;
        const wchar_t* texto;
        int iResultado, nEntradas;
    };
    for (const Caso& caso :
         {Caso{0, L"12", 1, 12}, Caso{1, L"12", 1, 4}, Caso{0, L"76", 2, 4}, Caso{1, L"x", 2, 4}}) {
        Guion guion;
        guion.Dialogo("CDlgDatosCajaConexion", {paso::Poner{"nEntradas", caso.texto},
                                                paso::Marcar{"bTrifasica", true}, paso::Pulsar{"OK"}});
        CString csReferencia = L"CX";
        int nEntradas = 4, bTrifasica = 0, bExcluir = 1, iRotulos = 5;
        EXPECT_EQ(
            phShowPropertyCajaConexion(csReferencia, nEntradas, caso.bFijo, bTrifasica, bExcluir, iRotulos),
            caso.iResultado);
        EXPECT_EQ(nEntradas, caso.nEntradas);
        EXPECT_EQ(bTrifasica, caso.iResultado == 1 ? 1 : 0);
    }
}

/// What a host keeps of a regulator; what only passes through stands at 7.
struct Regulador {
    CString csReferencia = L"R1", csAux = L"7";
    int iAux = 7, iTipoRegulador = 0, iTipoSalida = 0, bExcluir = 0, iRotulos = 7;
    double dVNom = 48, dPPanelMax = 5000, dIPanelMax = 60, dVPanelMax = 150, dVPanelMin = 60,
           dPerdidas = 0.123456;
    double adAux[8] = {7, 7, 7, 7, 7, 7, 7, 7};
    double dTensionSalida = 230.5, dPotenciaSalida = 3000;

    int Editar(int iTipo)
    {
        return phShowPropertyRegulador(csReferencia, csAux, iAux, dVNom, dPPanelMax, dIPanelMax, dVPanelMax,
                                       dVPanelMin, adAux[0], adAux[1], adAux[2], adAux[3], adAux[4], adAux[5],
                                       dPerdidas, adAux[6], adAux[7], iTipoRegulador, dTensionSalida,
                                       dPotenciaSalida, iTipoSalida, bExcluir, iRotulos, iTipo);
    }
};

TEST(Regulador, LasPerdidasSeMuestranEnTantoPorCientoConDosDecimales)
{
    Guion guion;
    guion.Dialogo("CDlgDatosReguladorCarga",
                  {paso::Leer{}, paso::Poner{"Potencia fotovoltaica máxima (W) para 48,00 V:", L"99"},
                   paso::Pulsar{"OK"}});
    Regulador regulador;
    EXPECT_EQ(regulador.Editar(0), 1);
    EXPECT_EQ(guion.Texto(0, 0, "dPerdidas"), L"12,35");
    EXPECT_DOUBLE_EQ(regulador.dPerdidas, 0.1235);
    EXPECT_EQ(regulador.dPPanelMax, 99.0);
    EXPECT_EQ(regulador.adAux[5], 7.0);
    EXPECT_EQ(regulador.csAux, L"7");
}

TEST(Regulador, LaTensionMinimaNoPasaDeLaMaximaTecleada)
{
    Guion guion;
    guion.Dialogo("CDlgDatosReguladorCarga", {paso::Poner{"dVPanelMax", L"59,99"}, paso::Pulsar{"OK"}});
    Regulador regulador;
    EXPECT_EQ(regulador.Editar(0), 2);
    EXPECT_EQ(guion.presentador.transcripciones[0].csRechazo, L"Introduzca un número entre 0 y 59,99.");
    EXPECT_EQ(regulador.dVPanelMax, 150.0);
}

TEST(Regulador, SoloElHibridoTieneSalida)
{
    Guion guion;
    guion.Dialogo("CDlgDatosReguladorAuto",
                  {paso::Leer{{"dTensionSalida", "iTipoSalida"}}, paso::Elegir{"iTipoRegulador", 1},
                   paso::Poner{"dTensionSalida", L"400"}, paso::Elegir{"iTipoSalida", CString(L"Trifase")},
                   paso::Pulsar{"OK"}});
    Regulador regulador;
    EXPECT_EQ(regulador.Editar(2), 1);
    EXPECT_FALSE(guion.Estado(0, 0, "dTensionSalida").bHabilitado);
    EXPECT_FALSE(guion.Estado(0, 0, "iTipoSalida").bHabilitado);
    EXPECT_EQ(regulador.iTipoRegulador, 1);
    EXPECT_EQ(regulador.dTensionSalida, 400.0);
    EXPECT_EQ(regulador.iTipoSalida, 1);
}

// ---------------------------------------------------------------------------------------------------
// With a model of the catalogue
// ---------------------------------------------------------------------------------------------------

class ElementosConModelo : public ConCatalogosEnviados {
protected:
    Guion guion;
    CString csReferencia = L"E1", csId;
    int bModelo = 1, bExcluir = 0, bEscala = 0, iRotulos = 3;
    int nSerie = 2, nParalelo = 1;
    CObArrayPropio<CSFVInverterInput> aEntradas;

    int Acumulador()
    {
        double dAux = 0.1;
        return phShowPropertyAcumulador(csReferencia, csId, bModelo, dAux, nSerie, nParalelo, bExcluir, bEscala,
                                        iRotulos);
    }
    int Inversor(int iNumMPPT, int iNumEntradas)
    {
        return phShowPropertyInversor(csReferencia, csId, bModelo, aEntradas, bExcluir, bEscala, iRotulos, 0,
                                      iNumMPPT, iNumEntradas);
    }
    // Two trackers and four inputs, as the SB5.0 has them, with a label of the person's own.
    void PonerEntradas()
    {
        phAsignArrayInverterInputs(0, 2, 4, aEntradas, 1);
        aEntradas[2].csReferencia = L"Tejado";
    }
};

// Figures of the catalogue's file.
TEST_F(ElementosConModelo, UnaBateriaDeLitioMuestraUnSoloRegimen)
{
    guion.Dialogo("CDlgDatosAcumulador", {paso::Leer{}, paso::Pulsar{"OK"}});
    csId = L"Go Power!#Advanced Lithium 100 Ah";
    EXPECT_EQ(Acumulador(), 1);
    using Tabla = efv::ui::EstadoControl::DeLista;
    const auto& regimenes = std::get<Tabla>(guion.Estado(0, 0, "listaRegimenes").propio);
    EXPECT_EQ(regimenes.filas, (std::vector<std::vector<CString>>{{L"CLi", L"100,00", L"9,20"}}));
    EXPECT_EQ(guion.Texto(0, 0, "iTipo"), L"Li-Ion");
    EXPECT_EQ(guion.Texto(0, 0, "dVnom"), L"12,80");
    EXPECT_EQ(guion.Texto(0, 0, "csFabricante"), L"Go Power!");
    EXPECT_FALSE(guion.Estado(0, 0, "Rotulación ...").bHabilitado);
    EXPECT_EQ(csId, L"Go Power!#Advanced Lithium 100 Ah");
}

TEST_F(ElementosConModelo, UnaBateriaDesconocidaMuestraCerosYVuelveConSuMarca)
{
    guion.Dialogo("CDlgDatosAcumulador", {paso::Leer{}, paso::Pulsar{"OK"}});
    csId = L"Nadie";
    nSerie = 100;
    EXPECT_EQ(Acumulador(), 1);
    EXPECT_EQ(guion.Texto(0, 0, "dVnom"), L"0,00");
    EXPECT_EQ(guion.Texto(0, 0, "iTipo"), L"OPzS");
    EXPECT_EQ(csId, L"#Nadie");
    guion.Dialogo("CDlgDatosAcumulador", {paso::Poner{"nSerie", L"101"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Acumulador(), 2);
    EXPECT_EQ(guion.presentador.transcripciones[1].csRechazo, L"Introduzca un número entre 1 y 100.");
}

TEST_F(ElementosConModelo, ElegirEsCosaDeLaCasillaYLlegaAlAceptar)
{
    guion.Dialogo("CDlgDatosAcumulador", {paso::Leer{{"..."}}, paso::Marcar{"Modelo", true},
                                          paso::Pulsar{"..."}, paso::Leer{}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgVisorXML",
                  {paso::Elegir{"arbol", CString(L"Go Power!#Advanced Lithium 300 Ah")}, paso::Pulsar{"OK"}});
    bModelo = 0;
    EXPECT_EQ(Acumulador(), 1);
    EXPECT_FALSE(guion.Estado(0, 0, "...").bHabilitado);
    EXPECT_EQ(guion.Texto(0, 1, "csModelo"), L"Advanced Lithium 300 Ah");
    EXPECT_EQ(guion.Texto(0, 1, "dPeso"), L"33,10");
    EXPECT_EQ(csId, L"Go Power!#Advanced Lithium 300 Ah");
    EXPECT_EQ(bModelo, 1);
}

// An efficiency of 0 would be refused if the pages took part.
TEST_F(ElementosConModelo, UnInversorDesconocidoLoDiceYNoImpideAceptar)
{
    guion.Dialogo("CDlgDatosInversor", kAceptar);
    PonerEntradas();
    csId = L"Nadie#Nada";
    EXPECT_EQ(Inversor(2, 4), 1);
    EXPECT_EQ(
        guion.Mensajes(),
        std::vector<CString>{L"El modelo de inversor Nadie#Nada no está definido en la base de datos. Los "
                             L"valores no han podido ser cargados correctamente"});
    EXPECT_EQ(aEntradas[2].csReferencia, L"Tejado");
    guion.Dialogo("CDlgDatosInversor", kAceptar);
    csId.clear();
    EXPECT_EQ(Inversor(2, 4), 1);
    EXPECT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_EQ(csId, L"#");
}

TEST_F(ElementosConModelo, OtroNumeroDeEntradasBorraLosRotulosDeLaPersona)
{
    for (int i = 0; i < 2; ++i)
        guion.Dialogo("CDlgDatosInversor", kAceptar);
    PonerEntradas();
    csId = L"SB5.0-1AV-40";
    EXPECT_EQ(Inversor(2, 4), 1);
    EXPECT_EQ(aEntradas[2].csReferencia, L"Tejado");
    EXPECT_EQ(csId, L"SMA#SB5.0-1AV-40");
    EXPECT_EQ(Inversor(2, 3), 1);
    EXPECT_EQ(aEntradas[2].csReferencia, L"ST1.2");
    PonerEntradas();
    EXPECT_EQ(Inversor(2, 3), 2);  // cancelled
    EXPECT_EQ(aEntradas[2].csReferencia, L"Tejado");
}

TEST_F(ElementosConModelo, LasEntradasSeEditanEnSuDialogo)
{
    guion.Dialogo("CDlgDatosInversor",
                  {paso::Pulsar{"Configuración de string ..."}, paso::Leer{{"Tipo de uso:", "iTipoSalida"}},
                   paso::Elegir{"tab", 1}, paso::Leer{{"dPCANom", "iTipoSalida"}}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosEntrada", {paso::Abrir{"listaEntradas", 0, 1}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgItemEntrada", {paso::Poner{"csReferencia", L"Porche"}, paso::Pulsar{"OK"}});
    PonerEntradas();
    csId = L"SMA#SB5.0-1AV-40";
    EXPECT_EQ(Inversor(2, 4), 1);
    EXPECT_EQ(aEntradas[0].csReferencia, L"Porche");
    EXPECT_EQ(guion.Texto(0, 0, "Tipo de uso:"), L"Conexión a red");
    EXPECT_TRUE(guion.Estado(0, 1, "dPCANom").bSoloLectura);
    EXPECT_EQ(guion.Texto(0, 1, "dPCANom"), L"5000,00");
}

}  // namespace

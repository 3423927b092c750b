// The assistants' dialogs, played by scripts.
#include <gtest/gtest.h>

#include <QuorvelEFV.h>

#include "assistants/lugar.h"
#include "assistants/regulacion_dialogo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

TEST(EntradaAsistentes, ElTipoDeInstalacionCierraElDialogo)
{
    Guion guion;
    guion.Dialogo("CDlgAsistenteTipoInstalacion", {paso::Pulsar{"Instalación solar fotovoltaica aislada"}})
        .Dialogo("CDlgAsistenteTipoInstalacion",
                 {paso::Pulsar{"Instalación solar fotovoltaica para conexión a red"}});
    EXPECT_EQ(phSeleccionAsistenteSFV(), 1);
    EXPECT_EQ(phSeleccionAsistenteSFV(), 0);
    EXPECT_EQ(phSeleccionAsistenteSFV(), 3);
    EXPECT_FALSE(guion.presentador.csErrorGuion);
}

TEST(EntradaAsistentes, ElLugarSePartePorSuMarca)
{
    const auto partir = [](const CString& cs) {
        const auto lugar = assistants::PartirLugar(cs);
        return std::pair(lugar.csLocalidad, lugar.csLocalidad2);
    };
    EXPECT_EQ(partir(L"Alfa~#SFV#~Beta"), std::pair(CString(L"Alfa"), CString(L"Beta")));
    EXPECT_EQ(partir(L"~#SFV#~Beta"), std::pair(CString(L"~#SFV#~Beta"), CString()));
    EXPECT_EQ(partir(L"Alfalfalfa"), std::pair(CString(), CString(L"alfa")));
    EXPECT_EQ(partir(L"Alfa"), std::pair(CString(), CString()));
    EXPECT_EQ(partir(L"A~#SFV#~B~#SFV#~"), std::pair(CString(L"A"), CString(L"B~#SFV#~")));
}

TEST(PerdidasAislada, LaSumaNoLlegaAlCien)
{
    Guion guion;
    guion.Dialogo("CDlgDatosPerdidasSolarAislada",
                  {paso::Pulsar{"OK"}, paso::Poner{"dPerdidaAcumulador", L"50,5"}, paso::Pulsar{"OK"},
                   paso::Poner{"Pérdidas por acoplamiento (%):", L"101"}, paso::Pulsar{"OK"},
                   paso::Poner{"dPerdidaAcoplamiento", L"29"}, paso::Pulsar{"OK"}});
    double dCableado = 20, dAcumulador = 50, dAcoplamiento = 30;
    EXPECT_EQ(phDatosPerdidasAislada(dCableado, dAcumulador, dAcoplamiento), 1);
    EXPECT_EQ(guion.Mensajes(),
              (std::vector<CString>{L"La pérdida combinada de Ka + Kbi + Kc = 100,00, alcanza el 100 %",
                                    L"La pérdida combinada de Ka + Kbi + Kc = 100,50, supera el 100 %"}));
    EXPECT_EQ(dAcumulador, 50.5);
    EXPECT_EQ(dAcoplamiento, 29);
    EXPECT_EQ(phDatosPerdidasAislada(dCableado, dAcumulador, dAcoplamiento), 0);
    EXPECT_EQ(dCableado, 20);
}

// A control of one category, that lets the person choose symbol 12 of category 3.
class ControlDePrueba : public IBIMCtrl {
public:
    int iElegido = 12;

    Resultado Invocar(int iMetodo, std::span<const Argumento> argumentos) override
    {
        if (iMetodo == elegirSimbolo) {
            EXPECT_EQ(std::get<int>(argumentos[0]), 3);
            *std::get<int*>(argumentos[1]) = iElegido;
            return false;
        }
        if (iMetodo == numeroDeCategoria)
            return std::get<CString>(argumentos[0]) == L"Inversor" ? 3 : 4;
        if (iMetodo == categoriaDeSimbolo)
            return std::get<int>(argumentos[0]) == 12 ? 3 : 9;
        return CString(L"Otro");
    }
};

// Catalogues: a 2500 W inverter for the grid and one for stand-alone use, a 250 W panel.
class AsistenteRed : public ::testing::Test {
protected:
    AsistenteRed()
    {
        phSetQuorvelBIMCtrl(control);
        const auto escribir = [&](const char* nombre, const std::string& modelos) {
            return carpeta.Escribir(
                nombre, "<Q><TablaFamilias><Familia nombre='A'>" + modelos + "</Familia></TablaFamilias></Q>");
        };
        const std::string inversor =
            "dPCANom='2500' dVMPPMax='400' dVMPPMin='100' dVCCMax='500' dICCMax='20' iNumMPPT='1' ";
        EXPECT_EQ(phCargarBaseInversores(escribir(
                      "i.xml", "<Modelo csModelo='i' iNumEntradas='1' iTipoSalida='1' " + inversor +
                                   "/><Modelo csModelo='sin' iUsoPrincipal='1' iNumEntradas='9' " + inversor +
                                   "/><Modelo csModelo='otro' dPCANom='1000' dVMPPMax='300' dVMPPMin='90'/>")),
                  1);
        EXPECT_EQ(phCargarBasePanelesFotovoltaicos(
                      escribir("p.xml",
                               "<Modelo csModelo='p' dPmpm='250' dVmpm='30' dImpm='8' dVoc='36' dH='1600' "
                               "dB='1000' dP='18'/>")),
                  1);
        registro.csInversor = L"A#i";
        registro.csPanel = L"A#p";
        registro.dPotenciaObjetivo = 3.0;
        registro.iPanelesSerie = 4;
        registro.iTipoSalida = 7;
    }
    ~AsistenteRed() override
    {
        phGetBaseInversores().Vaciar();
        phGetBasePanelFoto().Vaciar();
    }

    int Correr(std::vector<ui::Paso> pasos)
    {
        guion.Dialogo("CDlgAsistenteSFVRed", std::move(pasos));
        const int i = phAsistenteSFVRed(L"Alfa~#SFV#~Beta", 40.0, 1, registro);
        EXPECT_FALSE(guion.presentador.csErrorGuion)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return i;
    }

    CarpetaTemporal carpeta;
    ControlDePrueba control;
    Guion guion;
    CSFVAsistenteRed registro;
};

TEST_F(AsistenteRed, AbrirYAceptarPoneLaPropuestaEnElRegistro)
{
    EXPECT_EQ(Correr({paso::Leer{}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(guion.Texto(0, 0, "csLocalidad2"), L"Beta");
    EXPECT_EQ(guion.Texto(0, 0, "csRangoMPPT"), L"400/100");
    EXPECT_EQ(guion.Texto(0, 0, "dTensionRamalP"), L"180,00");
    EXPECT_EQ(guion.Estado(0, 0, "iInversoresP").color, 0xFF0000U);
    EXPECT_EQ(guion.Estado(0, 0, "iInversores").color, 0U);
    EXPECT_EQ(registro.iInversores, 2);
    EXPECT_EQ(registro.iPanelesSerie, 6);
    EXPECT_EQ(registro.dInclinacion, 30.0);
    EXPECT_EQ(registro.iTipoSalida, 1);
}

TEST_F(AsistenteRed, CancelarNoEscribeNada)
{
    EXPECT_EQ(Correr({paso::Poner{"dPotenciaObjetivo", L"9"}, paso::Pulsar{"Cancel"}}), 0);
    EXPECT_EQ(registro.dPotenciaObjetivo, 3.0);
    EXPECT_EQ(registro.iPanelesSerie, 4);
    EXPECT_EQ(registro.iTipoSalida, 7);
}

TEST_F(AsistenteRed, LosCamposRecalculanAlSalirDeEllos)
{
    Correr({paso::Teclear{"iPanelesSerie", L"5"}, paso::Leer{{"iTotalPaneles"}},
            paso::Poner{"iPanelesSerie", L"5"}, paso::Leer{{"iTotalPaneles", "iTotalPanelesP"}},
            paso::Poner{"iPanelesSerie", L"0"}, paso::Leer{{"iPanelesSerie", "iTotalPaneles"}},
            paso::Poner{"iPanelesSerie", L"3"}, paso::Poner{"dPotenciaObjetivo", L"6"},
            paso::Leer{{"iInversores", "iPanelesSerie", "dPotenciaTotal"}}});
    EXPECT_EQ(guion.Texto(0, 0, "iTotalPaneles"), L"12");
    EXPECT_EQ(guion.Texto(0, 1, "iTotalPaneles"), L"10");
    EXPECT_EQ(guion.Texto(0, 1, "iTotalPanelesP"), L"12");
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Introduzca un número entre 1 y 100000."}));
    EXPECT_EQ(guion.Texto(0, 2, "iPanelesSerie"), L"0");
    EXPECT_EQ(guion.Texto(0, 2, "iTotalPaneles"), L"10");
    // A new target brings the proposals back: 3 inverters of 2000 W, 8 panels each.
    EXPECT_EQ(guion.Texto(0, 3, "iInversores"), L"3");
    EXPECT_EQ(guion.Texto(0, 3, "iPanelesSerie"), L"8");
    EXPECT_EQ(guion.Texto(0, 3, "dPotenciaTotal"), L"6,00");
}

TEST_F(AsistenteRed, TumbarLosPanelesCambiaLaSeparacion)
{
    Correr({paso::Elegir{"iDisposicion", CString(L"Horizontal")},
            paso::Leer{{"dDistanciaFilas", "dDistanciaFilasP"}}, paso::Poner{"dInclinacion", L"0"},
            paso::Pulsar{"EspaciarFilas"}, paso::Leer{{"dDistanciaFilas"}}, paso::Pulsar{"OK"}});
    EXPECT_NE(guion.Texto(0, 0, "dDistanciaFilas"), guion.Texto(0, 0, "dDistanciaFilasP"));
    EXPECT_EQ(guion.Texto(0, 1, "dDistanciaFilas"), L"1000,00");
    EXPECT_EQ(registro.dDistanciaFilas, 1000.0);
    EXPECT_EQ(registro.iDisposicion, 1);
}

TEST_F(AsistenteRed, ElegirUnModeloRecalculaConLaPropuesta)
{
    guion.Dialogo("CDlgAsistenteSFVRed",
                  {paso::Poner{"iPanelesSerie", L"2"}, paso::Pulsar{"csInversor"},
                   paso::Leer{{"csInversor", "iPanelesSerie"}}, paso::Pulsar{"csInversor"},
                   paso::Leer{{"csInversor"}}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgVisorXML", {paso::Pulsar{"Cancel"}})
        .Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"A#sin")}, paso::Pulsar{"OK"}});
    EXPECT_EQ(phAsistenteSFVRed(L"", 40.0, 0, registro), 0);
    EXPECT_FALSE(guion.presentador.csErrorGuion) << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
    EXPECT_EQ(guion.Texto(0, 0, "csInversor"), L"A#i");
    EXPECT_EQ(guion.Texto(0, 0, "iPanelesSerie"), L"2");
    EXPECT_EQ(guion.Texto(0, 1, "csInversor"), L"A#sin");
    EXPECT_EQ(guion.Mensajes(),
              (std::vector<CString>{L"Inversor no indicado para uso en conexión a red. Elija otro modelo."}));
}

// An invalid field stops the recalculation; the model's own caption and figures are already the new one's.
TEST_F(AsistenteRed, UnModeloElegidoSeMuestraAunqueElCalculoSePare)
{
    guion.Dialogo("CDlgAsistenteSFVRed",
                  {paso::Poner{"dLongitudL1", L"x"}, paso::Pulsar{"csInversor"},
                   paso::Leer{{"csInversor", "csRangoMPPT", "dPCANom", "dPCANomP", "dLongitudL1"}}});
    guion.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"A#otro")}, paso::Pulsar{"OK"}});
    EXPECT_EQ(phAsistenteSFVRed(L"", 40.0, 1, registro), 0);
    EXPECT_EQ(guion.Texto(0, 0, "csInversor"), L"A#otro");
    EXPECT_EQ(guion.Texto(0, 0, "csRangoMPPT"), L"300/90");
    EXPECT_EQ(guion.Texto(0, 0, "dPCANom"), L"1000,00");
    EXPECT_EQ(guion.Texto(0, 0, "dPCANomP"), L"1000,00");
    EXPECT_EQ(guion.Texto(0, 0, "dLongitudL1"), L"x");
}

TEST_F(AsistenteRed, SoloElUnoEsElNorte)
{
    for (const int iHemisferio : {0, 2, -1}) {
        guion.Dialogo("CDlgAsistenteSFVRed", {paso::Pulsar{"OK"}});
        EXPECT_EQ(phAsistenteSFVRed(L"", 40.0, iHemisferio, registro), 1);
        EXPECT_EQ(registro.dOrientacion, 180.0) << iHemisferio;
    }
}

TEST_F(AsistenteRed, AbiertoFueraDeLimitesLoDiceYCalculaEnCuantoPuede)
{
    registro.dLongitudL2 = 1001.0;
    EXPECT_EQ(Correr({paso::Leer{{"dLongitudL2", "iInversoresP"}}, paso::Pulsar{"OK"},
                      paso::Poner{"dLongitudL2", L"4"}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Introduzca un número entre 0 y 1000."}));
    EXPECT_EQ(guion.Texto(0, 0, "dLongitudL2"), L"1001,00");
    EXPECT_EQ(guion.Texto(0, 0, "iInversoresP"), L"0");
    // 3000 W on inverters of 2500 W; |40| - 10 degrees.
    EXPECT_EQ(registro.iInversores, 2);
    EXPECT_EQ(registro.dInclinacion, 30.0);
    EXPECT_EQ(registro.dLongitudL2, 4.0);
}

TEST_F(AsistenteRed, AceptarCompruebaEnSuOrden)
{
    guion.presentador.respuestas = {ui::Respuesta::si};
    EXPECT_EQ(
        Correr({paso::Poner{"dPotenciaObjetivo", L"0"}, paso::Pulsar{"OK"}, paso::Poner{"iInversores", L"1"},
                paso::Poner{"dPotenciaObjetivo", L"3"}, paso::Poner{"iPanelesParalelo", L"2"},
                paso::Pulsar{"OK"}, paso::Poner{"iInversores", L"200"}, paso::Pulsar{"OK"},
                paso::Poner{"iPanelesParalelo", L"1"}, paso::Pulsar{"OK"}}),
        1);
    EXPECT_EQ(
        guion.Mensajes(),
        (std::vector<CString>{
            L"Potencia mínima instalada (0,00 Kw), no válida.",
            L"El número de ramales en paralelo (2), supera al número de entradas del inversor (1). "
            L"Modifique la configuración o seleccione otro modelo de inversor.",
            L"El número de paneles de la intalación (2400) es una cantidad muy elevada. ¿Desea continuar?.",
            L"El número de ramales en paralelo (2), supera al número de entradas del inversor (1). "
            L"Modifique la configuración o seleccione otro modelo de inversor."}));
    EXPECT_EQ(registro.iInversores, 200);
}

TEST_F(AsistenteRed, ElSimboloHaDeSerDeSuCategoria)
{
    Correr({paso::Pulsar{"iSimboloInversor"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(registro.iSimboloInversor, 12);
    control.iElegido = 13;
    Correr({paso::Pulsar{"iSimboloInversor"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(registro.iSimboloInversor, 12);
    EXPECT_EQ(guion.Mensajes(),
              (std::vector<CString>{L"La categoria a la que pertenece el simbolo \"Otro\" no corresponde. La "
                                    L"selección no es válida."}));
}

// A battery of 100 Ah and 12 V, a panel of 100 W and 22 V open, one load of 100 W; every factor K is 1 from
// 0 to 90 degrees at 40 degrees north.
class AsistenteAislada : public ::testing::Test {
protected:
    AsistenteAislada()
    {
        phSetQuorvelBIMCtrl(control);
        const auto escribir = [&](const char* nombre, const std::string& modelo) {
            return carpeta.Escribir(nombre, "<Q><TablaFamilias><Familia nombre='A'><Modelo csModelo=" + modelo +
                                                "/></Familia></TablaFamilias></Q>");
        };
        EXPECT_EQ(phCargarBaseAcumuladores(escribir("a.xml", "'b' dCapC100='100' dVnom='12' dPeso='10'")), 1);
        EXPECT_EQ(phCargarBasePanelesFotovoltaicos(escribir(
                      "p.xml", "'p' dPmpm='100' dVmpm='18' dImpm='5' dVoc='22' dH='1000' dB='500' dP='8'")),
                  1);
        EXPECT_EQ(phCargarBaseReceptores(escribir("r.xml", "'r' dP='100' iTipoRed='1'")), 1);
        std::string filas;
        for (int iAlpha = 0; iAlpha <= 90; iAlpha += 5) {
            filas += "<Alpha Ph='" + std::to_string(iAlpha) + "' ";
            for (char c = 'a'; c <= 'l'; ++c)
                filas += std::string("K") + c + "='1' ";
            filas += "/>";
        }
        EXPECT_EQ(phCargarBaseFactorK(carpeta.Escribir(
                      "k.xml", "<TablaFactoresK><Latitud Lat='40'>" + filas + "</Latitud></TablaFactoresK>")),
                  1);
        registro.csAcumulador = L"A#b";
        registro.csPanel = L"A#p";
        registro.dPerdidaCableado = registro.dPerdidaAcumulador = registro.dPerdidaAcoplamiento = 0.0;
        registro.dProfundidadDescarga = 50.0;
        registro.dTensionMaxFV = 50.0;
        registro.iMesCalculo = 12;
        registro.iPanelesPorFila = 7;
        AnadirReceptor(L"A#r", 2, 480, 600);
    }
    ~AsistenteAislada() override
    {
        phGetBaseAcumuladores().Vaciar();
        phGetBasePanelFoto().Vaciar();
        phGetBaseReceptores().Vaciar();
        phGetBaseFactorK().Vaciar();
    }

    // A load with the same band every day.
    void AnadirReceptor(const CString& csModelo, int iCantidad, double dInicio, double dFin)
    {
        registro.adCantidad.Add(iCantidad);
        registro.acsModelo.Add(csModelo);
        registro.adHorasDia.Add(9.0);
        for (int i = 0; i < 84; ++i)
            for (const double d : {dInicio, dFin, 0.0, 0.0, 0.0, 0.0})
                registro.adHorario.Add(d);
    }

    int Correr(std::vector<ui::Paso> pasos)
    {
        guion.Dialogo("CDlgAsistenteSFVAislada", std::move(pasos));
        double adRadiacion[12];
        std::ranges::fill(adRadiacion, 14400.0);  // four peak sun hours
        const int i = phAsistenteSFVAislada(L"Alfa~#SFV#~Beta", 40.0, 1, adRadiacion, registro);
        EXPECT_FALSE(guion.presentador.csErrorGuion)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return i;
    }

    CarpetaTemporal carpeta;
    ControlDePrueba control;
    Guion guion;
    CSFVAsistenteAislada registro;
};

// 2 × 100 W × 2 h = 400 Wh: 400 · 3 / 24 / 0.5 = 100 Ah, one branch of two batteries; 100 Wp at four hours,
// one branch of two panels.
TEST_F(AsistenteAislada, AbrirYAceptarPoneLaPropuestaEnElRegistro)
{
    EXPECT_EQ(Correr({paso::Leer{{"lReceptores", "listaRadiacion", "dCapacidadNecesaria", "csMesReferencia",
                                  "dTensionSistema", "dHSPP", "dPotenciaMaxFV"}},
                      paso::Pulsar{"OK"}}),
              1);
    const auto& lista = std::get<ui::EstadoControl::DeLista>(guion.Estado(0, 0, "lReceptores").propio);
    ASSERT_EQ(lista.filas.size(), 1U);
    EXPECT_EQ(lista.filas[0], (std::vector<CString>{L"2", L"A#r", L"CA", L"100,00", L"02:00 h", L"400,00"}));
    const auto& radiacion = std::get<ui::EstadoControl::DeLista>(guion.Estado(0, 0, "listaRadiacion").propio);
    ASSERT_EQ(radiacion.filas.size(), 1U);
    EXPECT_EQ(radiacion.filas[0][0], L"30,00");
    EXPECT_EQ(radiacion.filas[0][12], L"14400,00 kJ");
    EXPECT_EQ(guion.Texto(0, 0, "dCapacidadNecesaria"), L"100,00");
    EXPECT_EQ(guion.Texto(0, 0, "csMesReferencia"), L"Anual");
    EXPECT_EQ(guion.Texto(0, 0, "dTensionSistema"), L"24");
    EXPECT_EQ(guion.Estado(0, 0, "dHSPP").color, 0xFF0000U);
    EXPECT_EQ(guion.Texto(0, 0, "dPotenciaMaxFV"), L"250,00");
    EXPECT_EQ(registro.iAcumuladoresSerie, 2);
    EXPECT_EQ(registro.iAcumuladoresParalelo, 1);
    EXPECT_EQ(registro.iPanelesSerie, 2);
    EXPECT_EQ(registro.iPanelesParalelo, 1);
    EXPECT_EQ(registro.dInclinacion, 30.0);
    EXPECT_EQ(registro.iPanelesPorFila, 7);
    EXPECT_EQ(registro.adHorasDia, (CArray<double, double&>{2.0}));
    EXPECT_EQ(registro.adHorario.GetSize(), 504);
}

TEST_F(AsistenteAislada, UnReceptorSinModeloCedeSusBandas)
{
    registro.Reset();
    AnadirReceptor(L"A#nadie", 1, 60, 120);
    AnadirReceptor(L"A#r", 1, 60, 660);
    Correr({paso::Leer{{"lReceptores", "dEnergiaNecesaria"}}, paso::Pulsar{"Cancel"}});
    EXPECT_EQ(guion.Texto(0, 0, "dEnergiaNecesaria"), L"100,00");  // one hour, of the dropped one
    EXPECT_EQ(registro.adCantidad.GetSize(), 2);
    registro.adHorario.RemoveAll();
    Correr({paso::Leer{{"dEnergiaNecesaria"}}});
    EXPECT_EQ(guion.Texto(1, 0, "dEnergiaNecesaria"), L"0,00");
}

TEST_F(AsistenteAislada, LosCambiosRecalculan)
{
    Correr({paso::Poner{"iAcumuladoresSerie", L"9"}, paso::Poner{"iPanelesParalelo", L"0"},
            paso::Leer{{"iAcumuladoresSerie", "dPotenciaInstalada"}}, paso::Poner{"dDiasAutonomia", L"6"},
            paso::Leer{{"iAcumuladoresParalelo", "iAcumuladoresParaleloP", "dCapacidadResultante"}},
            paso::Elegir{"dTensionSistema", CString(L"48")},
            paso::Leer{{"iAcumuladoresSerie", "iAcumuladoresParalelo", "iPanelesParalelo"}},
            paso::Elegir{"iMesCalculo", CString(L"Desfavorable")},
            paso::Leer{{"csMesReferencia", "dInclinacionP"}}});
    EXPECT_EQ(guion.Texto(0, 0, "iAcumuladoresSerie"), L"2");
    EXPECT_EQ(guion.Texto(0, 0, "dPotenciaInstalada"), L"0,00");
    EXPECT_EQ(guion.Estado(0, 0, "dPotenciaInstalada").color, 0x0000FFU);
    EXPECT_EQ(guion.Texto(0, 1, "iAcumuladoresParalelo"), L"1");
    EXPECT_EQ(guion.Texto(0, 1, "iAcumuladoresParaleloP"), L"2");
    EXPECT_EQ(guion.Estado(0, 1, "dCapacidadResultante").color, 0x0000FFU);
    // A system voltage forces the proposals: 400 · 6 / 48 / 0.5 = 100 Ah.
    EXPECT_EQ(guion.Texto(0, 2, "iAcumuladoresSerie"), L"4");
    EXPECT_EQ(guion.Texto(0, 2, "iAcumuladoresParalelo"), L"1");
    EXPECT_EQ(guion.Texto(0, 2, "iPanelesParalelo"), L"1");
    EXPECT_EQ(guion.Texto(0, 3, "csMesReferencia"), L"Diciembre");
    EXPECT_EQ(guion.Texto(0, 3, "dInclinacionP"), L"50,00");
}

// Twice the units: 800 Wh, two branches of batteries.
TEST_F(AsistenteAislada, EditarUnReceptorRecalculaConLaPropuesta)
{
    guion.Dialogo("CDlgAsistenteSFVAislada",
                  {paso::Pulsar{"Editar ..."}, paso::Poner{"iAcumuladoresParalelo", L"5"},
                   paso::Abrir{"lReceptores", 0, 1}, paso::Leer{{"iAcumuladoresParalelo", "lReceptores"}},
                   paso::Pulsar{"Añadir ..."}, paso::Leer{{"lReceptores"}}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosReceptor", {paso::Poner{"iCantidad", L"4"}, paso::Pulsar{"OK"}})
        .Dialogo("CDlgDatosReceptor", {paso::Pulsar{"Cancel"}});
    const double adRadiacion[12] = {};
    EXPECT_EQ(phAsistenteSFVAislada(L"", 40.0, 1, adRadiacion, registro), 1);
    EXPECT_FALSE(guion.presentador.csErrorGuion) << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
    EXPECT_EQ(guion.Texto(0, 0, "iAcumuladoresParalelo"), L"2");
    const auto& lista = std::get<ui::EstadoControl::DeLista>(guion.Estado(0, 0, "lReceptores").propio);
    EXPECT_EQ(lista.filas.at(0).at(5), L"800,00");
    EXPECT_EQ(registro.adCantidad, (CArray<double, double&>{4.0}));
}

TEST_F(AsistenteAislada, EliminarUnReceptorPregunta)
{
    guion.presentador.respuestas = {ui::Respuesta::no, ui::Respuesta::si};
    EXPECT_EQ(Correr({paso::Pulsar{"Eliminar"}, paso::Elegir{"lReceptores", 0}, paso::Pulsar{"Eliminar"},
                      paso::Pulsar{"Eliminar"}, paso::Leer{{"dCapacidadNecesaria", "iAcumuladoresParaleloP"}},
                      paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>(2, L"¿Desea eliminar el receptor A#r?"));
    EXPECT_EQ(guion.Texto(0, 0, "dCapacidadNecesaria"), L"0,00");
    EXPECT_EQ(guion.Texto(0, 0, "iAcumuladoresParaleloP"), L"1");
    EXPECT_TRUE(registro.adCantidad.IsEmpty());
}

TEST_F(AsistenteAislada, AceptarPreguntaPorLosCamposMuyGrandes)
{
    guion.presentador.respuestas = {ui::Respuesta::no, ui::Respuesta::si, ui::Respuesta::si};
    EXPECT_EQ(Correr({paso::Poner{"iPanelesParalelo", L"0"}, paso::Pulsar{"OK"},
                      paso::Poner{"iPanelesParalelo", L"101"}, paso::Pulsar{"OK"},
                      paso::Poner{"iPanelesParalelo", L"100"}, paso::Poner{"iPanelesSerie", L"20"},
                      paso::Poner{"iAcumuladoresParalelo", L"26"}, paso::Elegir{"tab", 2}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(
        guion.Mensajes(),
        (std::vector<CString>{
            L"Nº de paneles en paralelo no válido",
            L"El número de ramas de paneles (101) es una cantidad muy elevada y puede afectar al trazado de "
            L"la instalación. ¿Desea continuar?",
            L"El número de paneles de la intalación (2000) es una cantidad muy elevada. ¿Desea continuar?",
            L"El número de ramas de acumuladores (26) es una cantidad muy elevada y puede afectar al trazado "
            L"de la instalación. ¿Desea continuar?."}));
    EXPECT_EQ(registro.iPanelesParalelo, 100);
    Correr({paso::Leer{{"tab"}}, paso::Elegir{"tab", 0}, paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.Texto(1, 0, "tab"), L"Regulación");
}

TEST_F(AsistenteAislada, UnCampoRechazadoMuestraSuPagina)
{
    Correr({paso::Poner{"dPerdidaCableado", L"101"}, paso::Leer{{"tab", "dPerdidaCableado"}},
            paso::Pulsar{"Cancel"}});
    EXPECT_EQ(guion.Texto(0, 0, "tab"), L"Perdidas");
    EXPECT_EQ(guion.Texto(0, 0, "dPerdidaCableado"), L"101");
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Introduzca un número entre 0 y 100."}));
    EXPECT_EQ(registro.dPerdidaCableado, 0.0);
}

// The page of the field comes to the front and OK tells the field, not the counts that were never worked out.
TEST_F(AsistenteAislada, AbiertoFueraDeLimitesMuestraSuPagina)
{
    registro.dPerdidaAcoplamiento = 150.0;
    EXPECT_EQ(Correr({paso::Leer{{"tab", "dPerdidaAcoplamiento", "iPanelesSerieP"}}, paso::Pulsar{"OK"},
                      paso::Poner{"dPerdidaAcoplamiento", L"0"},
                      paso::Leer{{"iPanelesSerieP", "iPanelesSerie"}}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Introduzca un número entre 0 y 100."}));
    EXPECT_EQ(guion.Texto(0, 0, "tab"), L"Perdidas");
    EXPECT_EQ(guion.Texto(0, 0, "dPerdidaAcoplamiento"), L"150,00");
    // As when it opens within the limits: the proposals go into force.
    EXPECT_EQ(guion.Texto(0, 1, "iPanelesSerie"), L"2");
    EXPECT_EQ(registro.iAcumuladoresParalelo, 1);
    EXPECT_EQ(registro.dInclinacion, 30.0);
}

TEST_F(AsistenteAislada, UnPanelElegidoSeMuestraAunqueElCalculoSePare)
{
    registro.csPanel.clear();
    guion.Dialogo("CDlgAsistenteSFVAislada",
                  {paso::Poner{"dDistanciaPaneles", L"x"}, paso::Pulsar{"csPanel"}, paso::Leer{{"csPanel"}}});
    guion.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"A#p")}, paso::Pulsar{"OK"}});
    const double adRadiacion[12] = {};
    EXPECT_EQ(phAsistenteSFVAislada(L"", 40.0, 1, adRadiacion, registro), 0);
    EXPECT_EQ(guion.Texto(0, 0, "csPanel"), L"A#p");
}

TEST_F(AsistenteAislada, LaSalidaDeAlternaAbreSusCampos)
{
    Correr({paso::Leer{{"iTipoSalidaCA"}}, paso::Marcar{"bSalidaCA", true},
            paso::Elegir{"iTipoSalidaCA", CString(L"Trifasico")}, paso::Pulsar{"OK"}});
    EXPECT_FALSE(guion.Estado(0, 0, "iTipoSalidaCA").bHabilitado);
    EXPECT_EQ(registro.iTipoSalidaCA, 1);
    Correr({paso::Marcar{"bSalidaCA", false}, paso::Pulsar{"OK"}});
    EXPECT_EQ(registro.iTipoSalidaCA, 0);
    EXPECT_EQ(registro.bSalidaCA, 0);
}

// Ka adjusted = (0.0014 · 441 + 0.0001 · 21 + 0.4) · 0.005 = 0.0050975 at 21 ºC; R = 1 − 0.82 · 0.0050975 ·
// 3 / 0.4 − 0.18.
TEST(Regulacion, UnCambioDeKbSoloNoRecalcula)
{
    Guion guion;
    guion.Dialogo("CDlgDatosRegulacion", {paso::Leer{{"dKaAjustado"}}, paso::Poner{"dKb", L"0,5"},
                                          paso::Leer{{"dR"}}, paso::Poner{"dTemperaturaAcumulador", L"10"},
                                          paso::Leer{{"dKaAjustado", "dR"}}, paso::Pulsar{"OK"}});
    CSFVAsistenteAislada registro;
    CDlgDatosRegulacion dialogo(registro);
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "dKaAjustado"), L"0,0051");
    EXPECT_EQ(guion.Texto(0, 1, "dR"), L"0,7887");
    // 0.541 · 0.005 = 0.002705; 1 − 0.37 · 0.002705 · 3 / 0.4 − 0.63 = 0.36249
    EXPECT_EQ(guion.Texto(0, 2, "dKaAjustado"), L"0,0027");
    EXPECT_EQ(guion.Texto(0, 2, "dR"), L"0,3625");
    dialogo.Devolver(registro);
    EXPECT_EQ(registro.dKb, 0.5);
}

}  // namespace

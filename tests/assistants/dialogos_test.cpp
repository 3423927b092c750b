// The assistants' dialogs, played by scripts.
#include <gtest/gtest.h>

#include <QuorvelEFV.h>

#include "assistants/red_dialogo.h"
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
        EXPECT_EQ(
            phCargarBaseInversores(escribir(
                "i.xml", "<Modelo csModelo='i' iNumEntradas='1' iTipoSalida='1' " + inversor +
                             "/><Modelo csModelo='sin' iUsoPrincipal='1' iNumEntradas='9' " + inversor + "/>")),
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

}  // namespace

#include "consumption/receptor_dialogo.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/solar.h>

#include "comun/ficheros.h"
#include "comun/guion.h"
#include "module/singletons.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kClase = "CDlgDatosReceptor";

class ReceptorDialogo : public ::testing::Test {
protected:
    ReceptorDialogo()
    {
        phCargarBaseReceptores(carpeta.Escribir(
            "r.xml",
            "<Q><TablaFamilias><Familia nombre='F'><Modelo csModelo='bomba' dP='750' dVs='230' dVsMin='200' "
            "dRend='80' iTipoRed='1' bIlum='0'/><Modelo csModelo='foco' dP='20' dVs='12' dVsMin='11' "
            "dRend='95' "
            "iTipoRed='0' bIlum='1'/></Familia></TablaFamilias></Q>"));
        datos.csReferencia = L"R1";
        datos.receptor.csModelo = L"F#bomba";
    }
    ~ReceptorDialogo() override { phGetBaseReceptores().Vaciar(); }

    int Mostrar(std::vector<ui::Paso> pasos)
    {
        guion.Dialogo(kClase, std::move(pasos));
        dialogo = std::make_unique<CDlgDatosReceptor>(datos, efv::module::Bases());
        const int iResultado = dialogo->Mostrar();
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return iResultado;
    }
    // Bands 8:00 to 10:00 on every day.
    void Planificar()
    {
        for (auto& mes : datos.receptor.dHorario) {
            for (auto& dia : mes) {
                dia[0] = 480;
                dia[1] = 600;
            }
        }
    }

    CarpetaTemporal carpeta;
    Guion guion;
    consumption::DatosReceptor datos;
    std::unique_ptr<CDlgDatosReceptor> dialogo;
};

TEST_F(ReceptorDialogo, MuestraElModeloDelCatalogo)
{
    Planificar();
    Mostrar({paso::Leer{}});
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Datos del receptor eléctrico");
    EXPECT_EQ(guion.Texto(0, 0, "dPotencia"), L"750,00");
    EXPECT_EQ(guion.Texto(0, 0, "dRendimiento"), L"80,00");
    EXPECT_EQ(guion.Texto(0, 0, "iTipoRed"), L"CA");
    EXPECT_EQ(guion.Texto(0, 0, "iLuminaria"), L"NO");
    EXPECT_EQ(guion.Texto(0, 0, "dHorasDia"), L"2,00");
    EXPECT_EQ(guion.Texto(0, 0, "Inicio 1"), L"08:00 h");
    EXPECT_FALSE(guion.Estado(0, 0, "bModelo").bHabilitado);  // on and locked while units are asked for
    EXPECT_EQ(guion.Estado(0, 0, "bModelo").valor, ui::Valor(true));
    EXPECT_TRUE(guion.Estado(0, 0, "iCantidad").bVisible);
    EXPECT_FALSE(guion.Estado(0, 0, "csFabricante").bVisible);
}

TEST_F(ReceptorDialogo, SinCantidadSeVeElFabricanteYElModeloSigueASuCasilla)
{
    datos.bPedirCantidad = 0;
    datos.bModelo = 0;
    Mostrar({paso::Leer{}, paso::Marcar{"bModelo", true}, paso::Leer{{"..."}}});
    EXPECT_EQ(guion.Texto(0, 0, "csFabricante"), L"F");
    EXPECT_FALSE(guion.Estado(0, 0, "iCantidad").bVisible);
    EXPECT_FALSE(guion.Estado(0, 0, "...").bHabilitado);
    EXPECT_TRUE(guion.Estado(0, 1, "...").bHabilitado);
}

// First 10:00-12:00, then the third alone behind an empty second: the dialog counts both, the energy only the
// first.
TEST_F(ReceptorDialogo, MoverUnLimiteEscribeLaFranjaAlMomento)
{
    Mostrar({paso::Poner{"Inicio 1", L"600"}, paso::Poner{"Final 1", L"720"}, paso::Poner{"Inicio 3", L"300"},
             paso::Poner{"Final 3", L"390"}, paso::Leer{}, paso::Poner{"dHorasDia", L"9"},
             paso::Leer{{"dHorasDia"}}, paso::Poner{"Final 2", L"1440"}, paso::Leer{{"dHorasDia", "Final 2"}}});
    EXPECT_EQ(guion.Texto(0, 0, "Final 3"), L"06:30 h");
    EXPECT_EQ(guion.Texto(0, 0, "dHorasDia"), L"3,50");
    const auto& grafica = std::get<CCtrlCurva2D>(guion.Estado(0, 0, "grafica").propio);
    EXPECT_EQ(std::ranges::count(grafica.aSeries[0].adY, 750.0), 121);  // the third starts before the first
    EXPECT_EQ(guion.Texto(0, 1, "dHorasDia"), L"9");                    // until the next recalculation
    EXPECT_EQ(guion.Texto(0, 2, "dHorasDia"), L"2,00");  // the third now starts before the second ends
    EXPECT_EQ(guion.Texto(0, 2, "Final 2"), L"24:00 h");
    EXPECT_EQ(dialogo->datos.receptor.dHorario[0][0][0], 600);
    EXPECT_EQ(dialogo->datos.receptor.dHorario[0][0][3], 1440);
    EXPECT_EQ(dialogo->datos.receptor.dHorario[0][1][0], 0);
}

TEST_F(ReceptorDialogo, LasFranjasTecleadasMuevenLosLimitesYLoQueNoSeEntiendeNoCambiaNada)
{
    Planificar();
    Mostrar({paso::Poner{"csFranjas", L"18-22,8:30 a 12"},
             paso::Leer{{"csFranjas", "Inicio 1", "Final 2", "dHorasDia"}}, paso::Teclear{"csFranjas", L"8-"},
             paso::Leer{{"csFranjas", "Final 2"}}, paso::Pulsar{"OK"}, paso::Poner{"csFranjas", L""},
             paso::Leer{{"Final 2", "dHorasDia"}}, paso::Poner{"Inicio 1", L"600"},
             paso::Poner{"Final 1", L"605"}, paso::Leer{{"csFranjas"}}});
    EXPECT_EQ(guion.Texto(0, 0, "csFranjas"), L"08:30-12:00; 18:00-22:00");
    EXPECT_EQ(guion.Texto(0, 0, "Inicio 1"), L"08:30 h");
    EXPECT_EQ(guion.Texto(0, 0, "Final 2"), L"22:00 h");
    EXPECT_EQ(guion.Texto(0, 0, "dHorasDia"), L"7,50");
    EXPECT_EQ(guion.Estado(0, 1, "csFranjas").color, ui::kRojo);
    EXPECT_EQ(guion.Texto(0, 1, "Final 2"), L"22:00 h");
    EXPECT_EQ(guion.Mensajes().at(0), L"No se entienden las franjas; un ejemplo: 08:00-12:00; 18:00-22:00.");
    EXPECT_EQ(guion.Mensajes().size(), 1U);  // for leaving the line by OK, not for both
    EXPECT_EQ(guion.Texto(0, 2, "dHorasDia"), L"0,00");
    EXPECT_EQ(guion.Texto(0, 3, "csFranjas"), L"10:00-10:05");
    EXPECT_EQ(dialogo->datos.receptor.dHorario[0][0][1], 605);
    EXPECT_NE(dialogo->datos.receptor.dHorario[1][0][1], 605);
}

TEST_F(ReceptorDialogo, LoQueSeCambiaLlegaATodosLosMesesYDiasMarcados)
{
    const auto hasta = [&](int iMes, int iTipo) { return dialogo->datos.receptor.dHorario[iMes][iTipo][1]; };
    Mostrar({paso::Marcar{"bTodosLosMeses", true}, paso::Poner{"csFranjas", L"0-1"}});
    EXPECT_EQ(std::pair(hasta(11, 0), hasta(11, 1)), std::pair(60.0, 0.0));
    Mostrar(
        {paso::Poner{"csFranjas", L"0-1"}, paso::Marcar{"bTodosLosDias", true}, paso::Poner{"Final 1", L"90"}});
    EXPECT_EQ(std::pair(hasta(0, 6), hasta(1, 0)), std::pair(90.0, 0.0));
    Mostrar({paso::Poner{"csFranjas", L"0-1"}, paso::Marcar{"bTodosLosDias", true},
             paso::Marcar{"bTodosLosMeses", true}});
    for (int iMes = 0; iMes < 12; ++iMes)
        for (int iTipo = 0; iTipo < 7; ++iTipo)
            EXPECT_EQ(hasta(iMes, iTipo), 60.0);
}

TEST_F(ReceptorDialogo, LaGraficaSigueALaCantidadSegunSeTeclea)
{
    Planificar();
    Mostrar({paso::Teclear{"iCantidad", L"3"}, paso::Leer{{"grafica"}}, paso::Teclear{"iCantidad", L"3x"},
             paso::Leer{{"grafica"}}});
    for (const std::size_t iLectura : {0U, 1U}) {
        const auto& grafica = std::get<CCtrlCurva2D>(guion.Estado(0, iLectura, "grafica").propio);
        EXPECT_EQ(std::ranges::max(grafica.aSeries[0].adY), 2250.0);  // 3 of 750 W
    }
    EXPECT_TRUE(guion.Mensajes().empty());
}

TEST_F(ReceptorDialogo, CambiarDeMesVuelveAlLunes)
{
    datos.iDiaTipo = 3;
    Mostrar({paso::Elegir{"iMes", 5}, paso::Leer{{"iDiaTipo"}}, paso::Elegir{"iDiaTipo", CString(L"Domingo")},
             paso::Poner{"Final 1", L"60"}});
    EXPECT_EQ(guion.Texto(0, 0, "iDiaTipo"), L"Lunes");
    EXPECT_EQ(dialogo->datos.receptor.dHorario[5][6][1], 60);
}

TEST_F(ReceptorDialogo, UnificarCopiaATodoLoQueDice)
{
    const auto horasDe = [&](int iMes, int iTipo) { return dialogo->datos.receptor.dHorario[iMes][iTipo][1]; };
    const auto unificar = [&](const wchar_t* eleccion, bool bMeses) {
        datos.receptor.dHorario[2][4][1] = 60;
        datos.receptor.dHorario[2][5][1] = 90;
        if (bMeses) {
            guion.presentador.guiones.clear();
            guion.Dialogo(kClase, {paso::Elegir{"iMes", 2}, paso::Elegir{"iDiaTipo", 4},
                                   paso::Elegir{"Unificar planificación", CString(eleccion)}});
            guion.Dialogo("CDlgMesAno", {paso::Leer{{"Marzo"}}, paso::Marcar{"Enero", true},
                                         paso::Marcar{"Diciembre", true}, paso::Pulsar{"OK"}});
            dialogo = std::make_unique<CDlgDatosReceptor>(datos, efv::module::Bases());
            dialogo->Mostrar();
        } else {
            Mostrar({paso::Elegir{"iMes", 2}, paso::Elegir{"iDiaTipo", 4},
                     paso::Elegir{"Unificar planificación", CString(eleccion)}});
        }
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    };
    unificar(L"Todos los días en la semana", false);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(horasDe(2, i), 60);
    EXPECT_EQ(horasDe(1, 4), 0);

    unificar(L"Todos los días como el actual", true);
    EXPECT_EQ(horasDe(0, 4), 60);
    EXPECT_EQ(horasDe(11, 4), 60);
    EXPECT_EQ(horasDe(0, 5), 0);
    EXPECT_EQ(horasDe(1, 4), 0);
    const auto& marzo = guion.presentador.transcripciones.back().lecturas[0][0].second;
    EXPECT_EQ(marzo.valor, ui::Valor(true));
    EXPECT_FALSE(marzo.bHabilitado);

    unificar(L"Todas las semanas", true);
    EXPECT_EQ(horasDe(0, 4), 60);
    EXPECT_EQ(horasDe(11, 5), 90);
    EXPECT_EQ(horasDe(6, 5), 0);
}

TEST_F(ReceptorDialogo, SinReferenciaSinModeloOSinHorasNoSeAceptaSinMas)
{
    datos.receptor.csModelo.clear();
    EXPECT_EQ(Mostrar({paso::Poner{"csReferencia", L""}, paso::Pulsar{"OK"}, paso::Poner{"csReferencia", L"x"},
                       paso::Pulsar{"OK"}}),
              ui::Dialogo::cancelado);
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"El receptor no tiene una referencia válida.",
                                                      L"El receptor no tiene seleccionado un modelo válido."}));
    guion.presentador.mostrados.clear();
    datos.receptor.csModelo = L"F#foco";
    EXPECT_EQ(Mostrar({paso::Pulsar{"OK"}}), ui::Dialogo::cancelado);
    const CString csTodos = guion.Mensajes().at(0);
    EXPECT_TRUE(
        csTodos.starts_with(L"Hay días que no tienen definido un patrón de consumo:\r\n[Enero:Lunes, "
                            L"Enero:Martes, Enero:Miércoles, "));
    EXPECT_TRUE(csTodos.ends_with(L", Diciembre:Domingo]\r\n¿Desea salir sin definir esos patrones?"));
    EXPECT_EQ(std::ranges::count(csTodos, L':'), 84 + 1);

    Planificar();
    datos.receptor.dHorario[1][6][1] = 480;
    guion.presentador.respuestas = {ui::Respuesta::si};
    EXPECT_EQ(Mostrar({paso::Poner{"iCantidad", L"10001"}, paso::Pulsar{"OK"}, paso::Poner{"iCantidad", L"3"},
                       paso::Pulsar{"OK"}}),
              ui::Dialogo::ok);
    EXPECT_EQ(guion.Mensajes().back(),
              L"Hay días que no tienen definido un patrón de consumo:\r\n[Febrero:Domingo]\r\n¿Desea salir sin "
              L"definir "
              L"esos patrones?");
    datos.receptor.dHorario[1][6][1] = 500;
    EXPECT_EQ(Mostrar({paso::Pulsar{"OK"}}), ui::Dialogo::ok);
    EXPECT_EQ(guion.Mensajes().size(), 2U);
}

TEST_F(ReceptorDialogo, ElModeloSeEligeEnElCatalogo)
{
    guion.Dialogo(kClase, {paso::Pulsar{"..."}, paso::Leer{}});
    guion.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"F#foco")}, paso::Pulsar{"OK"}});
    CDlgDatosReceptor(datos, efv::module::Bases()).Mostrar();
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt)
        << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
    EXPECT_EQ(guion.Texto(0, 0, "csModelo"), L"F#foco");
    EXPECT_EQ(guion.Texto(0, 0, "dPotencia"), L"20,00");
    EXPECT_EQ(guion.Texto(0, 0, "iTipoRed"), L"CC");
    EXPECT_EQ(guion.Texto(0, 0, "iLuminaria"), L"SI");
}

TEST_F(ReceptorDialogo, ElRegistroTomaSoloLoSuyo)
{
    Planificar();
    CSFVDataReceptor receptor = datos.receptor;
    receptor.dVoltaje = 5;
    receptor.iReservadoB = 9;
    guion.Dialogo(kClase, {paso::Leer{}, paso::Poner{"iCantidad", L"4"}, paso::Marcar{"bExcluir", true},
                           paso::Poner{"Inicio 1", L"0"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(receptor.EditarPropiedades(7, 1), 1U);
    EXPECT_EQ(guion.Texto(0, 0, "csReferencia"), L"ELEMENTO DE CONSUMO");
    EXPECT_EQ(guion.Texto(0, 0, "iMes"), L"Agosto");
    EXPECT_EQ(receptor.iCantidad, 4);
    EXPECT_EQ(receptor.dPotencia, 750);
    EXPECT_EQ(receptor.bNoCalcular, 1);
    EXPECT_EQ(receptor.dHorario[7][0][0], 0);
    EXPECT_EQ(receptor.dVoltaje, 5);  // of the electrical data the power alone
    EXPECT_EQ(receptor.csFabricante, L"");
    EXPECT_EQ(receptor.iReservadoB, 9);
    EXPECT_EQ(receptor.EditarPropiedades(7, 1), 2U);
    EXPECT_EQ(receptor.iCantidad, 4);
}

TEST_F(ReceptorDialogo, LaFuncionDevuelveSoloAlAceptar)
{
    Planificar();
    CString csReferencia = L"R", csModelo = L"F#foco";
    int bModelo = 1, bExcluir = 0, iReservado = 5, iCantidad = 7;
    double dHorario[12][7][6];
    std::copy_n(&datos.receptor.dHorario[0][0][0], 504, &dHorario[0][0][0]);
    const auto mostrar = [&](int bPedir) {
        return phShowPropertyReceptor(csReferencia, csModelo, bModelo, dHorario, bExcluir, iReservado,
                                      iCantidad, bPedir, 1, 2);
    };
    EXPECT_EQ(mostrar(1), 2);
    guion.Dialogo(kClase, {paso::Marcar{"Excluir del cálculo", true}, paso::Marcar{"bModelo", false},
                           paso::Poner{"Final 1", L"700"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(mostrar(0), 1);
    EXPECT_EQ(bExcluir, 1);
    EXPECT_EQ(bModelo, 0);
    EXPECT_EQ(dHorario[0][0][1], 700);
    EXPECT_EQ(iReservado, 5);
    EXPECT_EQ(iCantidad, 7);
}

}  // namespace

#include "consumption/consumo_dialogo.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/solar.h>

#include "comun/ficheros.h"
#include "comun/guion.h"
#include "consumption/asignacion_dia.h"
#include "consumption/consumo_dia_dialogo.h"
#include "module/singletons.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kClase = "CDlgDatosConsumo";
constexpr const wchar_t* kTraslado =
    L"¿Desea trasladar el consumo introducido según el tipo de día y receptor a consumo hora a hora?";

class ConsumoDialogo : public ::testing::Test {
protected:
    ConsumoDialogo()
    {
        phCargarBaseReceptores(
            carpeta.Escribir("r.xml",
                             "<Q><TablaFamilias><Familia nombre='F'><Modelo csModelo='bomba' dP='750' "
                             "iTipoRed='1'/><Modelo csModelo='foco' dP='20'/></Familia></TablaFamilias></Q>"));
        datos.csReferencia = L"C1";
    }
    ~ConsumoDialogo() override { phGetBaseReceptores().Vaciar(); }

    // A load in use from 8:00 to 10:00, on Mondays only or on every day.
    CSFVDataReceptor& Anadir(const CString& csModelo, bool bSoloLunes = false)
    {
        auto& receptor = lista.Add(std::make_unique<CSFVDataReceptor>());
        receptor.csModelo = csModelo;
        receptor.dPotencia = 100;
        for (auto& mes : receptor.dHorario) {
            for (int i = 0; i < (bSoloLunes ? 1 : 7); ++i) {
                mes[i][0] = 480;
                mes[i][1] = 600;
            }
        }
        return receptor;
    }

    int Mostrar(std::vector<ui::Paso> pasos)
    {
        guion.Dialogo(kClase, std::move(pasos));
        return Abrir();
    }
    int Abrir()
    {
        dialogo = std::make_unique<CDlgDatosConsumo>(datos, lista, *ano, efv::module::Bases(), patrones);
        const int iResultado = dialogo->Mostrar();
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return iResultado;
    }
    double Hora(std::size_t h) const { return (*dialogo->adHoras)[h]; }
    std::vector<std::vector<CString>> Filas(std::size_t iLectura, const char* control) const
    {
        return std::get<ui::EstadoControl::DeLista>(guion.Estado(0, iLectura, control).propio).filas;
    }

    CarpetaTemporal carpeta;
    Guion guion;
    consumption::DatosConsumo datos;
    CObArrayPropio<CSFVDataReceptor> lista;
    std::unique_ptr<AnoHorario> ano = std::make_unique<AnoHorario>();
    std::vector<PatronConsumo> patrones{PatronesConsumo().begin(), PatronesConsumo().end()};
    std::unique_ptr<CDlgDatosConsumo> dialogo;
};

TEST_F(ConsumoDialogo, HoraAHoraEnsenaDiasYResumen)
{
    ano->fill(100);
    (*ano)[24] = 150;
    Mostrar({paso::Leer{}, paso::Elegir{"iDiaMes", 1}, paso::Leer{}, paso::Elegir{"iDiaMes", 30},
             paso::Elegir{"iMes", 1}, paso::Leer{}, paso::Teclear{"dPotMaxima", L"1234"},
             paso::Leer{{"csResumen"}}});
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Datos del consumo eléctrico");
    EXPECT_EQ(Filas(0, "adHoras")[1][1], L"2450");
    EXPECT_EQ(Filas(0, "adHoras")[29][0], L"30");
    EXPECT_EQ(Filas(0, "adHoras")[29][2], L"");  // 30 February
    EXPECT_EQ(guion.Texto(0, 0, "iDiaMes"), L"1 (Lunes)");
    EXPECT_EQ(
        guion.Texto(0, 1, "csResumen"),
        L"Potencia total instalada: 2,50 kW.\r\nEnergía diaria consumida: 2,45 kWh.\r\nEnergía mensual [ENE] "
        L"consumida: 74,45 kWh.");
    EXPECT_EQ(guion.Texto(0, 1, "grafica"), L"Desarrollo diario del consumo (precisión de horas) [Hora solar]");
    EXPECT_EQ(guion.Texto(0, 2, "iDiaMes"), L"1 (Jueves)");  // February has no 31st
    EXPECT_TRUE(guion.Texto(0, 3, "csResumen").starts_with(L"Potencia total instalada: 1,23 kW."));
    EXPECT_FALSE(guion.Estado(0, 0, "lReceptores").bVisible);
    EXPECT_FALSE(guion.Estado(0, 0, "Añadir ...").bVisible);
    EXPECT_FALSE(guion.Estado(0, 0, "iRotulacion").bVisible);
    EXPECT_TRUE(guion.Estado(0, 0, "Editar tabla de datos ...").bVisible);
}

TEST_F(ConsumoDialogo, PorReceptoresSinNingunoTodoEsCero)
{
    datos.iTipoEntrada = 1;
    Mostrar({paso::Leer{}, paso::Elegir{"iTipoEntrada", 0}, paso::Elegir{"iTipoEntrada", 1}});
    EXPECT_EQ(
        guion.Texto(0, 0, "csResumen"),
        L"Potencia total instalada: 0,00 kW.\r\nEnergía diaria consumida: 0,00 kWh.\r\nEnergía mensual [ENE] "
        L"consumida: 0,00 kWh.");
    EXPECT_TRUE(guion.Mensajes().empty());
    EXPECT_FALSE(guion.Estado(0, 0, "dPotMaxima").bVisible);
    EXPECT_TRUE(guion.Estado(0, 0, "iDiaTipo").bVisible);
}

// One of two loads isn't in the catalogue: it has no row but counts. The other's power is the catalogue's.
TEST_F(ConsumoDialogo, LosReceptoresSeRefrescanDelCatalogo)
{
    datos.iTipoEntrada = 1;
    Anadir(L"otro");
    Anadir(L"F#bomba").iCantidad = 2;
    Anadir(L"F#foco").bNoCalcular = 1;
    Mostrar({paso::Leer{}, paso::Elegir{"iDiaTipo", 6}, paso::Leer{}});
    ASSERT_EQ(Filas(0, "lReceptores").size(), 2U);
    EXPECT_EQ(Filas(0, "lReceptores")[0],
              (std::vector<CString>{L"2", L"F#bomba", L"CA", L"750,00", L"02:00 h", L"3000,00"}));
    // 100 + 2·750 W, two hours, 31 days
    EXPECT_EQ(
        guion.Texto(0, 0, "csResumen"),
        L"Potencia total instalada: 1,60 kW.\r\nEnergía diaria consumida: 3,20 kWh.\r\nEnergía mensual [ENE] "
        L"consumida: 99,20 kWh.");
    const auto& grafica = std::get<CCtrlCurva2D>(guion.Estado(0, 0, "grafica").propio);
    EXPECT_EQ(grafica.csTituloY, L"Potencia (W)");
    EXPECT_EQ(std::ranges::count(grafica.aSeries[0].adY, 1600.0), 121);
    EXPECT_EQ(std::get<ui::EstadoControl::DeLista>(guion.Estado(0, 0, "lReceptores").propio).abMarcas,
              (std::vector<bool>{true, false}));
    EXPECT_EQ(dialogo->lReceptores.GetSize(), 3);
    EXPECT_EQ(lista[1].dPotencia, 100);  // copies
}

TEST_F(ConsumoDialogo, PasarAHorasPreguntaYTraslada)
{
    datos.iTipoEntrada = 1;
    Anadir(L"F#bomba", true);
    Anadir(L"F#foco").bNoCalcular = 1;
    ano->fill(5);
    Mostrar({paso::Elegir{"iTipoEntrada", 0}, paso::Leer{{"dPotMaxima"}}});
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{kTraslado}));
    EXPECT_EQ(guion.Texto(0, 0, "dPotMaxima"), L"2500,00");
    EXPECT_EQ(Hora(8), 5);
    EXPECT_EQ(dialogo->datos.iTipoEntrada, 0);  // the mode changes on no as well

    guion.presentador.transcripciones.clear();
    guion.presentador.respuestas = {ui::Respuesta::si};
    Mostrar({paso::Elegir{"iTipoEntrada", 0}, paso::Leer{{"dPotMaxima"}}, paso::Elegir{"iTipoEntrada", 1}});
    EXPECT_EQ(guion.Texto(0, 0, "dPotMaxima"), L"750,00");
    for (std::size_t d = 0; d < 365; ++d)
        EXPECT_EQ(Hora(24 * d + 9), d % 7 == 0 ? 750 : 0) << d;
    EXPECT_EQ(guion.Mensajes().size(), 2U);  // none on the way back
}

TEST_F(ConsumoDialogo, SinReferenciaNoSeAcepta)
{
    EXPECT_EQ(Mostrar({paso::Poner{"csReferencia", L""}, paso::Pulsar{"OK"}}), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.Mensajes(),
              (std::vector<CString>{L"El consumo eléctrico no tiene una referencia válida."}));
}

// ---------------------------------------------------------------------------------------------------
// Loads
// ---------------------------------------------------------------------------------------------------

TEST_F(ConsumoDialogo, AnadirEditarYEliminarReceptores)
{
    datos.iTipoEntrada = 1;
    datos.iMes = 3;
    Anadir(L"F#foco");
    guion.Dialogo(kClase,
                  {paso::Pulsar{"Editar ..."}, paso::Pulsar{"Eliminar"}, paso::Pulsar{"Añadir ..."},
                   paso::Leer{{"lReceptores"}}, paso::Elegir{"lReceptores", 0}, paso::Pulsar{"Editar ..."},
                   paso::Leer{{"lReceptores"}}, paso::Abrir{"lReceptores", 1, 2}, paso::Pulsar{"Eliminar"},
                   paso::Pulsar{"Eliminar"}, paso::Leer{{"lReceptores"}}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosReceptor", {paso::Leer{{"iMes"}}, paso::Pulsar{"..."},
                                        paso::Poner{"Final 1", L"90"}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", CString(L"F#bomba")}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosReceptor", {paso::Poner{"iCantidad", L"6"}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosReceptor", {paso::Poner{"iCantidad", L"9"}, paso::Pulsar{"Cancel"}});
    // Accepts a load without most of its bands; then keeps the second load, then lets it go.
    guion.presentador.respuestas = {ui::Respuesta::si, ui::Respuesta::no, ui::Respuesta::si};
    EXPECT_EQ(Abrir(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(1, 0, "iMes"), L"Abril");
    ASSERT_EQ(Filas(0, "lReceptores").size(), 2U);
    EXPECT_EQ(Filas(0, "lReceptores")[1],
              (std::vector<CString>{L"1", L"F#bomba", L"CA", L"750,00", L"01:30 h", L"1125,00"}));
    EXPECT_EQ(Filas(1, "lReceptores")[0][0], L"6");
    ASSERT_EQ(Filas(2, "lReceptores").size(), 1U);
    EXPECT_EQ(guion.Mensajes().back(), L"¿Desea eliminar el receptor: F#bomba?");
    EXPECT_EQ(guion.Mensajes().size(), 3U);
    ASSERT_EQ(dialogo->lReceptores.GetSize(), 1);
    EXPECT_EQ(dialogo->lReceptores[0].iCantidad, 6);
}

// ---------------------------------------------------------------------------------------------------
// Hours
// ---------------------------------------------------------------------------------------------------

TEST_F(ConsumoDialogo, LaTablaSeEditaYSoloCambiaSuPeriodo)
{
    ano->fill(9);
    const CString febrero = [] {
        CString texto;
        for (int i = 0; i < 672; ++i)
            texto += L"2;";
        return texto;
    }();
    guion.Dialogo(kClase, {paso::Pulsar{"Editar tabla de datos ..."}, paso::Leer{{"adHoras"}},
                           paso::Pulsar{"Editar tabla de datos ..."}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosConsumoHoraHora", {paso::Elegir{"iPeriodo", 1}, paso::Poner{"csTexto", febrero},
                                               paso::Elegir{"iSeparador", 0}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosConsumoHoraHora", {paso::Leer{{"iPeriodo", "csTexto"}}, paso::Pulsar{"Cancel"}});
    EXPECT_EQ(Abrir(), ui::Dialogo::ok);
    EXPECT_EQ(Hora(743), 9);
    EXPECT_EQ(Hora(744), 2);
    EXPECT_EQ(Hora(744 + 671), 2);
    EXPECT_EQ(Hora(744 + 672), 9);
    EXPECT_EQ(Filas(0, "adHoras")[0][2], L"48");
    EXPECT_EQ(guion.Texto(2, 0, "iPeriodo"), L"Febrero");
    EXPECT_EQ(guion.Texto(2, 0, "csTexto"), L"");
}

TEST_F(ConsumoDialogo, UnDiaSeEditaDesdeSuCelda)
{
    guion.Dialogo(kClase, {paso::Abrir{"adHoras", 1, 1}, paso::Abrir{"adHoras", 30, 2},
                           paso::Abrir{"adHoras", 3, 0}, paso::Leer{{"adHoras"}}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosConsumoDia", {paso::Leer{}, paso::Poner{"23-00", L"70"},
                                          paso::Elegir{"Asignación del consumo: ", 2}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Abrir(), ui::Dialogo::ok);
    ASSERT_EQ(guion.presentador.transcripciones.size(), 2U);  // 31 February and the first column open nothing
    const auto opciones = std::get<ui::EstadoControl::DeSeleccion>(guion.Estado(1, 0, "iAsignacion").propio);
    EXPECT_EQ(opciones.acsEntradas[0], L"Solo el día 2 de Enero");
    EXPECT_EQ(opciones.acsEntradas[2], L"Todos los días laborables de Enero");
    EXPECT_EQ(guion.Texto(1, 0, "23-00"), L"0");
    EXPECT_EQ(Hora(23), 70);
    EXPECT_EQ(Hora(24 * 5 + 23), 0);  // a Saturday
    EXPECT_EQ(Hora(744 + 23), 0);
    EXPECT_EQ(Filas(0, "adHoras")[0][1], L"70");
}

TEST(ConsumoDia, CadaAlcanceLlegaASusDias)
{
    // 14 February: a Wednesday of the reference year (day 44, 44 mod 7 = 2). Months of 28 days have 20 working
    // days; the year 52 weeks and a Monday.
    const std::array<std::size_t, 7> nDias = {1, 28, 20, 8, 365, 261, 104};
    std::array<double, 24> dia;
    dia.fill(1);
    auto ano = std::make_unique<AnoHorario>();
    for (std::size_t i = 0; i < nDias.size(); ++i) {
        ano->fill(0);
        consumption::AsignarDia(dia, static_cast<consumption::Alcance>(i), 1, 13, [&](int iMes, int iDia) {
            return std::span<double, 24>(ano->data() + HorasDeDia(iMes, iDia).iInicio, 24);
        });
        EXPECT_EQ(SumaDeHoras(*ano, HorasDePeriodo(12)), 24.0 * static_cast<double>(nDias[i])) << i;
        EXPECT_EQ((*ano)[24 * 44], i == 3 || i == 6 ? 0 : 1) << i;
    }
}

TEST(ConsumoDia, SePeganLosValoresDelPortapapeles)
{
    auto ano = std::make_unique<AnoHorario>();
    ano->fill(8);
    Guion guion;
    std::wstring treinta;
    for (int i = 1; i <= 30; ++i)
        treinta += std::to_wstring(i) + L"\r\n";
    guion.Dialogo("CDlgDatosConsumoDia", {paso::Portapapeles{L"1\t2,4\n\t\r3\r\n"}, paso::Pulsar{"Pegar"},
                                          paso::Leer{}, paso::Pulsar{"OK"}});
    CDlgDatosConsumoDia(0, 0, *ano).Mostrar();
    EXPECT_EQ(guion.Texto(0, 0, "02-03"), L"3");
    EXPECT_EQ((*ano)[1], 2.4);
    EXPECT_EQ((*ano)[2], 3);
    EXPECT_EQ((*ano)[3], 8);
    guion.Dialogo("CDlgDatosConsumoDia", {paso::Portapapeles{treinta}, paso::Pulsar{"Pegar"},
                                          paso::Leer{{"grafica"}}, paso::Pulsar{"OK"}});
    CDlgDatosConsumoDia(0, 1, *ano).Mostrar();
    EXPECT_EQ((*ano)[24], 1);
    EXPECT_EQ((*ano)[47], 24);
    EXPECT_EQ((*ano)[48], 8);
    EXPECT_EQ(std::get<CCtrlCurva2D>(guion.Estado(1, 0, "grafica").propio).aSeries[0].adY[23], 24);
    guion.Dialogo("CDlgDatosConsumoDia",
                  {paso::Portapapeles{L"hola"}, paso::Pulsar{"Pegar"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(CDlgDatosConsumoDia(0, 2, *ano).Mostrar(), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Introduzca un número."}));
}

// ---------------------------------------------------------------------------------------------------
// The exported function
// ---------------------------------------------------------------------------------------------------

TEST_F(ConsumoDialogo, LaFuncionDevuelveTodoAlAceptarYNadaSiNo)
{
    Anadir(L"F#bomba");
    CString csReferencia = L"C";
    int iTipo = 1, iPatron = 3, bExcluir = 0, iRotulacion = 2, iAux = 1;
    int aiPeriodo[24] = {1};
    double dPotMaxima = 10, dHuso = 15, adMes[12][6] = {{5}};
    auto adHoras = std::make_unique<double[][8760]>(1);
    const auto mostrar = [&] {
        return phShowPropertyConsumo(csReferencia, lista, iTipo, iPatron, dPotMaxima, adHoras[0], adMes,
                                     aiPeriodo, bExcluir, iRotulacion, iAux, dHuso);
    };
    const CSFVDataReceptor* const antes = &lista[0];
    EXPECT_EQ(mostrar(), 2);
    EXPECT_EQ(&lista[0], antes);
    EXPECT_EQ(antes->dPotencia, 100);
    guion.Dialogo(kClase, {paso::Poner{"csReferencia", L"Nueva"}, paso::Marcar{"bExcluir", true},
                           paso::Elegir{"iTipoEntrada", 0}, paso::Pulsar{"OK"}});
    guion.presentador.respuestas = {ui::Respuesta::si};
    EXPECT_EQ(mostrar(), 1);
    EXPECT_EQ(csReferencia, L"Nueva");
    EXPECT_EQ(iTipo, 0);
    EXPECT_EQ(bExcluir, 1);
    EXPECT_EQ(dPotMaxima, 750);
    EXPECT_EQ(adHoras[0][8], 750);
    EXPECT_EQ(lista.GetSize(), 1);
    EXPECT_EQ(lista[0].dPotencia, 750);
    EXPECT_EQ(iPatron, 3);
    EXPECT_EQ(iRotulacion, 2);
    EXPECT_EQ(adMes[0][0], 5);
    EXPECT_EQ(aiPeriodo[0], 1);
}

}  // namespace

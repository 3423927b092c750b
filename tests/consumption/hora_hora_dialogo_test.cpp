#include "consumption/hora_hora_dialogo.h"

#include <cmath>
#include <fstream>

#include <gtest/gtest.h>

#include <quorvel/framework.h>

#include "comun/ficheros.h"
#include "comun/guion.h"
#include "consumption/patron_dialogo.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kClase = "CDlgDatosConsumoHoraHora";

// Presets that the tests may edit.
class HoraHora : public ::testing::Test {
protected:
    int Mostrar(std::vector<ui::Paso> pasos)
    {
        guion.Dialogo(kClase, std::move(pasos));
        dialogo = std::make_unique<CDlgDatosConsumoHoraHora>(datos, patrones);
        const int iResultado = dialogo->Mostrar();
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return iResultado;
    }
    double Hora(int h) const { return (*dialogo->adHoras)[static_cast<std::size_t>(h)]; }

    Guion guion;
    consumption::DatosHoraHora datos;
    std::vector<PatronConsumo> patrones{PatronesConsumo().begin(), PatronesConsumo().end()};
    std::unique_ptr<CDlgDatosConsumoHoraHora> dialogo;
    CarpetaTemporal carpeta;
};

CString Repetido(int n, std::wstring_view valor)
{
    CString texto;
    for (int i = 0; i < n; ++i)
        texto += valor;
    return texto;
}

CString Pregunta(int nLeidos, int nEsperados)
{
    return L"El número de valores leidos (" + std::to_wstring(nLeidos) +
           L"), es inferior al número de valores esperados (" + std::to_wstring(nEsperados) +
           L"). ¿Desea continuar y almacenar estos valores?";
}

TEST_F(HoraHora, UnPatronSeEscribeAlElegirOrigenPatronYPotencia)
{
    EXPECT_EQ(Mostrar({paso::Leer{}, paso::Elegir{"iOrigen", 1}, paso::Leer{}, paso::Elegir{"iPatron", 4},
                       paso::Leer{{"csTexto", "csDescripcion"}}, paso::Poner{"dPotMaxima", L"100"},
                       paso::Leer{{"csTexto"}}, paso::Pulsar{"OK"}}),
              ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "csTexto"), L"");
    EXPECT_EQ(guion.Texto(0, 0, "csDescripcion").substr(0, 32), L"Aconsejable para viviendas donde");
    EXPECT_FALSE(guion.Estado(0, 0, "iPatron").bHabilitado);
    EXPECT_TRUE(guion.Estado(0, 0, "Importar datos ...").bHabilitado);
    EXPECT_FALSE(guion.Estado(0, 0, "iHorario").bVisible);
    EXPECT_TRUE(guion.Texto(0, 1, "csTexto").starts_with(L"625,00;625,00;625,00;600,00;1000,00;"));
    EXPECT_TRUE(guion.Estado(0, 1, "iPatron").bHabilitado);
    EXPECT_FALSE(guion.Estado(0, 1, "Datos mensuales ...").bHabilitado);
    EXPECT_TRUE(guion.Estado(0, 1, "Exportar datos ...").bHabilitado);
    EXPECT_TRUE(guion.Texto(0, 2, "csTexto").starts_with(L"2125,00;2375,00;2500,00;"));
    EXPECT_TRUE(guion.Texto(0, 2, "csDescripcion").ends_with(L"horas nocturnas"));
    EXPECT_TRUE(guion.Texto(0, 3, "csTexto").starts_with(L"85,00;95,00;100,00;"));
    EXPECT_TRUE(guion.Mensajes().empty());
    EXPECT_EQ(Hora(2), 100);
    EXPECT_EQ(Hora(8738), 100);
    EXPECT_EQ(dialogo->datos.dPotMaxima, 100);
    EXPECT_EQ(dialogo->datos.iPatron, 4);
}

TEST_F(HoraHora, LaPotenciaSoloTieneLimitesConPatron)
{
    datos.dPotMaxima = 0;
    EXPECT_EQ(Mostrar({paso::Elegir{"iOrigen", 1}, paso::Pulsar{"OK"}}), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.presentador.transcripciones[0].csRechazo,
              L"Introduzca un número entre 0,01 y 10000000000.");
    EXPECT_EQ(Mostrar({paso::Elegir{"iPeriodo", 1}, paso::Poner{"csTexto", Repetido(672, L"1;")},
                       paso::Pulsar{"OK"}}),
              ui::Dialogo::ok);
}

TEST_F(HoraHora, SiFaltanValoresPregunta)
{
    // The last value has no separator behind it.
    const CString texto = Repetido(8759, L"2,5;") + L"7";
    EXPECT_EQ(Mostrar({paso::Poner{"csTexto", texto}, paso::Pulsar{"OK"}}), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{Pregunta(8759, 8760)}));
    EXPECT_EQ(Hora(0), 0);  // nothing changed
    guion.presentador.respuestas = {ui::Respuesta::si};
    EXPECT_EQ(Mostrar({paso::Poner{"csTexto", texto}, paso::Pulsar{"OK"}}), ui::Dialogo::ok);
    EXPECT_EQ(Hora(8758), 2.5);
    EXPECT_EQ(Hora(8759), 0);
}

// What is typed is read with the separator of the moment; the text isn't rewritten.
TEST_F(HoraHora, CambiarSeparadorOPeriodoNoTocaElTexto)
{
    EXPECT_EQ(
        Mostrar({paso::Poner{"csTexto", Repetido(8760, L"3;")}, paso::Elegir{"iSeparador", CString(L"<TAB>")},
                 paso::Pulsar{"OK"}, paso::Elegir{"iSeparador", 0},
                 paso::Elegir{"iPeriodo", CString(L"Febrero")}, paso::Leer{{"csTexto"}}, paso::Pulsar{"OK"}}),
        ui::Dialogo::ok);
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{Pregunta(0, 8760)}));
    EXPECT_EQ(guion.Texto(0, 0, "csTexto").size(), 2U * 8760);
    EXPECT_EQ(Hora(743), 0);
    EXPECT_EQ(Hora(744), 3);
    EXPECT_EQ(Hora(744 + 672), 0);
}

TEST_F(HoraHora, UnCsvEnKWhMultiplicaPorMilYElFactorSeQueda)
{
    const CString csRuta = carpeta.Escribir("a.csv", "\xEF\xBB\xBF" + std::string("0.5\n") + "0,25;");
    guion.Dialogo(kClase, {paso::Pulsar{"Importar datos ..."}, paso::Leer{{"csTexto"}},
                           paso::Elegir{"iOrigen", 1}, paso::Elegir{"iPeriodo", 0}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgConfigImportConsumo",
                  {paso::Leer{}, paso::Pulsar{"OK"}, paso::Elegir{"iUnidad", CString(L"kWh")},
                   paso::Fichero{csRuta}, paso::Pulsar{"..."}, paso::Pulsar{"OK"}});
    dialogo = std::make_unique<CDlgDatosConsumoHoraHora>(datos, patrones);
    EXPECT_EQ(dialogo->Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.presentador.transcripciones[1].csTitulo, L"Datos de consumo");
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Seleccione un archivo CSV válido"}));
    EXPECT_EQ(guion.Texto(0, 0, "csTexto"), L"0,5;0,25;");
    EXPECT_EQ(Hora(0), 625 * 1000);  // the preset's Wh too
    EXPECT_EQ(dialogo->datos.iUnidad, 1);
}

TEST_F(HoraHora, LaUnidadSeLeeEnElRotuloDelTexto)
{
    datos.iUnidad = 1;
    Mostrar({paso::Leer{{"Datos de consumo horario (kWh): "}}});
    EXPECT_EQ(guion.presentador.transcripciones[0].lecturas.size(), 1U);
}

TEST_F(HoraHora, LoQueNoSePuedeLeerNiEscribirNoCambiaNada)
{
    const auto importar = [&](const CString& csRuta) {
        guion.Dialogo(kClase, {paso::Poner{"csTexto", L"1;"}, paso::Pulsar{"Importar datos ..."},
                               paso::Leer{{"csTexto"}}});
        guion.Dialogo(
            "CDlgConfigImportConsumo",
            {paso::Elegir{"iUnidad", 1}, paso::Poner{"Archivo de datos:", csRuta}, paso::Pulsar{"OK"}});
        dialogo = std::make_unique<CDlgDatosConsumoHoraHora>(datos, patrones);
        dialogo->Mostrar();
        return guion.presentador.transcripciones[guion.presentador.transcripciones.size() - 2]
            .lecturas[0][0]
            .second.csTexto;
    };
    const CString csAusente = CadenaDesdeUtf8((carpeta.Ruta() / "no.csv").string());
    EXPECT_EQ(importar(csAusente), L"1;");
    EXPECT_EQ(dialogo->datos.iUnidad, 0);
    EXPECT_EQ(guion.Mensajes().back(), L"El archivo " + csAusente + L" no puede ser cargado.");
    EXPECT_EQ(importar(carpeta.Escribir("binario.csv", std::string("1;\0", 3))), L"1;");
    EXPECT_EQ(guion.Mensajes().size(), 2U);
    EXPECT_EQ(importar(carpeta.Escribir("vacio.csv", "")), L"");
    EXPECT_EQ(guion.Mensajes().size(), 2U);

    const auto exportar = [&](const CString& csRuta) {
        guion.Dialogo(kClase, {paso::Poner{"csTexto", L"1,5;2"}, paso::Pulsar{"Exportar datos ..."}});
        guion.Dialogo("CDlgConfigImportConsumo", {paso::Leer{{"iTiempo"}}, paso::Fichero{csRuta},
                                                  paso::Pulsar{"..."}, paso::Pulsar{"OK"}});
        CDlgDatosConsumoHoraHora(datos, patrones).Mostrar();
    };
    exportar(carpeta.Escribir("viejo.csv", "un texto más largo"));
    std::ifstream fichero(carpeta.Ruta() / "viejo.csv");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(fichero), {}), "1,5;2");
    EXPECT_EQ(std::get<ui::EstadoControl::DeSeleccion>(
                  guion.presentador.transcripciones.back().lecturas[0][0].second.propio)
                  .acsEntradas.size(),
              1U);
    exportar(csAusente + L"/x.csv");
    EXPECT_EQ(guion.Mensajes().back(), L"El archivo " + csAusente + L"/x.csv no puede ser creado.");
}

TEST_F(HoraHora, LaExportacionSeVuelveAImportarIgual)
{
    const CString csRuta = CadenaDesdeUtf8((carpeta.Ruta() / "ano.csv").string());
    guion.Dialogo(kClase, {paso::Elegir{"iOrigen", 1}, paso::Pulsar{"Exportar datos ..."},
                           paso::Elegir{"iOrigen", 0}, paso::Leer{{"csTexto"}}, paso::Poner{"csTexto", L""},
                           paso::Pulsar{"Importar datos ..."}, paso::Leer{{"csTexto"}}});
    for (int i = 0; i < 2; ++i)
        guion.Dialogo("CDlgConfigImportConsumo", {paso::Poner{"csArchivo", csRuta}, paso::Pulsar{"OK"}});
    CDlgDatosConsumoHoraHora(datos, patrones).Mostrar();
    EXPECT_EQ(guion.Texto(0, 0, "csTexto"), guion.Texto(0, 1, "csTexto"));
    EXPECT_GT(guion.Texto(0, 1, "csTexto").size(), 8760U * 5);
}

// ---------------------------------------------------------------------------------------------------
// Presets
// ---------------------------------------------------------------------------------------------------

TEST_F(HoraHora, UnPatronEditadoSeEscribeYVuelveALaTablaSoloAlAceptar)
{
    const std::vector<ui::Paso> edicion = {
        paso::Poner{"00-01", L"0,5"},     paso::Elegir{"Factor de consumo", 2},
        paso::Poner{"00-01", L"0,1"},     paso::Elegir{"iDiaTipo", 6},
        paso::Poner{"23-00", L"1"},       paso::Elegir{"iDiaTipo", 0},
        paso::Leer{{"00-01", "grafica"}}, paso::Pulsar{"OK"}};
    for (const bool bAceptar : {false, true}) {
        guion.presentador.transcripciones.clear();
        guion.Dialogo(kClase, {paso::Elegir{"iOrigen", 1}, paso::Elegir{"iPatron", 5}, paso::Pulsar{"..."},
                               paso::Leer{{"csTexto"}}, paso::Pulsar{bAceptar ? "OK" : "Cancel"}});
        guion.Dialogo("CDlgConfigPatronConsumo", edicion);
        CDlgDatosConsumoHoraHora(datos, patrones).Mostrar();
        ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
        EXPECT_EQ(guion.Texto(1, 0, "00-01"), L"0,10");
        EXPECT_EQ(std::get<CCtrlCurva2D>(guion.Estado(1, 0, "grafica").propio).csTituloY, L"Factor [0-1]");
        EXPECT_TRUE(guion.Texto(0, 0, "csTexto").starts_with(L"250,00;1050,00;"));  // 0,1 and 0,42 of 2500 W
        const SemanaFactores& semana = patrones[5].adFactor;
        EXPECT_EQ(semana[0][0], bAceptar ? 0.1 : 0.42);
        EXPECT_EQ(semana[2][0], bAceptar ? 0.5 : 0.42);
        EXPECT_EQ(semana[1][0], 0.42);
        EXPECT_EQ(semana[6][23], bAceptar ? 1.0 : 0.42);
    }
}

TEST(PatronDialogo, CopiaADiasYGruposYRechazaFueraDeLimites)
{
    Guion guion;
    guion.Dialogo("CDlgConfigPatronConsumo",
                  {paso::Poner{"05-06", L"0,25"}, paso::Elegir{"Factor de consumo", CString(L"Fin de semana")},
                   paso::Poner{"06-07", L"0,75"}, paso::Elegir{"Factor de consumo", CString(L"Laborables")},
                   paso::Poner{"07-08", L"1,5"}, paso::Elegir{"iDiaTipo", 3}, paso::Leer{{"iDiaTipo"}},
                   paso::Pulsar{"OK"}, paso::Poner{"07-08", L"0"}, paso::Pulsar{"OK"}});
    CDlgConfigPatronConsumo dialogo{SemanaFactores{}};
    EXPECT_EQ(dialogo.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "iDiaTipo"), L"Lunes");  // the day isn't left with a wrong field
    EXPECT_EQ(guion.Mensajes(), (std::vector<CString>{L"Introduzca un número entre 0 y 1."}));
    for (std::size_t d = 0; d < 7; ++d) {
        EXPECT_EQ(dialogo.semana[d][5], 0.25) << d;
        EXPECT_EQ(dialogo.semana[d][6], d < 5 ? 0.75 : 0.0) << d;
    }
}

// ---------------------------------------------------------------------------------------------------
// Monthly energies
// ---------------------------------------------------------------------------------------------------

// Preset 6 is the same every day: January's 310 kWh of P1, at hour 13 alone, are 10 kWh a day there; its 31
// kWh of P2 spread over the other hours by their factors.
TEST_F(HoraHora, LosDatosMensualesSeRepartenYSeEscribenEnWh)
{
    guion.Dialogo(kClase, {paso::Elegir{"iPeriodo", 0}, paso::Pulsar{"Datos mensuales ..."},
                           paso::Leer{{"csTexto", "iPatron"}}, paso::Pulsar{"OK"}});
    std::vector<ui::Paso> pasos = {paso::Poner{"adMes[0][0]", L"310"}, paso::Poner{"adMes[0][1]", L"31"},
                                   paso::Elegir{"Patrón de consumo: ", 5}};
    for (int h = 0; h < 24; ++h)
        if (h != 13)
            pasos.emplace_back(
                paso::Elegir{h < 9    ? "0" + std::to_string(h) + "-0" + std::to_string(h + 1)
                             : h == 9 ? "09-10"
                                      : std::to_string(h) + "-" + (h == 23 ? "00" : std::to_string(h + 1)),
                             CString(L"P2")});
    pasos.emplace_back(paso::Pulsar{"OK"});
    guion.Dialogo("CDlgDatosConsumoMes", std::move(pasos));
    dialogo = std::make_unique<CDlgDatosConsumoHoraHora>(datos, patrones);
    EXPECT_EQ(dialogo->Mostrar(), ui::Dialogo::ok) << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
    EXPECT_EQ(guion.presentador.transcripciones[1].csTitulo, L"Datos de consumo mensual");
    EXPECT_EQ(guion.Texto(0, 0, "iPatron"), L"[Industria/Servicios] Consumo constante los 7 días de la semana");
    EXPECT_EQ(Hora(13), 10000);
    EXPECT_EQ(Hora(37), 10000);
    double dDia = 0;
    for (int h = 0; h < 24; ++h)
        dDia += Hora(h);
    EXPECT_NEAR(dDia, 11000, 0.2);  // the text has two decimals
    EXPECT_EQ(dialogo->datos.adMes[0][0], 310);
    EXPECT_EQ(dialogo->datos.aiPeriodoHora[12], 1);
    EXPECT_EQ(dialogo->datos.iPatron, 5);
}

TEST_F(HoraHora, UnPeriodoTarifarioQueNoExisteSeDice)
{
    datos.aiPeriodoHora[4] = 3;
    EXPECT_EQ(Mostrar({paso::Pulsar{"Datos mensuales ..."}}), ui::Dialogo::cancelado);
    EXPECT_EQ(guion.Mensajes(),
              std::vector<CString>{L"Los períodos tarifarios de las horas del día deben ser P1, P2 o P3."});
    EXPECT_EQ(guion.presentador.transcripciones.size(), 1U);
}

TEST(HoraHoraDialogo, ElRotuloDelHorarioOficial)
{
    EXPECT_EQ(consumption::RotuloHorarioOficial(15), L"Horario oficial (GMT+1)");
    EXPECT_EQ(consumption::RotuloHorarioOficial(-75), L"Horario oficial (GMT-5)");
    EXPECT_EQ(consumption::RotuloHorarioOficial(-1e-7), L"Horario oficial (GMT+0)");
    std::vector<PatronConsumo> patrones(2);
    consumption::DatosHoraHora datos;
    datos.iPatron = 2;
    EXPECT_THROW(CDlgDatosConsumoHoraHora(datos, patrones), CInvalidArgException);
}

}  // namespace

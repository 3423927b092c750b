// Periods and prices of the shipped tariff counted on a calendar of 2025, and tables that aren't one.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include <quorvel/tarifas.h>

namespace {

using namespace efv;
using namespace efv::economics;

std::string Enviado(const char* nombre)
{
    std::ifstream fichero(std::filesystem::path(EFV_CARPETA_DATOS) / nombre);
    std::ostringstream texto;
    texto << fichero.rdbuf();
    return texto.str();
}

Tarifa DosCeroTD(const char* zona)
{
    Tarifa tarifa;
    tarifa.periodos = LeerPeriodos(Enviado("tarifa_20td_horas.csv"), zona);
    tarifa.festivos = LeerFestivos(Enviado("tarifa_20td_festivos.csv"));
    tarifa.adPrecio = {0.2, 0.15, 0.1};
    tarifa.dImpuestos = 1.1;
    return tarifa;
}

std::size_t Hora(int iDiaAno, int iHora)
{
    return static_cast<std::size_t>(iDiaAno * 24 + iHora);
}

// 2025 has 261 days from Monday to Friday, of which 1 and 6 January, 1 May, 15 August, 8 and 25 December are
// holidays: 255 × 8 hours of the first and of the second period, whichever clock counts.
TEST(Tarifas, LasHorasDe2025PorPeriodos)
{
    const Tarifa tarifa = DosCeroTD("peninsula");
    for (const bool bSolar : {true, false}) {
        const CalendarioTarifa calendario{DiasDeUnAno(2025), bSolar};
        const auto aiPeriodo = PeriodosDelAno(tarifa, calendario);
        EXPECT_EQ(std::ranges::count(aiPeriodo, 0), 255 * 8);
        EXPECT_EQ(std::ranges::count(aiPeriodo, 1), 255 * 8);
        EXPECT_EQ(aiPeriodo.size(), 8760U);
    }
    // Tuesday 7 January: from 10 to 14 by the clock, 9 to 13 by the sun. Tuesday 1 July: 8 to 12 by the sun.
    const auto adPrecio = PreciosDelAno(tarifa, {DiasDeUnAno(2025), true});
    EXPECT_DOUBLE_EQ(adPrecio[Hora(6, 8)], 0.15 * 1.1);
    EXPECT_DOUBLE_EQ(adPrecio[Hora(6, 9)], 0.2 * 1.1);
    EXPECT_DOUBLE_EQ(adPrecio[Hora(181, 8)], 0.2 * 1.1);
    EXPECT_DOUBLE_EQ(adPrecio[Hora(181, 12)], 0.15 * 1.1);
    // The afternoon's dear hours of Ceuta begin at 19.
    const auto ceuta = PeriodosDelAno(DosCeroTD("ceuta_melilla"), {DiasDeUnAno(2025), false});
    EXPECT_EQ(ceuta[Hora(6, 18)], 1);
    EXPECT_EQ(ceuta[Hora(6, 19)], 0);
}

// Workdays of March from 9 to 14 are in the second of six periods, of October in the fourth; nights and Sundays
// in the last.
TEST(Tarifas, SeisPeriodosDeUnFichero)
{
    Tarifa tarifa;
    tarifa.periodos = LeerPeriodos(Enviado("ejemplos/tarifa-seis-periodos.csv"), "");
    EXPECT_EQ(tarifa.periodos.nPeriodos, 6U);
    EXPECT_EQ(tarifa.periodos.En(2, ClaseDia::laborable, 13), 1);
    EXPECT_EQ(tarifa.periodos.En(2, ClaseDia::laborable, 14), 2);
    EXPECT_EQ(tarifa.periodos.En(9, ClaseDia::laborable, 9), 3);
    EXPECT_EQ(tarifa.periodos.En(9, ClaseDia::laborable, 7), 5);
    EXPECT_EQ(tarifa.periodos.En(0, ClaseDia::festivo, 12), 5);
    tarifa.adPrecio = {0.2, 0.2, 0.2, 0.2, 0.2};
    EXPECT_THROW(PreciosDelAno(tarifa, {DiasDeUnAno(2025)}), ErrorTarifa);
}

TEST(Tarifas, UnaTablaQueNoValeDiceSuLinea)
{
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"", "no tiene cabecera"},
        {"hora,periodo\n", "falta la columna «tipo_dia»"},
        {"tipo_dia,hora,periodo\ntodos,0-23,P1\n", "falta el período del mes 1, día laborable, hora 23"},
        {"tipo_dia,hora,periodo\ntodos,0-25,P1\n", "línea 2: «0-25» no vale en la columna «hora»"},
        {"tipo_dia,hora,periodo\nlunes,0-24,P1\n", "línea 2: «lunes» no es un tipo de día"},
        {"tipo_dia,hora,periodo\ntodos,0-24,P7\n", "línea 2: «P7» no es un período"},
        {"zona,tipo_dia,hora,periodo\nsur,todos,0-24,P1\n", "no tiene la zona «norte»"},
    };
    for (const auto& [csv, esperado] : casos) {
        try {
            LeerPeriodos(csv, "norte");
            ADD_FAILURE() << csv;
        } catch (const ErrorTarifa& error) {
            EXPECT_NE(std::string(error.what()).find(esperado), std::string::npos) << error.what();
        }
    }
    // 275 and 259 are 19 and 3 modulo 256.
    for (const char* csv : {"mes,dia\n2,30\n", "mes,dia\n12,275\n", "mes,dia\n259,1\n"})
        EXPECT_THROW(LeerFestivos(csv), ErrorTarifa) << csv;
}

}  // namespace

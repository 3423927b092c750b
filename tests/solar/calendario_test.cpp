#include <climits>

#include <gtest/gtest.h>

#include <quorvel/reloj.h>
#include <quorvel/solar.h>

#include "comun/reloj_parado.h"

namespace {

TEST(Calendario, HorasDelAnoEnSusLimites)
{
    EXPECT_EQ(phGetHora(8759), 23);
    EXPECT_EQ(phGetMes(8759), 11);
    EXPECT_EQ(phGetDia(8759), 30);
    for (const int iHora : {8760, 9000, INT_MAX}) {
        EXPECT_EQ(phGetHora(iHora), -1);
        EXPECT_EQ(phGetMes(iHora), -1);
        EXPECT_EQ(phGetDia(iHora), -1);
    }
    EXPECT_EQ(phGetMes(743), 0);
    EXPECT_EQ(phGetMes(744), 1);
    EXPECT_EQ(phGetDia(744), 0);
    // February has 28 days: hour (31 + 28) · 24 is the first of March.
    EXPECT_EQ(phGetMes(1416), 2);
    EXPECT_EQ(phGetDia(1415), 27);
}

TEST(Calendario, UnaHoraNegativaTruncaHaciaCero)
{
    EXPECT_EQ(phGetHora(-25), -1);
    EXPECT_EQ(phGetHora(-24), 0);
    EXPECT_EQ(phGetMes(-25), 0);
    EXPECT_EQ(phGetDia(-25), -1);
    EXPECT_EQ(phGetDia(INT_MIN), INT_MIN / 24);
}

TEST(Calendario, BisiestoEsDivisiblePorCuatro)
{
    EXPECT_EQ(phIsAnoBisiesto(2100), 1);
    EXPECT_EQ(phIsAnoBisiesto(2023), 0);
    EXPECT_EQ(phGetNumDiasMes(2100, 1), 29);
    EXPECT_EQ(phGetNumDiasMes(2023, 1), 28);
    EXPECT_EQ(phGetNumDiasMes(2023, 8), 30);
    EXPECT_EQ(phGetNumDiasMes(2023, 12), 0);
    EXPECT_EQ(phGetNumDiasMes(2023, -1), 0);
}

// 1 January 2018 was a Monday; 2100 has no 29 February in the Gregorian calendar.
TEST(Calendario, TipoDeDiaDeUnaFecha)
{
    EXPECT_EQ(phGetTipoDiaMes(2018, 0, 0), 0);
    EXPECT_EQ(phGetTipoDiaMes(2026, 10, 20), 5);  // Saturday 21 November 2026
    EXPECT_EQ(phGetTipoDiaMes(2000, 1, 28), 1);   // Tuesday 29 February 2000
    EXPECT_EQ(phGetTipoDiaMes(2023, 1, 28), -1);
    EXPECT_EQ(phGetTipoDiaMes(2100, 1, 28), -1);
    EXPECT_EQ(phGetTipoDiaMes(2018, 12, 0), -1);
    EXPECT_EQ(phGetTipoDiaMes(2018, -1, 0), -1);
    EXPECT_EQ(phGetTipoDiaMes(2018, 3, 30), -1);
    EXPECT_EQ(phGetTipoDiaMes(2018, 0, -1), -1);
    EXPECT_EQ(phGetTipoDiaMes(SHRT_MAX, SHRT_MAX, SHRT_MAX), -1);
}

// Day 1 is 31 January, a Wednesday in 2018; day 31 is 1 January; day 32 is 28 February.
TEST(Calendario, ElDiaDelAnoCuentaHaciaAtrasEnSuMes)
{
    EXPECT_EQ(phGetTipoDiaMes2(2018, 1), 2);
    EXPECT_EQ(phGetTipoDiaMes2(2018, 31), 0);
    EXPECT_EQ(phGetTipoDiaMes2(2018, 32), 2);
    EXPECT_EQ(phGetTipoDiaMes2(2018, 365), phGetTipoDiaMes(2018, 11, 0));
    EXPECT_EQ(phGetTipoDiaMes2(2018, 366), 0);
    EXPECT_EQ(phGetTipoDiaMes2(2018, 0), -1);
    EXPECT_EQ(phGetTipoDiaMes2(2018, INT_MIN), -1);
}

TEST(Calendario, TipoDeDiaDelAnoDeReferencia)
{
    EXPECT_EQ(phGetTipoDiaSemana(0, 7), 0);
    EXPECT_EQ(phGetTipoDiaSemana(1, 0), 3);
    EXPECT_EQ(phGetTipoDiaSemana(11, 30), 0);
    EXPECT_EQ(phGetTipoDiaSemana(12, 0), 0);
    EXPECT_EQ(phGetTipoDiaSemana(1, 28), 0);
    EXPECT_EQ(phGetTipoDiaSemana(1, -3), 0);
}

TEST(Calendario, Nombres)
{
    CString csDia = L"x", csMes = L"x";
    phGetNombreDiaMes(csDia, csMes, 2018, 13, 0);
    EXPECT_EQ(csDia, L"");
    EXPECT_EQ(csMes, L"Favorable");
    phGetNombreDiaMes(csDia, csMes, 2018, 1, 3);
    EXPECT_EQ(csDia, L"Domingo");
    EXPECT_EQ(csMes, L"Febrero");
    phGetNombreMes(15, csMes);
    EXPECT_EQ(csMes, L"");
    phGetNombreMesLT(14, csMes);
    EXPECT_EQ(csMes, L"DFA");
    phGetNombreDiaSemana(csDia, 2);
    EXPECT_EQ(csDia, L"Miércoles");
    phGetNombreDiaSemana(csDia, -1);
    EXPECT_EQ(csDia, L"");
}

TEST(Calendario, AnoDelReloj)
{
    efv::FijarReloj(efv::FechaHora{2031, 5, 6, 7, 8, 9});
    EXPECT_EQ(phGetAnoActual(), 2031);
    {
        const efv::pruebas::RelojParado parado;
        EXPECT_EQ(phGetAnoActual(), -1);
    }
    efv::FijarReloj(std::nullopt);
    EXPECT_GE(phGetAnoActual(), 2024);
}

}  // namespace

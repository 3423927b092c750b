#include <bit>
#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/reloj.h>
#include <quorvel/solar.h>

#include "comun/ficheros.h"
#include "comun/reloj_parado.h"
#include "solar/radiacion.h"

namespace {

using efv::pruebas::LeerCsv;

void EsperarCerca(double obtenido, double esperado, const std::string& caso)
{
    if (std::isnan(esperado))
        EXPECT_TRUE(std::isnan(obtenido)) << caso;
    else
        EXPECT_NEAR(obtenido, esperado, 1e-9 * std::max(1.0, std::abs(esperado))) << caso;
}

double Ri(int iMes, double dLatitud, double dH, double dInclinacion)
{
    double d = -1.0;
    EXPECT_EQ(phGetRI_kWh_m2_dia(d, 0, iMes, dLatitud, 1, dH, dInclinacion, 0, 1, 1), 1);
    return d;
}

// vectores.csv comes from vectores.py, an independent program.
TEST(Radiacion, LaCorrelacionDaLosVectores)
{
    int casos = 0;
    for (const auto& fila : LeerCsv("solar/vectores.csv")) {
        if (fila[0] != "ri")
            continue;
        ++casos;
        EsperarCerca(Ri(std::stoi(fila[1]), std::stod(fila[2]), std::stod(fila[3]), std::stod(fila[4])),
                     std::stod(fila[5]), fila[1] + " " + fila[2] + " " + fila[3] + " " + fila[4]);
    }
    EXPECT_EQ(casos, 200);
}

TEST(Sol, LasFormulasDanLosVectores)
{
    int casos = 0;
    for (const auto& fila : LeerCsv("solar/vectores.csv")) {
        if (fila[0] != "sol")
            continue;
        ++casos;
        const double n = std::stod(fila[1]), lat = std::stod(fila[2]), omega = phGetHOR(std::stod(fila[3]));
        const std::string caso = fila[1] + " " + fila[2] + " " + fila[3];
        EsperarCerca(phGetDEC(n), std::stod(fila[4]), caso);
        EsperarCerca(phGetALT(lat, phGetDEC(n), omega), std::stod(fila[5]), caso);
        const double azimut = phGetAZI(lat, phGetDEC(n), phGetALT(lat, phGetDEC(n), omega), omega);
        // Near the meridian the arccosine loses half of its digits.
        EXPECT_NEAR(azimut, std::stod(fila[6]), 1e-5) << caso;
    }
    EXPECT_EQ(casos, 60);
}

TEST(Sol, CasosSenalados)
{
    EXPECT_NEAR(phGetDEC(80), 23.45 * std::sin(std::acos(-1.0) * 359.0136986 / 180), 1e-6);
    EXPECT_LT(phGetDEC(80), 0.0);
    EXPECT_EQ(phGetHOR(0), 180);
    EXPECT_EQ(phGetHOR(24), -180);
    EXPECT_NEAR(phGetALT(40, 0, 0), 50, 1e-12);
    EXPECT_EQ(phGetALT2(40, 0, 0, 12), phGetALT(40, phGetDEC(1), 0));
    EXPECT_EQ(phGetALT2(40, 2, 0, 9), phGetALT(40, phGetDEC(60), 45));
    EXPECT_EQ(phGetALT2(40, 99, 0, 9), phGetALT(40, phGetDEC(366), 45));
    EXPECT_EQ(phGetALT2(40, -5, 2, 9), phGetALT(40, phGetDEC(3), 45));
    // At noon and within the tolerance of it the magnitude stays unsigned.
    EXPECT_GE(phGetAZI(40, 0, 30, 1e-6), 0);
    EXPECT_LT(phGetAZI(40, 0, 30, 2e-6), 0);
    EXPECT_EQ(phGetAZI(40, 10, 30, 45), -phGetAZI(40, 10, 30, -45));
    // Nothing is clamped: a sun that can't stand there has no azimuth.
    EXPECT_TRUE(std::isnan(phGetAZI(40, -23, 60, 30)));
}

TEST(Radiacion, UnPlanoHorizontalRecibeLoHorizontal)
{
    for (int iMes = 0; iMes < 12; ++iMes)
        EXPECT_NEAR(Ri(iMes, 40, 15000, 0), 15000 * 0.0002777778, 1e-12);
}

TEST(Radiacion, OctubreUsaElDia270)
{
    efv::solar::RegistroRadiacion registro;
    efv::solar::CalcularMes(registro, 9, efv::solar::PrepararPlano(40, 30), 11000, {});
    // δ = 23.45° · sin(360°/365 · (284 + 270)) = 23.45° · sin(186.411°): −2.618 degrees, where mid-October
    // would give −9.6.
    EXPECT_NEAR(registro.dDeclinacion[9], -0.04570, 1e-5);
    EXPECT_EQ(registro.iCalculado[9], 1);
    EXPECT_EQ(registro.iCalculado[8], 0);
}

// On the horizontal at the equator the cosine of the incidence is cos δ · cos 37.5°.
TEST(Radiacion, ElRegistroGuardaLaIncidencia)
{
    efv::solar::RegistroRadiacion registro;
    efv::solar::CalcularMes(registro, 2, efv::solar::PrepararPlano(0, 0), 18000, {});
    const double coseno = std::cos(registro.dDeclinacion[2]) * std::cos(37.5 * std::acos(-1.0) / 180);
    EXPECT_NEAR(registro.dIncidencia[2], std::acos(coseno) * 180 / std::acos(-1.0), 1e-9);
    const double sinSuelo = registro.dParteConDifusa[2];
    EXPECT_EQ(registro.dParteTotal[2], sinSuelo);  // a horizontal plane sees no ground
    EXPECT_NEAR(sinSuelo - registro.dParteDirecta[2],
                registro.dFraccionDifusa[2] / registro.dRelacion[2] * 2 * 0.440418, 1e-12);
}

TEST(Energia, LosTresFactoresMultiplican)
{
    double dia = 0, ri = 0;
    EXPECT_EQ(phGetEIR_kWh_dia(dia, 0, 5, 40, 1, 25000, 30, 77, 3, 0.8, 0.9), 1);
    EXPECT_EQ(phGetRI_kWh_m2_dia(ri, 0, 5, 40, 1, 25000, 30, -12, 0.1, 0.2), 1);
    EXPECT_DOUBLE_EQ(dia, ri * 3 * 0.8 * 0.9);
    double kj = 0, riKj = 0;
    EXPECT_EQ(phGetEIR_kJ_dia(kj, 0, 5, 40, 1, 25000, 30, 0, 3, 0.8, 0.9), 1);
    EXPECT_EQ(kj, dia * 3600);
    EXPECT_EQ(phGetRI_kJ_m2_dia(riKj, 0, 5, 40, 1, 25000, 30, 0, 1, 1), 1);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(riKj), std::bit_cast<std::uint64_t>(ri));
}

double DiasDeFebrero()
{
    double dia = 0, mes = 0;
    phGetEIR_kWh_dia(dia, 0, 1, 40, 1, 12000, 30, 0, 1, 1, 1);
    phGetEIR_kWh_mes(mes, 0, 1, 40, 1, 12000, 30, 0, 1, 1, 1);
    return mes / dia;
}

TEST(Energia, FebreroSigueAlReloj)
{
    efv::FijarReloj(efv::FechaHora{2027, 1, 1, 0, 0, 0});
    EXPECT_DOUBLE_EQ(DiasDeFebrero(), 28);
    efv::FijarReloj(efv::FechaHora{2100, 1, 1, 0, 0, 0});
    EXPECT_DOUBLE_EQ(DiasDeFebrero(), 29);
    {
        const efv::pruebas::RelojParado parado;
        EXPECT_DOUBLE_EQ(DiasDeFebrero(), 29);
    }
    efv::FijarReloj(std::nullopt);
}

TEST(Energia, ElAnoSumaLosMesesDeCadaRadiacion)
{
    double h[12], suma = 0, ano = -1, anoKj = -1;
    for (int i = 0; i < 12; ++i) {
        h[i] = 6000 + 1500 * i;
        double mes = 0;
        EXPECT_EQ(phGetEIR_kWh_mes(mes, 0, i, -35, 0, h[i], 30, 0, 2, 0.75, 1), 1);
        suma += mes;
    }
    EXPECT_EQ(phGetEIR_kWh_ano(ano, 0, -35, 0, h, 30, 0, 2, 0.75, 1), 1);
    EXPECT_EQ(ano, suma);
    EXPECT_EQ(phGetEIR_kJ_ano(anoKj, 0, -35, 0, h, 30, 0, 2, 0.75, 1), 1);
    EXPECT_EQ(anoKj, ano * 3600);
}

TEST(Energia, UnMesFueraFallaSinEscribir)
{
    for (const int iMetodo : {0, 1}) {
        for (const int iMes : {12, 13, -1, 1 << 30}) {
            double d = 5.5;
            EXPECT_EQ(phGetRI_kWh_m2_dia(d, iMetodo, iMes, 40, 1, 20000, 30, 0, 1, 1), 0);
            EXPECT_EQ(phGetEIR_kWh_dia(d, iMetodo, iMes, 40, 1, 20000, 30, 0, 1, 1, 1), 0);
            EXPECT_EQ(phGetEIR_kJ_mes(d, iMetodo, iMes, 40, 1, 20000, 30, 0, 1, 1, 1), 0);
            EXPECT_EQ(d, 5.5);
        }
    }
}

// Beyond the polar circle in winter the result is not-a-number and the call succeeds.
TEST(Radiacion, SinOrtoEsNoNumeroConExito)
{
    EXPECT_TRUE(std::isnan(Ri(11, 80, 100, 30)));
    double ano = 0;
    const double h[12] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    EXPECT_EQ(phGetEIR_kWh_ano(ano, 0, 80, 1, h, 30, 0, 1, 1, 1), 1);
    EXPECT_TRUE(std::isnan(ano));
}

}  // namespace

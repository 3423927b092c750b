// Sale to the grid: amounts, years, repayments and rate against vectores.py, which solves loans by walking the
// debt and rates by bracketing.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <quorvel/economics_calculo.h>
#include <quorvel/framework/CException.h>

#include "economics/vectores.h"

namespace {

using namespace efv::economics;
using efv::pruebas::EstudioDe;
using efv::pruebas::LeerVectoresEconomia;

double Ultimo(const CArray<double, double&>& ad)
{
    return ad[ad.GetSize() - 1];
}

void Calcular(CSFVCalculoEconomico& e)
{
    CalcularImportes(e);
    CalcularAnos(e);
    CalcularTIR(e);
}

TEST(VentaRed, EstudiosEnterosContraElProgramaIndependiente)
{
    const auto vectores = LeerVectoresEconomia("venta");
    ASSERT_EQ(vectores.size(), 40U);
    for (std::size_t i = 0; i < vectores.size(); ++i) {
        CSFVCalculoEconomico e = EstudioDe(vectores[i]);
        Calcular(e);
        const std::map<std::string, double> hallados = {
            {"dEnergiaResultante", e.dEnergiaResultante},
            {"dRendimientoInicial", e.dRendimientoInicial},
            {"dCosteElegible", e.dCosteElegible},
            {"dRepercusion", e.dRepercusion},
            {"dTotalPrestamos", e.dTotalPrestamos},
            {"dTotalPagar", e.dTotalPagar},
            {"dCuotaAnual", e.dCuotaAnual},
            {"filas", static_cast<double>(e.aAnio.GetSize())},
            {"energiaUltima", Ultimo(e.aEnergia)},
            {"primaUltima", Ultimo(e.aPrima)},
            {"ingresosTotales", Ultimo(e.aIngresosAcumulados)},
            {"cuotaUltima", Ultimo(e.aCapitalInteres)},
            {"acumulado", Ultimo(e.aAcumulado)},
        };
        for (const auto& [nombre, dHallado] : hallados) {
            const double dEsperado = vectores[i].resultados.at(nombre);
            EXPECT_NEAR(dHallado, dEsperado, 1e-9 * std::max(1.0, std::abs(dEsperado))) << i << " " << nombre;
        }
        // The search ends at a present value of a cent.
        EXPECT_NEAR(e.dTIR, vectores[i].resultados.at("dTIR"), 1e-4) << i;
    }
}

// 1,000 lent at 10 % for two years: 576.190476 a year by the French method (1000 · 0.1 / (1 - 1.1^-2)); 600 and
// 550 by the German one.
TEST(VentaRed, CuotasDeUnPrestamoAMano)
{
    EXPECT_NEAR(CuotaAnual(0, 1000, 0.1, 2, 0), 576.190476190476, 1e-9);
    EXPECT_NEAR(CuotaAnual(0, 1000, 0.1, 2, 1), 576.190476190476, 1e-9);
    EXPECT_NEAR(CuotaAnual(1, 1000, 0.1, 2, 0), 600, 1e-9);
    EXPECT_NEAR(CuotaAnual(1, 1000, 0.1, 2, 1), 550, 1e-9);
    EXPECT_EQ(CuotaAnual(0, 1000, 0.1, 2, 2), 0.0);
    EXPECT_EQ(CuotaAnual(7, 1000, 0.1, 2, 0), 0.0);
    EXPECT_TRUE(std::isnan(CuotaAnual(0, 1000, 0.0, 2, 0)));  // 0/0: no interest, French method
}

// -100, 60, 60: 60/1.13066 + 60/1.13066² = 100, that is 13.0662 %. A rate above 150 % or below -50 % is out of
// reach.
TEST(VentaRed, TasaInternaDentroYFueraDeSuAlcance)
{
    const double flujos[] = {60.0, 60.0};
    const Tasa tasa = TasaInternaRetorno(100.0, flujos);
    EXPECT_TRUE(tasa.bHallada);
    EXPECT_NEAR(tasa.dTIR, 13.066238629, 1e-2);
    const double muchos[] = {1000.0};
    EXPECT_FALSE(TasaInternaRetorno(100.0, muchos).bHallada);
    const double pocos[] = {1.0, 1.0};
    EXPECT_FALSE(TasaInternaRetorno(100.0, pocos).bHallada);
    const double nan[] = {std::numeric_limits<double>::quiet_NaN()};
    EXPECT_EQ(TasaInternaRetorno(100.0, nan).dTIR, 0.0);
}

// The literal search: ten thousand rounds whatever happens.
TEST(VentaRed, LaBusquedaQueParaAntesDaLosMismosBits)
{
    unsigned semilla = 7;
    const auto azar = [&] { return (semilla = semilla * 1664525U + 1013904223U) / 4294967296.0; };
    for (int i = 0; i < 300; ++i) {
        std::vector<double> flujos(static_cast<std::size_t>(1 + i % 30));
        for (double& d : flujos)
            d = (azar() - 0.3) * 1e5;
        const double dCoste = azar() * 3e5;
        double r = 50, paso = 50, a = 0;
        for (int ronda = 0; ronda < 10000; ++ronda) {
            double v = -dCoste;
            for (std::size_t k = 0; k < flujos.size(); ++k)
                v += flujos[k] / std::pow(r / 100 + 1, static_cast<double>(k + 1));
            a = std::abs(v);
            if (a <= 0.01 + 1e-6)
                break;
            r += v > 1e-6 ? paso : v < -1e-6 ? -paso : 0.0;
            paso *= 0.5;
        }
        EXPECT_EQ(TasaInternaRetorno(dCoste, flujos).dTIR, a < 0.1 - 1e-6 ? r : 0.0) << i;
    }
}

TEST(VentaRed, CosteNuloDejaLaTasaYUnEstudioSinAnosNoTieneFilas)
{
    CSFVCalculoEconomico e;
    e.dTIR = 12.5;
    e.dAniosEstudio = 0.0;
    Calcular(e);
    EXPECT_EQ(e.dTIR, 12.5);
    EXPECT_TRUE(e.aAnio.IsEmpty());
    EXPECT_EQ(e.dCuotaAnual, 0.0);
}

TEST(VentaRed, SobreTablasLlenasLaCadenaSigueDesdeSuPrincipio)
{
    CSFVCalculoEconomico e;
    e.dEnergiaBase = 1000;
    e.dAniosEstudio = 3;
    Calcular(e);
    e.dEnergiaBase = 2000;
    Calcular(e);
    ASSERT_EQ(e.aEnergia.GetSize(), 6);
    EXPECT_DOUBLE_EQ(e.aEnergia[3], 1600.0);
    EXPECT_DOUBLE_EQ(e.aEnergia[4], 800.0 * 0.995);  // from entry 0, which is the first study's
}

TEST(VentaRed, DemasiadosAnosNoTocanElEstudio)
{
    CSFVCalculoEconomico e;
    e.dAniosEstudio = 100001;
    EXPECT_THROW(CalcularAnos(e), CInvalidArgException);
    EXPECT_TRUE(e.aAnio.IsEmpty());
}

// 10 kWp, 80 %: 5 kWh/m²·day give 40 kWh a day, 1,240 in January and 1,120 in February; the mean of twelve
// months of 40 · days is 40 · 365 / 12.
TEST(VentaRed, MesesPorRadiacionYPorEnergia)
{
    CSFVCalculoEconomico e;
    e.dPotenciaGenerador = 10000;
    std::array<double, 12> ad{};
    ad.fill(5000);
    AnadirMeses(e, MesesPorRadiacion(e, ad, ad));
    ASSERT_EQ(e.aEnergiaMes.GetSize(), 13);
    EXPECT_DOUBLE_EQ(e.aRadInclinada[0], 5.0);
    EXPECT_DOUBLE_EQ(e.aEnergiaDia[1], 40.0);
    EXPECT_DOUBLE_EQ(e.aEnergiaMes[0], 1240.0);
    EXPECT_DOUBLE_EQ(e.aEnergiaMes[1], 1120.0);
    EXPECT_NEAR(e.aEnergiaMes[12], 40.0 * 365 / 12, 1e-9);
    e.Reset();
    e.dFactorMejora = 50;
    std::array<double, 12> adEnergia{};
    adEnergia.fill(310);
    AnadirMeses(e, MesesPorEnergia(e, ad, ad, adEnergia));
    EXPECT_DOUBLE_EQ(e.aEnergiaMes[0], 372.0);  // 310 · 0.8 · 1.5
    EXPECT_DOUBLE_EQ(e.aEnergiaDia[0], 12.0);
}

}  // namespace

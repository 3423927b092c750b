#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "assistants/busqueda_literal.h"
#include "assistants/calculo_red.h"
#include "assistants/vectores.h"

namespace {

using namespace efv::assistants;
namespace pruebas = efv::pruebas;

pruebas::Valores Nombrados(CBaseInversorModelo& i, CBasePanelFotoModelo& p)
{
    return {{"dPCANom", &i.dPCANom},
            {"dVMPPMin", &i.dVMPPMin},
            {"dVMPPMax", &i.dVMPPMax},
            {"dVCCMax", &i.dVCCMax},
            {"dICCMax", &i.dICCMax},
            {"csICCMaxMPPT", &i.csICCMaxMPPT},
            {"dPmpm", &p.dPmpm},
            {"dVmpm", &p.dVmpm},
            {"dImpm", &p.dImpm},
            {"dVoc", &p.dVoc},
            {"dH", &p.dH},
            {"dB", &p.dB},
            {"dP", &p.dP}};
}

TEST(CalculoRed, DaLosVectores)
{
    const auto vectores = pruebas::LeerVectores("red");
    ASSERT_EQ(vectores.size(), 150U);
    for (std::size_t i = 0; i < vectores.size(); ++i) {
        const auto& vector = vectores[i];
        ValoresRed v;
        CBaseInversorModelo inversor;
        CBasePanelFotoModelo panel;
        for (const auto& [nombre, texto] : vector.entradas) {
            pruebas::Asignar(pruebas::Sueltos(ValoresPorNombre(v)), nombre, texto);
            pruebas::Asignar(Nombrados(inversor, panel), nombre, texto);
        }
        // A comma can't stand in the vectors' file.
        std::ranges::replace(inversor.csICCMaxMPPT, L';', L',');
        v.inversor = LeerInversor(inversor);
        v.panel = Disponer(panel, v.iDisposicion);
        RecalcularRed(v, vector.bForzar);
        for (const auto& [nombre, texto] : vector.resultados)
            pruebas::Esperar(pruebas::Sueltos(ValoresPorNombre(v)), nombre, texto, i);
    }
}

// 250 W panels of 30 V and 36 V open, 8 A, on a 2500 W inverter of 100 to 400 V.
class CalculoRedAMano : public testing::Test {
protected:
    ValoresRed v;

    CalculoRedAMano()
    {
        v.dLatitud = 40.0;
        v.dPotenciaObjetivo = 3.0;
        v.inversor = {.dPCANom = 2500, .dVMPPMax = 400, .dVMPPMin = 100, .dVCCMax = 500, .dIMaxEntrada = 20};
        v.panel = {.dPmpm = 250,
                   .dVmpm = 30,
                   .dImpm = 8,
                   .dVoc = 36,
                   .dLargoPanel = 1600,
                   .dAnchoPanel = 1000,
                   .dAreaPanel = 1.6};
    }

    Ramales Propuesta(bool bForzar = true)
    {
        RecalcularRed(v, bForzar);
        return {v.iPanelesSerieP, v.iPanelesParaleloP};
    }
};

TEST_F(CalculoRedAMano, RepartoDeTresKilovatiosEnDosInversores)
{
    EXPECT_EQ(Propuesta(), (Ramales{6, 1}));  // 1500 W each
    EXPECT_EQ(v.iInversores, 2);
    EXPECT_EQ(v.iTotalPaneles, 12);
    EXPECT_EQ(v.dPotenciaTotal, 3.0);
    EXPECT_EQ(v.dPotenciaInversores, 5.0);
    EXPECT_EQ(v.dTensionRamal, 180.0);
    EXPECT_EQ(v.dInclinacion, 30.0);
    // The share follows the proposed count, whatever count is in force.
    v.iInversores = 1;
    v.iPanelesSerie = 4;
    EXPECT_EQ(Propuesta(false), (Ramales{6, 1}));
    EXPECT_EQ(v.iTotalPaneles, 4);
    EXPECT_EQ(v.iTotalPanelesP, 12);
    EXPECT_EQ(v.dPotenciaInversores, 2.5);
}

TEST_F(CalculoRedAMano, LosLimitesDeTensionYCorriente)
{
    v.inversor.dVMPPMax = 180;  // six panels exactly: inside
    EXPECT_EQ(Propuesta(), (Ramales{6, 1}));
    v.inversor.dVMPPMax = 400;
    v.inversor.dVMPPMin = 180;  // six panels exactly: outside; Smax is 6, so nothing fits
    // Middle of the window 290 V over 36 V: eight, more power than the share.
    EXPECT_EQ(Propuesta(), (Ramales{8, 1}));
    v.inversor.dVMPPMin = 60;
    v.inversor.dVCCMax = 108;  // three panels exactly
    EXPECT_EQ(Propuesta(), (Ramales{3, 2}));
    v.inversor.dIMaxEntrada = 15.9;  // one branch of 8 A
    EXPECT_EQ(Propuesta(), (Ramales{3, 1}));
    v.inversor.dIMaxEntrada = 16;
    EXPECT_EQ(Propuesta(), (Ramales{3, 2}));
}

TEST_F(CalculoRedAMano, AIgualDistanciaGananMenosRamales)
{
    // 12 panels as 12 × 1, 6 × 2 or 4 × 3.
    v.dPotenciaObjetivo = 6.0;
    v.inversor.dPCANom = 3000;
    EXPECT_EQ(Propuesta(), (Ramales{12, 1}));
    // 6.5 panels: 7 and 6 are equally far, and more panels are tried first. Only 6 are within the share.
    v.dPotenciaObjetivo = 1.625;
    EXPECT_EQ(Propuesta(), (Ramales{6, 1}));
}

TEST_F(CalculoRedAMano, MenosDeUnPanelPorInversor)
{
    v.dPotenciaObjetivo = 0.2;
    EXPECT_EQ(Propuesta(), (Ramales{6, 1}));  // 250 V over 36 V; nothing fits below 100 V
    v.dPotenciaObjetivo = 0.0;
    EXPECT_EQ(Propuesta(), (Ramales{6, 1}));
    EXPECT_EQ(v.iInversores, 0);
}

TEST_F(CalculoRedAMano, LasFilasSiguenLaPropuestaOLaPersona)
{
    v.dLatitud = 16.0;  // shadow as long as the height; tilt proposed 6
    RecalcularRed(v, true);
    const double dSeis = 6 * std::acos(-1.0) / 180;
    EXPECT_NEAR(v.dDistanciaFilas, 1600 * (std::sin(dSeis) + std::cos(dSeis)), 1e-9);
    v.dInclinacion = 30.0;
    EXPECT_TRUE(EspaciarFilas(v));
    EXPECT_NEAR(v.dDistanciaFilas, 1600 * (0.5 + std::sqrt(0.75)), 1e-9);
    v.panel.dLargoPanel = 0.0;
    EXPECT_FALSE(EspaciarFilas(v));
    RecalcularRed(v, true);  // the proposal stays, and goes into force
    EXPECT_EQ(v.dDistanciaFilas, v.dDistanciaFilasP);
}

TEST_F(CalculoRedAMano, UnModeloQueFaltaNoDetieneElCalculo)
{
    v.panel = {};
    EXPECT_EQ(Propuesta(), (Ramales{1, 1}));
    v = {};
    EXPECT_EQ(Propuesta(), (Ramales{1, 1}));
    EXPECT_EQ(v.iInversores, 1);
}

TEST(Equipos, LaCorrienteLimiteEsLaMenorPositiva)
{
    EXPECT_EQ(CorrienteLimite(30, L"12,5/9/0"), 9.0);
    EXPECT_EQ(CorrienteLimite(30, L" 12.5 / -3/ abc "), 12.5);
    EXPECT_EQ(CorrienteLimite(30, L"0/0"), 30.0);
    EXPECT_EQ(CorrienteLimite(30, L""), 30.0);
    EXPECT_EQ(CorrienteLimite(30, L"10/9,9999995/11"), 10.0);
}

// One case: sometimes ordinary, sometimes with figures on the limits, in ties, null or absurd.
CampoBuscado CasoAlAzar(std::mt19937_64& azar)
{
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution(a, b)(azar); };
    const auto entero = [&](int a, int b) { return std::uniform_int_distribution(a, b)(azar); };
    CampoBuscado c{};
    c.iSerieMaxima = entero(0, 9) == 0 ? entero(15, 40) : entero(1, 9);
    const bool bRedondo = entero(0, 1) == 0;  // whole figures meet limits and tie
    const auto valor = [&](double a, double b) { return bRedondo ? std::round(entre(a, b)) : entre(a, b); };
    c.dPmpm = valor(50, 600);
    c.dVmpm = valor(10, 60);
    c.dImpm = valor(1, 15);
    c.dVoc = valor(10, 80);
    c.dVMPPMin = valor(0, 150);
    c.dVMPPMax = c.dVMPPMin + valor(0, 600);
    c.dVCCMax = valor(100, 1000);
    c.dIMaxEntrada = valor(1, 300);
    c.dPotencia = valor(50, 60000);
    if (entero(0, 3) == 0) {
        constexpr double kRaros[] = {0.0,
                                     -0.0,
                                     1e-7,
                                     3e-7,
                                     1e-6,
                                     2.5e-6,
                                     1.0,
                                     -5.0,
                                     1e12,
                                     1e300,
                                     -1e300,
                                     std::numeric_limits<double>::infinity(),
                                     std::numeric_limits<double>::quiet_NaN()};
        double CampoBuscado::*const campos[] = {
            &CampoBuscado::dPmpm,   &CampoBuscado::dVmpm,        &CampoBuscado::dImpm,
            &CampoBuscado::dVoc,    &CampoBuscado::dVMPPMin,     &CampoBuscado::dVMPPMax,
            &CampoBuscado::dVCCMax, &CampoBuscado::dIMaxEntrada, &CampoBuscado::dPotencia};
        for (int i = entero(1, 3); i > 0; --i)
            c.*campos[entero(0, 8)] = kRaros[entero(0, 12)];
        // Distances that differ by about the tolerance.
        if (entero(0, 2) == 0) {
            c.dPmpm = entre(1e-8, 4e-6);
            c.dPotencia = c.dPmpm * entero(0, 400);
            c.dVMPPMin = -1;
        }
    }
    return c;
}

TEST(BusquedaRamales, EsElBucleEntero)
{
    std::mt19937_64 azar(20260108);
    int iHallados = 0;
    for (int i = 0; i < 120'000; ++i) {
        const CampoBuscado c = CasoAlAzar(azar);
        const auto esperado = pruebas::BuscarRamalesLiteral(c);
        const auto obtenido = BuscarRamales(c);
        iHallados += esperado ? 1 : 0;
        ASSERT_EQ(obtenido, esperado) << i << ": " << c.dPotencia << " " << c.dPmpm << " " << c.dVmpm << " "
                                      << c.dImpm << " " << c.dVoc << " " << c.dVMPPMin << " " << c.dVMPPMax
                                      << " " << c.dVCCMax << " " << c.dIMaxEntrada << " " << c.iSerieMaxima;
    }
    EXPECT_GT(iHallados, 60'000);
}

}  // namespace

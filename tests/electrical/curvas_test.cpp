#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include <quorvel/electrical.h>
#include <quorvel/framework/CException.h>

#include "comun/ficheros.h"
#include "electrical/curva_literal.h"
#include "electrical/graficas_modulo.h"

namespace {

using efv::GraficasPanel;
using efv::electrical::HojaModulo;
using efv::pruebas::CalcularCurvaLiteral;
using efv::pruebas::CurvaLiteral;
using efv::pruebas::LeerCsv;
using efv::ui::SerieCurva;
using Lista = CArray<double, double&>;

constexpr double kInfinito = std::numeric_limits<double>::infinity();
constexpr double kNoNumero = std::numeric_limits<double>::quiet_NaN();

struct Puntos {
    Lista aI, aV, aP;
};

// Isc, Voc, Imp, Vmp, temperature, Ns, Np, ideality.
using Entrada = std::array<double, 8>;

Puntos Curva(const Entrada& e, int iN)
{
    Puntos p;
    EXPECT_EQ(phCalcCurve(p.aI, p.aV, p.aP, e[0], e[1], e[2], e[3], e[4], e[5], e[6], e[7], iN), 1);
    return p;
}

using Valores = std::array<double, 5>;  // Isc, Voc, Imp, Vmp, Pmp

Valores Tipicos(const std::array<double, 9>& e, double dVmpm)
{
    Valores v{};
    EXPECT_EQ(phCalcValoresTipicos(e[0], e[1], e[2], dVmpm, e[3], e[4], e[5], e[6], e[7], e[8], &v[0], &v[1],
                                   &v[2], &v[3], &v[4]),
              1);
    return v;
}

// vectores.csv comes from vectores.py, an independent program.
TEST(Curvas, LosCalculosDanLosVectores)
{
    int tipicos = 0, curvas = 0;
    for (const auto& fila : LeerCsv("electrical/vectores.csv")) {
        std::vector<double> x;
        std::transform(fila.begin() + 1, fila.end(), std::back_inserter(x),
                       [](const auto& s) { return std::stod(s); });
        const auto cerca = [&](double obtenido, double esperado) {
            EXPECT_NEAR(obtenido, esperado, 1e-11 * std::max(1.0, std::abs(esperado)))
                << fila[0] << ' ' << fila[1];
        };
        if (fila[0] == "tipicos") {
            ++tipicos;
            const Valores v = Tipicos({x[0], x[1], x[2], x[3], x[4], x[5], x[6], x[7], x[8]}, 1e9);
            for (std::size_t i = 0; i < v.size(); ++i)
                cerca(v[i], x[9 + i]);
        } else {
            ++curvas;
            const Puntos p = Curva({x[0], x[1], x[2], x[3], x[4], x[5], x[6], x[7]}, static_cast<int>(x[8]));
            ASSERT_EQ(p.aI.GetSize(), std::ssize(x) / 3 - 3) << fila[1];
            for (std::ptrdiff_t i = 0; i < p.aI.GetSize(); ++i) {
                const std::size_t j = 9 + 3 * static_cast<std::size_t>(i);
                cerca(p.aV[i], x[j]);
                cerca(p.aI[i], x[j + 1]);
                cerca(p.aP[i], x[j + 2]);
            }
        }
    }
    EXPECT_EQ(tipicos, 40);
    EXPECT_EQ(curvas, 6);
}

TEST(ValoresTipicos, CasosSenalados)
{
    // At standard conditions, the sheet's values; Vmp is power over current whatever the sheet says.
    EXPECT_EQ(Tipicos({8.7, 37.8, 8.2, 250, 1000, 25, -125, 4.5, -1100}, 30.5),
              (Valores{8.7, 37.8, 8.2, 250 / 8.2, 250}));
    // By hand: g = 0.5, dI = 0.2, dP = -20; ((5 + 0.2) + 10.2 · 0.5)/2, ((100 - 20) + 180 · 0.5)/2.
    const Valores v = Tipicos({10, 40, 9, 200, 500, 75, -100, 4, -400}, 0);
    EXPECT_NEAR(v[0], 5.15, 1e-12);
    EXPECT_NEAR(v[1], 0.96375 * 35, 1e-12);  // 500 W/m² below 1000: 3.625 % less
    EXPECT_NEAR(v[2], 4.5, 1e-12);
    EXPECT_NEAR(v[3], 85 / 4.5, 1e-12);
    EXPECT_NEAR(v[4], 85, 1e-12);
    // In the dark Vmp has no guard.
    EXPECT_TRUE(std::isnan(Tipicos({10, 40, 9, 200, 0, 25, -100, 4, -400}, 0)[3]));
    EXPECT_EQ(Tipicos({10, 40, 9, 200, 0, 75, -100, 4, -400}, 0)[3], -kInfinito);

    double dVmp = 0;
    EXPECT_EQ(phCalcValoresTipicos(10, 40, 9, 0, 200, 500, 75, -100, 4, -400, nullptr, nullptr, nullptr, &dVmp,
                                   nullptr),
              1);
    EXPECT_EQ(dVmp, v[3]);
}

// With Vmp on the step, the exponential gives Imp there and the straight line goes on from it.
TEST(Curva, PasaPorElPuntoDeMaximaPotencia)
{
    const Puntos p = Curva({9, 40, 8, 30, 25, 60, 1, 1}, 100);
    ASSERT_EQ(p.aV.GetSize(), 101);
    EXPECT_EQ(p.aV[0], 0);
    EXPECT_NEAR(p.aI[75], 8, 1e-7);  // base and natural logarithm aren't quite each other's inverse
    EXPECT_NEAR(p.aI[76], 8 * 0.96, 1e-12);
    EXPECT_NEAR(p.aP[90], 36 * 3.2, 1e-10);
    EXPECT_NEAR(p.aV[100], 40, 1e-12);
    EXPECT_NEAR(p.aI[100], 0, 1e-12);
    EXPECT_NEAR(p.aP[100], 0, 1e-10);
}

TEST(Curva, CasosSenalados)
{
    // No logarithm from Imp = Isc on: the straight line alone, from the first step over Vmp.
    for (const double dImp : {9.0, 9.5}) {
        const Puntos p = Curva({9, 40, dImp, 30, 25, 60, 1, 1}, 10);
        ASSERT_EQ(p.aV.GetSize(), 3) << dImp;
        EXPECT_EQ(p.aV[0], 32);
        EXPECT_NEAR(p.aI[0], dImp * 0.8, 1e-12);
    }
    // Vmp above Voc: no straight line, which would lie far above Isc.
    const Puntos p = Curva({9, 40, 8, 41, 25, 60, 1, 1}, 10);
    EXPECT_EQ(p.aV.GetSize(), 11);
    EXPECT_LE(*std::max_element(p.aI.begin(), p.aI.end()), 9);
    // Within a millionth of Vmp the exponential still applies, and just beyond it no longer.
    EXPECT_EQ(Curva({9, 40, 9.5, 30 - 0.9e-6, 25, 60, 1, 1}, 4).aV[0], 40);
    EXPECT_EQ(Curva({9, 40, 9.5, 30 - 1.1e-6, 25, 60, 1, 1}, 4).aV[0], 30);
    // Branches below 1 count as 1; two of them halve the scale voltage.
    EXPECT_EQ(Curva({9, 40, 8, 30, 25, 60, 0.25, 1}, 7).aI, Curva({9, 40, 8, 30, 25, 60, 1, 1}, 7).aI);
    EXPECT_EQ(Curva({9, 40, 8, 30, 25, 60, 2, 1}, 7).aI, Curva({9, 40, 8, 30, 25, 30, 1, 1}, 7).aI);
}

TEST(Curva, LaPotenciaSeAnade)
{
    Puntos p = Curva({9, 40, 8, 30, 25, 60, 1, 1}, 10);
    phCalcCurve(p.aI, p.aV, p.aP, 9, 40, 8, 30, 25, 60, 1, 1, 4);
    EXPECT_EQ(p.aI.GetSize(), 5);
    EXPECT_EQ(p.aV.GetSize(), 5);
    EXPECT_EQ(p.aP.GetSize(), 16);
    // No interval, no point; what was there goes all the same.
    for (const int iN : {0, -1, INT_MIN}) {
        EXPECT_EQ(phCalcCurve(p.aI, p.aV, p.aP, 9, 40, 8, 30, 25, 60, 1, 1, iN), 1);
        EXPECT_TRUE(p.aI.IsEmpty() && p.aV.IsEmpty());
        EXPECT_EQ(p.aP.GetSize(), 16);
    }
}

TEST(Curva, DemasiadosIntervalosSeRechazanAntesDeEmpezar)
{
    EXPECT_EQ(Curva({9, 40, 8, 30, 25, 60, 1, 1}, 100000).aI.GetSize(), 100001);
    Puntos p{{1}, {2}, {3}};
    for (const int iN : {100001, INT_MAX})
        EXPECT_THROW(phCalcCurve(p.aI, p.aV, p.aP, 9, 40, 8, 30, 25, 60, 1, 1, iN), CInvalidArgException);
    EXPECT_EQ(p.aI, Lista{1});
    EXPECT_EQ(p.aV, Lista{2});
    EXPECT_EQ(p.aP, Lista{3});
}

// ---------------------------------------------------------------------------------------------------
// Equality with the literal form
// ---------------------------------------------------------------------------------------------------

bool MismosBits(const Lista& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) {
        return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
    });
}

::testing::AssertionResult IgualQueLaLiteral(const Entrada& e, int iN)
{
    const Puntos p = Curva(e, iN);
    const CurvaLiteral c = CalcularCurvaLiteral(e[0], e[1], e[2], e[3], e[4], e[5], e[6], e[7], iN);
    if (MismosBits(p.aI, c.adI) && MismosBits(p.aV, c.adV) && MismosBits(p.aP, c.adP))
        return ::testing::AssertionSuccess();
    auto fallo = ::testing::AssertionFailure() << "N = " << iN;
    for (const double d : e)
        fallo << ", " << d;
    return fallo;
}

class Azar {
public:
    double Entre(double a, double b) { return a + (b - a) * static_cast<double>(m_motor() >> 11) * 0x1p-53; }
    std::size_t Indice(std::size_t n) { return m_motor() % n; }

    // A module of any technology. The power factor sets the series term, from negative to so large that
    // the iteration oscillates.
    Entrada Modulo()
    {
        const double dIsc = Entre(0.5, 15), dVoc = Entre(5, 200);
        return {dIsc,
                dVoc,
                dIsc * Entre(0.6, 0.999),
                dVoc * Entre(0.4, 0.95),
                Entre(-30, 90),
                dVoc / Entre(0.4, 0.9),
                1.0 + static_cast<double>(Indice(3)),
                Entre(0.8, 2)};
    }

private:
    std::mt19937_64 m_motor{20};
};

TEST(Curva, EsLaLiteralEnCienMilModulos)
{
    constexpr std::array kN = {1, 2, 3, 4, 5, 7, 8, 9, 12, 15, 16, 17, 24};
    constexpr std::array kRaros = {0.0,  -0.0,   -1.0,  1.0,    0.5,    -300.0,    -273.16,    1e-7,     1e6,
                                   1e15, -1e300, 1e300, 5e-324, 1e-300, kInfinito, -kInfinito, kNoNumero};
    Azar azar;
    for (int i = 0; i < 100000; ++i) {
        Entrada e = azar.Modulo();
        // One in three has some odd value, equal values or values exchanged.
        if (i % 3 == 0) {
            for (std::size_t veces = 1 + azar.Indice(3); veces > 0; --veces) {
                const std::size_t j = azar.Indice(e.size());
                switch (azar.Indice(4)) {
                    case 0:
                        e[j] = e[azar.Indice(e.size())];
                        break;
                    case 1:
                        std::swap(e[j], e[azar.Indice(e.size())]);
                        break;
                    default:
                        e[j] = kRaros[azar.Indice(kRaros.size())];
                }
            }
        }
        ASSERT_TRUE(IgualQueLaLiteral(e, kN[azar.Indice(kN.size())]));
    }
    for (int i = 0; i < 2000; ++i)
        ASSERT_TRUE(IgualQueLaLiteral(azar.Modulo(), 51 + static_cast<int>(azar.Indice(150))));
}

// Where the end isn't early: slow convergence on both sides of oscillation, and along a tangent.
TEST(Curva, EsLaLiteralDondeConvergeDespacio)
{
    for (int i = 0; i < 30; ++i) {
        const double dVmp = 14.5 + 0.1 * i;
        ASSERT_TRUE(IgualQueLaLiteral({5, 20, 3, dVmp, 25, 20, 1, 1}, 200));
        ASSERT_TRUE(IgualQueLaLiteral({5, 20, 3, dVmp, 25, 20, 1, 1}, 201));
        ASSERT_TRUE(IgualQueLaLiteral({5, 20, 0.01 * dVmp, 19.9, 25, 20 * dVmp, 1, 1}, 200));
    }
    ASSERT_TRUE(IgualQueLaLiteral({1, 20, 1e-6, 10, 1e10, 20, 1, 1}, 300));
    // Thin film, whose last points take 52 and 70 iterations; two currents alternate, an odd count ends at the
    // greater.
    ASSERT_TRUE(IgualQueLaLiteral({1.84, 88, 1.62, 67.9, 25, 116, 1, 1}, 100));
    ASSERT_TRUE(
        IgualQueLaLiteral({0.1404162423328762, 74.486473091781789, 0.080406669462082331, 64.779037910499554,
                           82.149147340873228, 198.3208794898494, 1, 1.7836384011157087},
                          119));
}

// ---------------------------------------------------------------------------------------------------
// Charts
// ---------------------------------------------------------------------------------------------------

constexpr HojaModulo kHoja = {.dPmpm = 250,
                              .dVmpm = 30,
                              .dImpm = 8,
                              .dVoc = 38,
                              .dIsc = 9,
                              .dCTVoc = -120,
                              .dCTIsc = 4,
                              .dCTPmpm = -1000,
                              .iNs = 60,
                              .iNp = 2};

void EsperarSerie(const SerieCurva& s, const std::vector<double>& adX, const std::vector<double>& adY,
                  std::uint32_t color, int iAncho)
{
    EXPECT_EQ(s.color, color);
    EXPECT_EQ(s.iAncho, iAncho) << color;
    ASSERT_EQ(s.adX.size(), adX.size()) << color;
    ASSERT_EQ(s.adY.size(), adY.size()) << color;
    for (std::size_t i = 0; i < adX.size(); ++i) {
        EXPECT_NEAR(s.adX[i], adX[i], 1e-9) << color;
        EXPECT_NEAR(s.adY[i], adY[i], 1e-9) << color;
    }
}

struct NivelEsperado {
    std::uint32_t color;
    int iAncho;
    double dIsc, dVoc, dImp, dVmp;
};

void EsperarGraficas(const GraficasPanel& g, const std::vector<NivelEsperado>& niveles)
{
    EXPECT_EQ(g.corriente.csTituloX + L'/' + g.corriente.csTituloY,
              L"Voltaje de salida (V)/Corriente de carga (A)");
    EXPECT_EQ(g.potencia.csTituloX + L'/' + g.potencia.csTituloY,
              L"Corriente de carga (A)/Potencia de salida (W)");
    for (const auto* grafica : {&g.corriente, &g.potencia}) {
        EXPECT_EQ(grafica->iCuadriculaX, 10);
        EXPECT_EQ(grafica->iCuadriculaY, 8);
        ASSERT_EQ(grafica->aSeries.size(), niveles.size() + 1);
    }
    // The scale leaves a ninth and a seventh over the largest values, the sheet's own Vmp among them.
    EsperarSerie(g.corriente.aSeries[0], {0, 380.0 / 9}, {72.0 / 7, 72.0 / 7}, 0, 0);
    EsperarSerie(g.potencia.aSeries[0], {0, 10}, {1920.0 / 7, 1920.0 / 7}, 0, 0);
    for (std::size_t n = 0; n < niveles.size(); ++n) {
        const NivelEsperado& e = niveles[n];
        const CurvaLiteral c = CalcularCurvaLiteral(e.dIsc, e.dVoc, e.dImp, e.dVmp, 25, 60, 2, 1, 100);
        EsperarSerie(g.corriente.aSeries[n + 1], c.adV, c.adI, e.color, e.iAncho);
        EsperarSerie(g.potencia.aSeries[n + 1], c.adI, c.adP, e.color, e.iAncho);
    }
}

// Inputs by hand from the sheet above. Vmp is 250/8 = 31.25, not the sheet's 30. A model's name is shown
// as it is, whatever it holds.
TEST(Graficas, SeriesYTitulosSalenDeLaHoja)
{
    const GraficasPanel t = efv::electrical::GraficasTConstante(kHoja, L"M%s-1", L"25,0 ºC");
    EsperarGraficas(t, {{0x0000FF, 3, 9, 38, 8, 31.25},
                        {0x0080FF, 2, 7.2, 37.449, 6.4, 31.25},
                        {0x93936F, 2, 5.4, 36.898, 4.8, 31.25},
                        {0xFF0000, 2, 3.6, 36.347, 3.2, 31.25},
                        {0x7F09E5, 2, 1.8, 35.796, 1.6, 31.25}});
    EXPECT_EQ(
        t.corriente.csTitulo,
        L"Comportamiento I-V del panel: M%s-1 a Tª de célula = 25,0 ºC, e irradiaciones G:[1000 W/m²(R), 800 "
        L"W/m²(N), 600 W/m²(V), 400 W/m²(A) y 200 W/m²(M)]");

    // 0, 50, 75 and 25 ºC, with the thermal voltage of 25 ºC in all of them.
    const GraficasPanel g = efv::electrical::GraficasGConstante(kHoja, L"M1");
    EsperarGraficas(g, {{0xFF0000, 2, 8.9, 41, 8, 34.375},
                        {0x0080FF, 2, 9.1, 35, 8, 28.125},
                        {0x93936F, 2, 9.2, 32, 8, 25},
                        {0x0000FF, 3, 9, 38, 8, 31.25}});
    EXPECT_EQ(
        g.potencia.csTitulo,
        L"Comportamiento P-I del panel: M1 a Irradiación constante (G:1000W/m²) y temperaturas Tª:[0ºC (Azul) "
        L"25ºC (Rojo), 50ªC (Naranja), 75ºC (Verde)]");
}

}  // namespace

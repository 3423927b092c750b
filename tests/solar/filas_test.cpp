// Row spacing against figures worked out by hand.
#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/solar.h>

namespace {

struct Filas {
    double dFilas = -1, dLibre = -1, dPanel = -1, dFila = -1;
};

Filas Gen(int n, double dLongitud, double dInclinacion, double dAltura)
{
    Filas f;
    phGetDistanciaMinimaGEN(n, dLongitud, dInclinacion, dAltura, f.dFilas, f.dLibre, f.dPanel, f.dFila);
    return f;
}

Filas Pct(int n, double dLongitud, double dInclinacion, double dPendiente, double dLatitud)
{
    Filas f;
    phGetDistanciaMinimaPCT(n, dLongitud, dInclinacion, dPendiente, dLatitud, f.dFilas, f.dLibre, f.dPanel,
                            f.dFila);
    return f;
}

// Two panels of 1 m at 30º, sun at 45º: height 1 m, so a shadow of 1 m behind the base of √3 m.
TEST(Filas, PorAlturaSolar)
{
    const Filas f = Gen(2, 1000, 30, 45);
    EXPECT_NEAR(f.dFila, 1000, 1e-9);
    EXPECT_NEAR(f.dPanel, 500, 1e-9);
    EXPECT_NEAR(f.dLibre, 1000, 1e-9);
    EXPECT_NEAR(f.dFilas, 1000 + 1000 * std::sqrt(3.0), 1e-9);
    EXPECT_TRUE(std::isinf(Gen(1, 1000, 30, 0).dFilas));
}

// At latitude 16º the shadow is as long as the height (61 − 16 = 45), at 31º √3 times it. A slope that
// rises 1 in 1 towards the row behind halves the first.
TEST(Filas, PorCondicionesTecnicas)
{
    const Filas llano = Pct(2, 1000, 30, 0, 16);
    EXPECT_NEAR(llano.dFila, 1000, 1e-9);
    EXPECT_NEAR(llano.dPanel, 500, 1e-9);
    EXPECT_NEAR(llano.dLibre, 1000, 1e-9);
    EXPECT_NEAR(llano.dFilas, 1000 + 1000 * std::sqrt(3.0), 1e-9);
    EXPECT_NEAR(Pct(2, 1000, 30, 45, 16).dLibre, 500, 1e-9);
    EXPECT_NEAR(Pct(2, 1000, 30, 0, 31).dLibre, 1000 * std::sqrt(3.0), 1e-9);
    // The latitude counts with its sign.
    EXPECT_NEAR(Pct(1, 1000, 90, 0, -14).dLibre, 1000 * std::tan(15 * std::acos(-1.0) / 180), 1e-9);
    // At 61º the coefficient is infinite, and its product with the tangent of no slope has no value.
    EXPECT_TRUE(std::isnan(Pct(1, 1000, 30, 0, 61).dLibre));
    EXPECT_TRUE(std::isnan(Gen(0, 1000, 30, 45).dPanel));
}

}  // namespace

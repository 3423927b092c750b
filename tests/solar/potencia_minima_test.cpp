// Minimum power of a building, by hand from the coefficients of the code.
#include <gtest/gtest.h>

#include "solar/potencia_minima.h"

namespace {

using namespace efv::solar;

TEST(PotenciaMinima, PorCoeficientesYSinEllos)
{
    EXPECT_NEAR(PotenciaMinima(1, 0, 10000, true), 15.62, 1e-12);  // 18.75 - 3.13
    EXPECT_NEAR(PotenciaMinima(5, 3, 0, true), 1.904, 1e-12);      // 1.4 · 1.36
    EXPECT_NEAR(PotenciaMinima(3, 6, 5000, false), 6.0, 1e-12);    // 1.2 · (10 - 5)
    EXPECT_NEAR(PotenciaMinima(2, 5, 20000, true), 19.899, 1e-9);  // 1.1 · (14.8 + 3.29)
    EXPECT_EQ(PotenciaMinima(3, 1, 100, true), 0.0);
    EXPECT_EQ(PotenciaMinima(0, 3, 5000, true), 0.0);
    EXPECT_EQ(PotenciaMinima(6, 3, 5000, true), 0.0);
    EXPECT_EQ(PotenciaMinima(4, 7, 5000, true), 0.0);
    EXPECT_EQ(CoeficienteC(-2147483647 - 1), 0.0);
    EXPECT_EQ(NombreUso(1), L"Multienda y centros de ocio");
    EXPECT_EQ(NombreUso(-1), L"");
    EXPECT_EQ(NombreDisposicion(3), L"");
}

TEST(PotenciaMinima, ZonaPorRadiacion)
{
    EXPECT_EQ(ZonaDeRadiacion(3.79), 1);
    EXPECT_EQ(ZonaDeRadiacion(3.8), 2);
    EXPECT_EQ(ZonaDeRadiacion(4.99), 4);
    EXPECT_EQ(ZonaDeRadiacion(5.0), 5);
}

// 3,000 m² of offices with a roof of 800 m² and 20 m² of collectors: 30 kW by the surface, 0.1·(400 - 20) = 38
// by the roof.
TEST(PotenciaMinima, ElCodigoDe2022)
{
    EXPECT_NEAR(PotenciaMinima2022(false, 3000, 800, 20).value(), 30.0, 1e-12);
    EXPECT_NEAR(PotenciaMinima2022(false, 3000, 500, 20).value(), 23.0, 1e-12);
    EXPECT_NEAR(PotenciaMinima2022(true, 3000, 800, 20).value(), 15.0, 1e-12);
    EXPECT_EQ(PotenciaMinima2022(true, 1000, 800, 0), std::nullopt);
    EXPECT_EQ(PotenciaMinima2022(true, 2000, 10, 50).value(), 0.0);
}

}  // namespace

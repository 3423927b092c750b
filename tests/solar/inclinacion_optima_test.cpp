// Search of the optimum, losses and names of orientations. The years' sums stand with the definition of the
// sky; the library of a host shows what is asked of it.
#include <array>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "solar/inclinacion_optima.h"

namespace {

using namespace efv::solar;
using efv::clima::BibliotecaActual;
using efv::clima::SitioCielo;

std::array<double, 372> A25Grados()
{
    std::array<double, 372> ad{};
    ad.fill(25.0);
    return ad;
}

TEST(InclinacionOptima, ElAnoDeMadridYElDeUnLugarDelSur)
{
    const auto adTemperaturas = A25Grados();
    const Optimo madrid = BuscarOptimo(BibliotecaActual(), {650, 40.4, 0.5, adTemperaturas}, kPasoConsulta, 12);
    EXPECT_DOUBLE_EQ(madrid.dInclinacion, 36.0);
    EXPECT_NEAR(madrid.dRadiacion, 2444019.5, 0.05);
    const Optimo sur = BuscarOptimo(BibliotecaActual(), {520, -33.45, 0.5, adTemperaturas}, kPasoConsulta, 12);
    EXPECT_DOUBLE_EQ(sur.dInclinacion, 30.0);
    EXPECT_NEAR(sur.dRadiacion, 2538733.4, 0.05);
    EXPECT_EQ(OrientacionAlEcuador(-33.45), 180.0);
    EXPECT_EQ(OrientacionAlEcuador(-0.0000005), 0.0);
}

TEST(InclinacionOptima, LasInclinacionesSeSumanUnaAUnaHastaLaLatitud)
{
    EXPECT_EQ(InclinacionesDeBusqueda(40.9, 0.5).size(), 80U);
    EXPECT_EQ(InclinacionesDeBusqueda(-3.0, 0.5).size(), 20U);
    EXPECT_EQ(InclinacionesDeBusqueda(std::numeric_limits<double>::infinity(), 0.5).size(), 180U);
    EXPECT_TRUE(InclinacionesDeBusqueda(NAN, 0.5).empty());
    const auto finas = InclinacionesDeBusqueda(40.0, 0.2);
    ASSERT_EQ(finas.size(), 200U);
    double t = 0.0;
    for (int i = 0; i < 199; ++i)
        t += 0.2;
    EXPECT_EQ(finas.back(), t);  // not 199 × 0.2
}

/// Radiates the tilt itself in each hour, or a constant, so that sums can be told by hand.
class CieloDePrueba final : public efv::clima::BibliotecaClima {
public:
    double dConstante = 0.0;
    double clGetRadiacionSolarTotal(double, double, int, int, int, double dTemperatura, double,
                                    double dInclinacion, double, double dParte) override
    {
        if (dParte != 0.0)
            return -1.0;  // its magnitude is taken off
        return std::isfinite(dTemperatura) ? dConstante + dInclinacion + 1.0 : 1.0;
    }
    double clGetID(int, double, double) override { return 0.0; }
};

TEST(InclinacionOptima, ElMaximoNoPasaDeLaLatitudYLosEmpatesQuedanAbajo)
{
    CieloDePrueba cielo;
    auto adTemperaturas = A25Grados();
    const SitioCielo sitio{0, 30.0, 0.5, adTemperaturas};
    const auto optimos = BuscarOptimos(cielo, sitio, 0.0, kPasoConsulta);
    EXPECT_DOUBLE_EQ(optimos[1].dInclinacion, 29.5);
    EXPECT_DOUBLE_EQ(optimos[1].dRadiacion, 28 * 24 * 29.5);
    EXPECT_DOUBLE_EQ(optimos[12].dRadiacion, 8760 * 29.5);
    adTemperaturas.fill(NAN);  // nothing is radiated: nothing exceeds 0
    EXPECT_EQ(BuscarOptimo(cielo, sitio, kPasoConsulta, 12).dInclinacion, 0.0);
    EXPECT_EQ(BuscarOptimo(cielo, sitio, kPasoConsulta, 13).dRadiacion, 0.0);
}

TEST(InclinacionOptima, Perdidas)
{
    CieloDePrueba cielo;
    const auto adTemperaturas = A25Grados();
    const SitioCielo sitio{0, 30.0, 0.5, adTemperaturas};
    // The month's optimum is 29.5 an hour, the plane has 20: (29.5 - 20) / 29.5.
    EXPECT_NEAR(Perdidas(cielo, sitio, 3, 20.0, 0.0, 0.0), 9.5 / 29.5 * 100, 1e-9);
    EXPECT_NEAR(Perdidas(cielo, sitio, -1, 20.0, 0.0, 8760 * 40.0), 50.0, 1e-9);
    EXPECT_TRUE(std::isinf(Perdidas(cielo, sitio, -1, 20.0, 0.0, 0.0)));  // no hours in the search of month -1
    EXPECT_EQ(Perdidas(cielo, sitio, 12, 20.0, 0.0, 0.0), 100.0);         // no hours in the plane of month 12
    cielo.dConstante = 4.0;
    // 24 hours of 4 on the horizontal, of 14 on the plane
    EXPECT_DOUBLE_EQ(FactorDelDia(cielo, 0, 30, 0, 0, 10.0, 0.0, 0.5, 25.0), 3.5);
    EXPECT_TRUE(
        std::isnan(FactorDelDia(BibliotecaActual(), 0, 80, 11, 20, 30.0, 0.0, 0.5, 25.0)));  // polar night
}

TEST(InclinacionOptima, NombresDeOrientacion)
{
    const std::pair<double, std::wstring_view> casos[] = {
        {0, L"S"},    {-9.9, L"S"}, {9.9, L"S"},    {-10, L"SE"},  {10, L""},    {80, L"SO"},
        {80.1, L"O"}, {100, L"O"},  {-80, L"E"},    {-100, L"NE"}, {170, L"NO"}, {-170, L""},
        {180, L"N"},  {-180, L"N"}, {-179.9, L"N"}, {181, L""},    {NAN, L""},   {10.0000005, L""}};
    for (const auto& [dAngulo, nombre] : casos)
        EXPECT_EQ(NombreOrientacion(dAngulo), nombre) << dAngulo;
}

}  // namespace

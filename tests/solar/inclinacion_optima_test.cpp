// Search of the optimum, losses and names of orientations. The years' sums stand with the definition of the
// sky; the library of a host shows what is asked of it.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "comun/ficheros.h"
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

// The thirteen sums as their definition reads: each tilt, each hour, a pair of calls.
std::array<Optimo, 13> BuscarAlPieDeLaLetra(const SitioCielo& sitio, double dOrientacion, double dPaso)
{
    constexpr std::array<int, 12> aiDias = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    auto& cielo = BibliotecaActual();
    std::array<Optimo, 13> optimos{};
    double t = 0.0;
    for (int i = 0; i < std::floor(std::max(std::abs(sitio.dLatitud), 10.0)) * (1 / dPaso); ++i, t += dPaso) {
        std::array<double, 13> adSumas{};
        for (int m = 0; m < 12; ++m)
            for (int d = 0; d < aiDias[static_cast<std::size_t>(m)]; ++d)
                for (int h = 1; h <= 24; ++h) {
                    const double dT = sitio.adTemperaturas[static_cast<std::size_t>(m * 31 + d)];
                    const auto radiar = [&](double dParte) {
                        return cielo.clGetRadiacionSolarTotal(sitio.dDatoSitio, sitio.dLatitud, m + 1, d + 1, h,
                                                              dT, sitio.dHumedad, t, dOrientacion, dParte);
                    };
                    const double dNeta = radiar(0.0) - std::abs(radiar(1.0));
                    adSumas[static_cast<std::size_t>(m)] += dNeta;
                    adSumas[12] += dNeta;
                }
        for (std::size_t k = 0; k < adSumas.size(); ++k)
            if (adSumas[k] > optimos[k].dRadiacion + 1e-6)
                optimos[k] = {t, adSumas[k]};
    }
    return optimos;
}

TEST(InclinacionOptima, UnaPasadaDaLosMismosBitsQueLasLlamadasUnaAUna)
{
    const efv::pruebas::CarpetaTemporal carpeta;
    const CString csHorizonte = carpeta.Escribir("horizonte.txt", "-120 25\n-40 3.5\n0 12\n35 30\n100 8\n");
    std::mt19937 azar(20261122);
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    CString csError;
    for (int caso = 0; caso < 6; ++caso) {
        ASSERT_TRUE(efv::clima::CargarHorizonte(caso % 2 == 1 ? csHorizonte : CString(), csError));
        std::array<double, 372> adTemperaturas{};
        for (double& d : adTemperaturas)
            d = entre(-20.0, 40.0);
        const SitioCielo sitio{entre(-100.0, 3000.0), entre(-66.0, 66.0), entre(0.1, 0.9), adTemperaturas};
        const double dOrientacion = entre(-180.0, 180.0);
        const double dPaso = caso % 3 == 0 ? 7.3 : 4.1;
        const auto esperados = BuscarAlPieDeLaLetra(sitio, dOrientacion, dPaso);
        const auto hallados = BuscarOptimos(BibliotecaActual(), sitio, dOrientacion, dPaso);
        for (std::size_t k = 0; k < esperados.size(); ++k) {
            EXPECT_EQ(hallados[k].dInclinacion, esperados[k].dInclinacion) << caso << ' ' << k;
            EXPECT_EQ(hallados[k].dRadiacion, esperados[k].dRadiacion) << caso << ' ' << k;
        }
    }
    ASSERT_TRUE(efv::clima::CargarHorizonte({}, csError));
}

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

// Energy of planes with their true orientation: by hand from skies whose hours are told.
#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/solar/planos.h>

namespace {

using namespace efv;
using solar::OrigenHoras;
using solar::PlanoCampo;

/// 100 W/m² on the horizontal, 120 toward the north and 60 elsewhere on a tilted plane; no sun in January. The
/// record has half of it, and nothing at night: -5 at midnight.
class CieloDePrueba final : public clima::BibliotecaClima {
public:
    CieloDePrueba() { clima::InstalarBiblioteca(this); }
    ~CieloDePrueba() override { clima::InstalarBiblioteca(nullptr); }
    static double Hora(double dInclinacion, double dOrientacion)
    {
        return dInclinacion == 0.0 ? 100.0 : std::abs(dOrientacion) == 180.0 ? 120.0 : 60.0;
    }
    double clGetRadiacionSolarTotal(double, double, int iMes, int, int, double, double, double dInclinacion,
                                    double dOrientacion, double dParte) override
    {
        return dParte != 0.0 || iMes == 1 ? 0.0 : Hora(dInclinacion, dOrientacion);
    }
    double clGetID(int iHora, double dInclinacion, double dOrientacion) override
    {
        return iHora % 24 == 0 ? -5.0 : 0.5 * Hora(dInclinacion, dOrientacion);
    }
};

solar::CampoSolar Campo(bool bNorte)
{
    solar::CampoSolar campo{
        .dLatitud = 40.0, .bNorte = bNorte, .adRadHorizontal = {}, .dPotencia = 2.0, .dPR = 0.5};
    campo.adRadHorizontal.fill(7200.0);  // 2 kWh/m²·day
    campo.adRadHorizontal[0] = 0.0;
    return campo;
}

// 334 days with 2 kWh/m², × 0.6 or 1.2, × 2 kWp × 0.5.
TEST(Planos, ElCieloReparteLaRadiacionDeCadaMes)
{
    const CieloDePrueba cielo;
    const auto norte = CalcularPlanos(Campo(true), 0, std::array{PlanoCampo{30, 180, 1}}, OrigenHoras::cielo);
    EXPECT_NEAR(norte.Energia(), 334 * 2 * 1.2, 1e-9);
    EXPECT_NEAR(norte.EnergiaAlEcuador(), 334 * 2 * 0.6, 1e-9);
    EXPECT_NEAR(norte.Perdida(), -1.0, 1e-12);
    EXPECT_EQ(norte.planos[0].ano.meses[0].dEnergiaMes, 0.0);
    // In the south the equator lies to the north.
    const auto sur = CalcularPlanos(Campo(false), 0, std::array{PlanoCampo{30, 90, 1}}, OrigenHoras::cielo);
    EXPECT_NEAR(sur.Perdida(), 0.5, 1e-12);
    // Radiation in a month without sun has no share.
    auto contradicho = Campo(true);
    contradicho.adRadHorizontal[0] = 100.0;
    EXPECT_TRUE(std::isnan(
        CalcularPlanos(contradicho, 0, std::array{PlanoCampo{30, 180, 1}}, OrigenHoras::cielo).Energia()));
}

// 23 hours of 30 and of 60 W/m² on 365 days, half of the 2 kWp each, × 0.5.
TEST(Planos, VariosPlanosDeUnRegistro)
{
    const CieloDePrueba cielo;
    const auto dos = CalcularPlanos(
        Campo(true), 0, std::array{PlanoCampo{30, -90, 0.5}, PlanoCampo{10, 180, 0.5}}, OrigenHoras::registro);
    ASSERT_EQ(dos.planos.size(), 2U);
    EXPECT_NEAR(dos.planos[0].ano.Energia(), 365 * 23 * 0.030 * 0.5, 1e-9);
    EXPECT_NEAR(dos.planos[1].ano.Energia(), 365 * 23 * 0.060 * 0.5, 1e-9);
    EXPECT_NEAR(dos.Energia(), 365 * 23 * 0.090 * 0.5, 1e-9);
    EXPECT_NEAR(dos.planos[0].ano.meses[6].dHorizontal, 23 * 0.050, 1e-12);
}

}  // namespace

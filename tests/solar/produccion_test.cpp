// Hours of a field against the months of the same planes.
#include <gtest/gtest.h>

#include <quorvel/solar/produccion.h>

namespace {

using namespace efv::solar;

TEST(Produccion, LasHorasSumanLosMesesDeSusPlanos)
{
    CampoSolar campo;
    campo.dLatitud = 37.4;
    campo.adRadHorizontal = {8600, 11800, 16500, 20200, 23900, 26300, 26800, 24000, 18900, 13600, 9700, 7600};
    campo.dPotencia = 3.5;
    campo.dPR = 0.8;
    const std::array planos = {PlanoCampo{20.0, -90.0, 0.6}, PlanoCampo{35.0, 45.0, 0.4}};
    const EnergiaPlanos meses = CalcularPlanos(campo, 10.0, planos, OrigenHoras::cielo);
    const std::vector<double> horas = HorasDeLosPlanos(campo, 10.0, planos, OrigenHoras::cielo);
    ASSERT_EQ(horas.size(), 8760U);
    std::size_t iHora = 0;
    for (std::size_t m = 0; m < kMeses; ++m) {
        double dMes = 0.0;
        for (int i = 0; i < kDiasMesReferencia[m] * 24; ++i)
            dMes += horas[iHora++];
        EXPECT_NEAR(dMes, meses.planos[0].ano.meses[m].dEnergiaMes + meses.planos[1].ano.meses[m].dEnergiaMes,
                    1e-9);
    }
    EXPECT_EQ(horas[0], 0.0);
}

}  // namespace

// Money of a year of self-consumption by hand.
#include <numeric>

#include <gtest/gtest.h>

#include <quorvel/autoconsumo.h>

namespace {

using namespace efv::economics;

// In January 100 kWh are bought at 0.15 and 300 kWh exported at 0.06: the 18 € of surplus take off the 15 € of
// energy and no more. In February 200 kWh are exported and all of their 12 € count. Sold, the surplus counts
// whole.
TEST(AutoconsumoAno, LaCompensacionAcabaEnElTerminoDeEnergiaDelMes)
{
    std::vector<double> P(kHorasBloque), C(kHorasBloque), B(kHorasBloque, 0.15), S(kHorasBloque, 0.06);
    for (const std::size_t iMes : {0U, 744U}) {
        P[iMes + 12] = (iMes == 0 ? 300.0 : 200.0) + 50.0;
        C[iMes + 12] = 50.0;
        C[iMes + 20] = 100.0;
    }
    const HorasEstudio horas{BloqueHorario(P), BloqueHorario(C), BloqueHorario(B), BloqueHorario(S)};
    const AnoAutoconsumo ano = EstudiarAno(horas, nullptr, 0.0, PagoVertido::compensacion);
    EXPECT_DOUBLE_EQ(ano.meses[0].dValorVertido, 18.0);
    EXPECT_DOUBLE_EQ(ano.meses[0].dCompensado, 15.0);
    EXPECT_DOUBLE_EQ(ano.meses[0].dAhorro, 22.5);  // all that the house would have cost
    EXPECT_DOUBLE_EQ(ano.meses[1].dCompensado, 12.0);
    EXPECT_DOUBLE_EQ(ano.meses[1].dAhorro, 19.5);
    EXPECT_DOUBLE_EQ(ano.total.dAhorro, 42.0);
    EXPECT_NEAR(ano.total.Cobertura(), 100.0 / 300.0, 1e-15);
    EXPECT_NEAR(ano.total.Aprovechamiento(), 100.0 / 600.0, 1e-15);
    EXPECT_DOUBLE_EQ(EstudiarAno(horas, nullptr, 0.0, PagoVertido::venta).total.dAhorro, 45.0);

    // 420 € paid back by 42 € a year: ten years, a rate of 0 over ten and of 7.75 % over twenty (annuity 10).
    CSFVCalculoEconomicoAuto registro;
    registro.dCosteInstalacion = registro.dCapitalInicial = 420.0;
    registro.dTipoInteres = registro.dEnvejecimiento = registro.dVariacionPrecio = 0.0;
    const auto r = CalcularRentabilidad(ano, {.iAnos = 20}, registro);
    EXPECT_DOUBLE_EQ(registro.dAniosRecuperacion, 10.0);
    EXPECT_NEAR(registro.dTIR, 7.75, 0.01);
    EXPECT_NEAR(r.dAcumulado, 420.0, 1e-9);
}

// A house of 1 kWh each hour of January alone: 31 of the winter's 90 days.
TEST(AutoconsumoAno, ElDiaTipicoEsLaMediaDeLosDiasDeSuEstacion)
{
    std::vector<double> nada(kHorasBloque), C(kHorasBloque);
    std::fill_n(C.begin(), 744, 1.0);
    const auto dias =
        DiasTipicos({BloqueHorario(nada), BloqueHorario(C), BloqueHorario(nada), BloqueHorario(nada)}, nullptr);
    EXPECT_DOUBLE_EQ(dias[0].adConsumo[13], 31.0 / 90.0);
    EXPECT_EQ(dias[1].adConsumo[13], 0.0);
}

}  // namespace

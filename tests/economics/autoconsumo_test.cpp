// Hourly balance, its money, payback and battery against vectores.py.
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/economics_calculo.h>

#include "economics/vectores.h"

namespace {

using namespace efv::economics;
using efv::pruebas::Bloque;
using efv::pruebas::LeerVectoresEconomia;
using efv::pruebas::Vector;

/// The hours of a vector, in storage of their own.
struct Caso {
    explicit Caso(const Vector& v)
    {
        const int a = static_cast<int>(v["a"]);
        const int b = static_cast<int>(v["b"]);
        P = Bloque(a, b, 0.002);
        C = Bloque(a + 17, b + 5, 0.0015);
        B = Bloque(a + 31, b + 9, 0.0002);
        S = Bloque(a + 3, b + 77, 0.00007);
        bat = {Bloque(a + 7, b, 0.0004), Bloque(a + 11, b, 0.0012), Bloque(a + 13, b, 0.0006),
               Bloque(a + 19, b, 0.0001), Bloque(a + 23, b, 0.0004)};
        if (v["bateria"] != 0.0)
            bateria = {bat[0].data(), bat[1].data(), bat[2].data(),
                       bat[3].data(), bat[4].data(), v["dCosteDegradacion"]};
        estudio.dCosteInstalacion = v["dCosteInstalacion"];
        estudio.dCapitalInicial = v["dCapitalInicial"];
        estudio.dTipoInteres = v["dTipoInteres"];
        estudio.dMesesFinanciacion = v["dMesesFinanciacion"];
        estudio.dEnvejecimiento = v["dEnvejecimiento"];
        estudio.dVariacionPrecio = v["dVariacionPrecio"];
    }

    HorasEstudio Horas() const
    {
        return {BloqueHorario(P), BloqueHorario(C), BloqueHorario(B), BloqueHorario(S)};
    }

    std::vector<double> P, C, B, S;
    std::vector<std::vector<double>> bat;
    HorasBateria bateria;
    CSFVCalculoEconomicoAuto estudio;
};

TEST(Autoconsumo, BalancesYAmortizacionesContraElProgramaIndependiente)
{
    const auto vectores = LeerVectoresEconomia("auto");
    ASSERT_EQ(vectores.size(), 24U);
    for (std::size_t i = 0; i < vectores.size(); ++i) {
        Caso caso(vectores[i]);
        const DineroAnual dinero = CalcularDinero(caso.Horas(), caso.bateria);
        CalcularFinanciacion(caso.estudio);
        const Recuperacion r =
            CalcularRecuperacion(caso.estudio.dCosteTotal, dinero.dAhorro, FactorAnual(caso.estudio));
        caso.estudio.dAniosRecuperacion = r.dAnos;
        const auto tabla = TablaAmortizacion(caso.estudio, dinero, caso.Horas(), caso.bateria);
        BalanceHorario balance;
        const auto meses = CalcularBalance(caso.Horas(), caso.bateria, balance);
        EXPECT_EQ(MesesBalance(balance, true), meses) << i;
        const ResumenBateria resumen =
            caso.bateria.HayResumen() ? ResumirBateria(caso.Horas(), caso.bateria) : ResumenBateria{};
        double dGastoAno = 0.0;
        for (const FilaBalance& fila : meses)
            dGastoAno += fila.dConsumoTotal;
        const std::map<std::string, double> hallados = {
            {"gastoMarzo", dinero.adMesGasto[2]},
            {"autoconsumoMarzo", dinero.adMesAutoconsumo[2]},
            {"vertidoMarzo", meses[2].dVertido},
            {"gastoAno", dGastoAno},
            {"ahorro", dinero.dAhorro},
            {"dCosteFinanciacion", caso.estudio.dCosteFinanciacion},
            {"dCosteTotal", caso.estudio.dCosteTotal},
            {"anos", r.dAnos},
            {"filas", static_cast<double>(tabla.size())},
            {"autoconsumoUltimo", tabla.back().dAutoconsumo},
            {"acumulado", tabla.back().dAcumulado},
            {"descarga", resumen.dDescarga},
            {"ahorroNeto", resumen.dAhorroNeto},
        };
        for (const auto& [nombre, dHallado] : hallados) {
            const double dEsperado = vectores[i].resultados.at(nombre);
            EXPECT_NEAR(dHallado, dEsperado, 1e-8 * std::max(1.0, std::abs(dEsperado))) << i << " " << nombre;
        }
    }
}

// An hour of 3 kWh produced and 2 used at 0.20, exported at 0.05: 0.40 spent, 0.40 saved, 0.05 earned; without
// the contribution only the expense is told. 31 February is filled too and must not count.
TEST(Autoconsumo, UnaHoraAMano)
{
    std::vector<double> P(kHorasBloque), C(kHorasBloque), B(kHorasBloque, 0.2), S(kHorasBloque, 0.05);
    const std::size_t iHora = 2 * 744 + 4 * 24 + 12;  // 5 March, 12 h
    const std::size_t iNoExiste = 744 + 30 * 24;
    P[iHora] = P[iNoExiste] = 3;
    C[iHora] = C[iNoExiste] = 2;
    BalanceHorario balance;
    balance.adGasto[iNoExiste] = 7;  // left by an earlier use
    const HorasEstudio horas{BloqueHorario(P), BloqueHorario(C), BloqueHorario(B), BloqueHorario(S)};
    CalcularBalance(horas, {}, balance);
    EXPECT_EQ(balance.adGasto[iNoExiste], 0.0);
    const FilaBalance dia = DiaBalance(balance, true, 2, 4);
    EXPECT_DOUBLE_EQ(dia.dConsumoTotal, 0.4);
    EXPECT_DOUBLE_EQ(dia.dAutoconsumo, 0.4);
    EXPECT_DOUBLE_EQ(dia.dVertido, 0.05);
    EXPECT_NEAR(dia.dResultante, -0.05, 1e-15);
    EXPECT_NEAR(GastoHora(balance, true, iHora), -0.05, 1e-15);
    const FilaBalance sin = MesesBalance(balance, false)[2];
    EXPECT_EQ(sin.dAhorro, 0.0);
    EXPECT_DOUBLE_EQ(sin.dResultante, 0.4);
    EXPECT_EQ(MesesBalance(balance, true)[1], FilaBalance{});
}

TEST(Autoconsumo, LoQueNuncaSePaga)
{
    EXPECT_FALSE(CalcularRecuperacion(1000, 0, 1).bViable);
    EXPECT_FALSE(CalcularRecuperacion(1000, -5, 1).bViable);
    EXPECT_FALSE(CalcularRecuperacion(1000, 100, 0.5).bViable);  // saves 200 in all
    EXPECT_FALSE(CalcularRecuperacion(1e9, 1, 1).bViable);       // 10^9 years
    EXPECT_FALSE(CalcularRecuperacion(1e300, 1, 1).bViable);
    EXPECT_FALSE(CalcularRecuperacion(NAN, NAN, 1).bViable);
    EXPECT_TRUE(CalcularRecuperacion(0, 100, 1).bViable);
    EXPECT_EQ(CalcularRecuperacion(0, 100, 1).dAnos, 0.0);
    EXPECT_DOUBLE_EQ(CalcularRecuperacion(50, 100, 1).dAnos, 0.5);
    EXPECT_DOUBLE_EQ(CalcularRecuperacion(250, 100, 1).dAnos, 2.5);
}

TEST(Autoconsumo, ConInteresYSinMesesQuedaElCapitalInicial)
{
    CSFVCalculoEconomicoAuto e;
    e.dCosteInstalacion = 1000;
    e.dCapitalInicial = 300;
    e.dMesesFinanciacion = 0;
    CalcularFinanciacion(e);
    EXPECT_DOUBLE_EQ(e.dCosteTotal, 300);
    EXPECT_DOUBLE_EQ(e.dIntereses, -700);
    e.dMesesFinanciacion = 2e6;  // one product, not two million sums
    CalcularFinanciacion(e);
    EXPECT_NEAR(e.dCosteFinanciacion, 700 * 0.025 / 12 * 2e6, 1e-3);
}

TEST(Autoconsumo, ElConjuntoSumaYPromedia)
{
    CSFVCalculoEconomicoAuto a, b;
    a.dCosteInstalacion = 100;
    b.dCosteInstalacion = 50;
    a.dMesesFinanciacion = 12;
    b.dPerformanceRatio = 80;
    const CSFVCalculoEconomicoAuto* const estudios[] = {&a, &b};
    const CSFVCalculoEconomicoAuto global = EstudioGlobal(estudios);
    EXPECT_EQ(global.dCosteInstalacion, 150);
    EXPECT_EQ(global.dMesesFinanciacion, 18);  // (12 + 24) / 2
    EXPECT_EQ(global.dTipoInteres, 2.5);
    EXPECT_EQ(global.dPerformanceRatio, 0);
    EXPECT_TRUE(std::isnan(EstudioGlobal({}).dTipoInteres));
}

}  // namespace

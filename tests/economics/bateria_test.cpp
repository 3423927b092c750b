// Charge rules of a battery: energy that closes, sums against vectores.py, prices by hand.
#include <algorithm>
#include <cmath>
#include <numeric>

#include <gtest/gtest.h>

#include <quorvel/bateria.h>
#include <quorvel/framework/CException.h>

#include "economics/horas_bloque.h"
#include "economics/vectores.h"

namespace {

using namespace efv::economics;
using efv::pruebas::Bloque;
using efv::pruebas::LeerVectoresEconomia;
using efv::pruebas::Vector;

/// Prices of three levels, eight hours each.
std::vector<double> TresPrecios()
{
    std::vector<double> precios(kHorasBloque);
    for (std::size_t i = 0; i < precios.size(); ++i)
        precios[i] = std::array{0.1, 0.15, 0.25}[i % 24 / 8];
    return precios;
}

struct Ano {
    std::vector<double> P = std::vector<double>(kHorasBloque);
    std::vector<double> C = std::vector<double>(kHorasBloque);
    std::vector<double> B = TresPrecios();
    std::vector<double> S = std::vector<double>(kHorasBloque, 0.05);

    HorasEstudio Horas() const
    {
        return {BloqueHorario(P), BloqueHorario(C), BloqueHorario(B), BloqueHorario(S)};
    }
};

Bateria BateriaDe(const Vector& v)
{
    return {v["dCapacidad"],        v["dPotenciaCarga"],       v["dPotenciaDescarga"],
            v["dRendimientoCarga"], v["dRendimientoDescarga"], v["dEstadoInicial"]};
}

double Suma(const std::vector<double>& ad)
{
    return std::accumulate(ad.begin(), ad.end(), 0.0);
}

// Each balance of the hour holds but for the rounding of its own few sums.
void ComprobarQueCierra(const Ano& ano, const Bateria& b, const OperacionBateria& o)
{
    double dAntes = b.dEstadoInicial;
    for (std::size_t m = 0; m < 12; ++m) {
        const auto [iPrimera, iFin] = HorasDelMes(m);
        for (std::size_t i = iPrimera; i < iFin; ++i) {
            const double dDirecto = o.adAutoconsumo[i] - o.adDescarga[i];
            const double dPoco = 4e-16 * (ano.P[i] + ano.C[i] + b.dCapacidad + 1.0);
            ASSERT_NEAR(dDirecto + o.adCargaFV[i] + o.adVertido[i], ano.P[i], dPoco) << i;
            ASSERT_NEAR(o.adEstado[i],
                        dAntes + b.dRendimientoCarga * (o.adCargaFV[i] + o.adCargaRed[i]) -
                            o.adDescarga[i] / b.dRendimientoDescarga,
                        dPoco)
                << i;
            ASSERT_LE(o.adAutoconsumo[i], ano.C[i] + dPoco) << i;
            ASSERT_LE(o.adCargaFV[i] + o.adCargaRed[i], b.dPotenciaCarga + dPoco) << i;
            ASSERT_LE(o.adDescarga[i], b.dPotenciaDescarga) << i;
            ASSERT_TRUE(o.adEstado[i] >= 0.0 && o.adEstado[i] <= b.dCapacidad) << i;
            ASSERT_TRUE(o.adVertido[i] >= 0.0 && o.adCargaFV[i] >= 0.0 && o.adCargaRed[i] >= 0.0) << i;
            dAntes = o.adEstado[i];
        }
    }
}

TEST(Bateria, CierraHoraAHoraYSumaComoElProgramaIndependiente)
{
    const auto vectores = LeerVectoresEconomia("bateria");
    ASSERT_EQ(vectores.size(), 12U);
    OperacionBateria o;
    for (const Vector& v : vectores) {
        const int a = static_cast<int>(v["a"]);
        const int b = static_cast<int>(v["b"]);
        Ano ano;
        ano.P = Bloque(a, b, v["arbitraje"] != 0.0 ? 0.0004 : 0.002);
        ano.C = Bloque(a + 17, b + 5, 0.0015);
        const Bateria bateria = BateriaDe(v);
        const auto regla = v["arbitraje"] != 0.0 ? ReglaBateria::arbitraje : ReglaBateria::autoconsumo;
        OperarBateria(ano.Horas(), bateria, regla, v["dCosteDegradacion"], o);
        ComprobarQueCierra(ano, bateria, o);
        const std::map<std::string, double> hallados = {
            {"cargaFV", Suma(o.adCargaFV)},           {"cargaRed", Suma(o.adCargaRed)},
            {"descarga", Suma(o.adDescarga)},         {"vertido", Suma(o.adVertido)},
            {"estado", o.adEstado[kHorasBloque - 1]}, {"autoconsumo", Suma(o.adAutoconsumo)}};
        for (const auto& [nombre, dHallado] : hallados)
            EXPECT_NEAR(dHallado, v.resultados.at(nombre), 1e-8 * std::max(1.0, dHallado))
                << nombre << " " << a;
    }
}

// A house that lacks 1 kWh an hour from 16 h on and has no sun. The hours before 8 h cost 0.10 and buy what
// eight hours at 0.25 will draw: 8 / 0.9 stored. The wear of 0.13 €/kWh still pays (0.12 × 0.9 = 0.108 > 0.10),
// that of 0.14 doesn't (0.099). With one price nothing is bought.
TEST(Bateria, ElArbitrajeCompraSoloLoQueCompensa)
{
    Ano ano;
    for (std::size_t i = 0; i < kHorasBloque; ++i)
        ano.C[i] = i % 24 >= 16 ? 1.0 : 0.0;
    const Bateria b{20.0, 5.0, 5.0, 1.0, 0.9, 0.0};
    OperacionBateria o;
    OperarBateria(ano.Horas(), b, ReglaBateria::arbitraje, 0.13, o);
    EXPECT_DOUBLE_EQ(o.adCargaRed[0], 5.0);
    EXPECT_NEAR(o.adCargaRed[0] + o.adCargaRed[1], 8.0 / 0.9, 1e-12);
    EXPECT_NEAR(Suma(o.adDescarga), 365 * 8.0, 1e-8);
    OperarBateria(ano.Horas(), b, ReglaBateria::arbitraje, 0.14, o);
    EXPECT_EQ(Suma(o.adCargaRed), 0.0);
    std::ranges::fill(ano.B, 0.2);
    OperarBateria(ano.Horas(), b, ReglaBateria::arbitraje, 0.0, o);
    EXPECT_EQ(Suma(o.adCargaRed), 0.0);
}

TEST(Bateria, ConUnSoloPrecioElArbitrajeEsElAutoconsumo)
{
    Ano ano;
    ano.P = Bloque(7, 3, 0.002);
    ano.C = Bloque(24, 8, 0.0015);
    std::ranges::fill(ano.B, 0.2);
    const Bateria b{6.0, 2.0, 2.0, 0.95, 0.95, 1.0};
    OperacionBateria uno, otro;
    OperarBateria(ano.Horas(), b, ReglaBateria::autoconsumo, 0.01, uno);
    OperarBateria(ano.Horas(), b, ReglaBateria::arbitraje, 0.01, otro);
    EXPECT_EQ(uno.adDescarga, otro.adDescarga);
    EXPECT_EQ(uno.adEstado, otro.adEstado);
}

TEST(Bateria, SinCapacidadNoHaceNadaYLoImposibleSeRechaza)
{
    Ano ano;
    ano.P = Bloque(7, 3, 0.002);
    ano.C = Bloque(24, 8, 0.0015);
    OperacionBateria o;
    OperarBateria(ano.Horas(), {0.0, 3.0, 3.0, 1.0, 1.0, 0.0}, ReglaBateria::arbitraje, 0.0, o);
    EXPECT_EQ(Suma(o.adDescarga) + Suma(o.adCargaRed) + Suma(o.adCargaFV), 0.0);
    for (const Bateria& mala :
         {Bateria{-1.0, 1, 1, 1, 1, 0}, Bateria{1, 1, 1, 0.0, 1, 0}, Bateria{1, 1, 1, 1, 1.2, 0},
          Bateria{1, NAN, 1, 1, 1, 0}, Bateria{1, 1, 1, 1, 1, 2}})
        EXPECT_THROW(OperarBateria(ano.Horas(), mala, ReglaBateria::autoconsumo, 0.0, o), CInvalidArgException);
}

}  // namespace

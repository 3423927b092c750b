// Energy of a year. Floor of the correlation: its bare arithmetic in one straight loop.
#include <algorithm>
#include <array>
#include <cmath>

#include <benchmark/benchmark.h>

#include <quorvel/solar.h>

namespace {

constexpr double kH[12] = {7500, 10500, 15200, 18600, 22800, 25300, 26100, 22700, 17400, 12000, 8300, 6600};
constexpr std::array<int, 12> kN = {15, 46, 74, 105, 135, 166, 196, 227, 258, 270, 319, 349};
constexpr std::array<int, 12> kDias = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// All that the query works out, without record, arguments or clock.
double AnoDesnudo(double dLatitud, const double (&h)[12], double dInclinacion, double dPico, double dPR,
                  double dAdicional)
{
    constexpr double rad = 0.017453292519943295;
    constexpr double dia = 0.01721420632103996;
    double suma = 0;
    for (std::size_t m = 0; m < 12; ++m) {
        const double beta = dInclinacion * rad;
        const double fi = dLatitud * rad;
        const double delta = 0.4092797095926703 * std::sin((kN[m] + 284) * dia);
        const auto ocaso = [](double x) {
            const double g = std::atan(std::sqrt(1 - x * x) / x) / rad;
            return (g < 0 ? g + 180 : g) * rad;
        };
        const double ws = ocaso(-std::tan(fi) * std::tan(delta));
        const double wsp = ocaso(-std::tan(fi - beta) * std::tan(delta));
        const double b = std::sin(ws) * (std::cos(delta) * std::cos(fi)) + ws * std::sin(fi) * std::sin(delta);
        const double kt = h[m] / ((std::cos(kN[m] * dia) * 0.033 + 1) * 37210.17104697619 * b);
        const double d = 5.53 * (kt * kt) + (1.39 - 4.03 * kt) - 3.11 * (kt * kt * kt);
        const double wm = std::min(ws, wsp);
        const double rb = (std::sin(wm) * (std::cos(delta) * std::cos(fi - beta)) +
                           wm * std::sin(fi - beta) * std::sin(delta)) /
                          b;
        const double r = (std::cos(beta) + 1) * d * 0.5 + (1 - d) * rb + (1 - std::cos(beta)) * 0.2 * 0.5;
        suma += r * h[m] * 0.0002777778 * dPico * dPR * dAdicional * kDias[m];
    }
    return suma;
}

void AnoPorCorrelacionSuelo(benchmark::State& estado)
{
    double dInclinacion = 30;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(dInclinacion);
        benchmark::DoNotOptimize(AnoDesnudo(40.4, kH, dInclinacion, 5, 0.8, 1));
    }
}
BENCHMARK(AnoPorCorrelacionSuelo);

void AnoPorCorrelacion(benchmark::State& estado)
{
    double dInclinacion = 30, dAno = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(dInclinacion);
        phGetEIR_kWh_ano(dAno, 0, 40.4, 1, kH, dInclinacion, 0, 5, 0.8, 1);
        benchmark::DoNotOptimize(dAno);
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(AnoPorCorrelacion);

void AnoPorTabla(benchmark::State& estado)
{
    phCargarBaseFactorK(efv::CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ZqFactorKHE5.xml"));
    double dInclinacion = 33, dAno = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(dInclinacion);
        phGetEIR_kWh_ano(dAno, 1, 40.4, 1, kH, dInclinacion, 0, 5, 0.8, 1);
        benchmark::DoNotOptimize(dAno);
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(AnoPorTabla);

}  // namespace

// Curves of a module at 100 intervals. Floor: the literal form, all iterations of all points. The counter
// "veces" is how many times faster than it the library's is.
#include <array>
#include <chrono>

#include <benchmark/benchmark.h>

#include <quorvel/electrical.h>

#include "../tests/electrical/curva_literal.h"

namespace {

struct Modulo {
    const char* nombre;
    double dIsc, dVoc, dImp, dVmp, dNs, dNp;
};

constexpr std::array<Modulo, 4> kModulos = {{
    {"60 celulas", 8.7, 37.8, 8.2, 30.5, 60, 1},
    {"144 medias celulas", 13.85, 49.5, 13.08, 41.3, 144, 2},
    {"36 celulas, 200 W/m2", 1.06, 20.44, 0.98, 17.35, 36, 1},
    {"capa fina", 1.84, 88, 1.62, 67.9, 116, 1},
}};

void CurvaLiteral(benchmark::State& estado)
{
    Modulo m = kModulos[static_cast<std::size_t>(estado.range(0))];
    estado.SetLabel(m.nombre);
    for (auto _ : estado) {
        benchmark::DoNotOptimize(m);
        benchmark::DoNotOptimize(
            efv::pruebas::CalcularCurvaLiteral(m.dIsc, m.dVoc, m.dImp, m.dVmp, 25, m.dNs, m.dNp, 1, 100));
    }
}
BENCHMARK(CurvaLiteral)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

void Curva(benchmark::State& estado)
{
    using Reloj = std::chrono::steady_clock;
    Modulo m = kModulos[static_cast<std::size_t>(estado.range(0))];
    estado.SetLabel(m.nombre);

    constexpr int kLiterales = 200;
    const auto inicioLiteral = Reloj::now();
    for (int i = 0; i < kLiterales; ++i) {
        benchmark::DoNotOptimize(m);
        benchmark::DoNotOptimize(
            efv::pruebas::CalcularCurvaLiteral(m.dIsc, m.dVoc, m.dImp, m.dVmp, 25, m.dNs, m.dNp, 1, 100));
    }
    const std::chrono::duration<double> literal = (Reloj::now() - inicioLiteral) / kLiterales;

    const auto inicio = Reloj::now();
    for (auto _ : estado) {
        CArray<double, double&> aI, aV, aP;
        benchmark::DoNotOptimize(m);
        phCalcCurve(aI, aV, aP, m.dIsc, m.dVoc, m.dImp, m.dVmp, 25, m.dNs, m.dNp, 1, 100);
        benchmark::DoNotOptimize(aP.GetData());
    }
    const std::chrono::duration<double> total = Reloj::now() - inicio;
    estado.counters["veces"] = literal.count() * static_cast<double>(estado.iterations()) / total.count();
}
BENCHMARK(Curva)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

}  // namespace

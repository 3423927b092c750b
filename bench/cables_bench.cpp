// Section of a cable for its current, over all methods, insulations and temperatures; stretches sized whole.
#include <benchmark/benchmark.h>

#include <quorvel/cables.h>
#include <quorvel/cables_calculo.h>

namespace {

void SeccionCable(benchmark::State& estado)
{
    int i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(i);
        benchmark::DoNotOptimize(
            phGetSeccionCable(i % 9, i & 1, i % 5, i >> 1 & 1, 10.5 + i % 50, 1.0 + i % 300));
        ++i;
    }
}
BENCHMARK(SeccionCable);

// What a list of a thousand stretches costs beside its reading and writing.
void MilTramos(benchmark::State& estado)
{
    for (auto _ : estado)
        for (int i = 0; i < 1000; ++i)
            benchmark::DoNotOptimize(efv::electrical::Dimensionar({.dLongitud = 5.0 + i % 40,
                                                                   .dCorriente = 5.0 + i % 30,
                                                                   .dTension = i % 2 == 0 ? 230.0 : 400.0,
                                                                   .bTrifasico = i % 2 == 1,
                                                                   .iMetodo = i % 9,
                                                                   .iAislante = i % 3}));
}
BENCHMARK(MilTramos);

}  // namespace

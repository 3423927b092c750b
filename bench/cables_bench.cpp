// Section of a cable for its current, over all methods, insulations and temperatures.
#include <benchmark/benchmark.h>

#include <quorvel/cables.h>

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

}  // namespace

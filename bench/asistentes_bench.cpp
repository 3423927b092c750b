// The two sizings. Floor of the search for branches: the bare double loop; the counter "veces" is how many
// times faster than it the library's is.
#include <chrono>
#include <vector>

#include <benchmark/benchmark.h>

#include "../tests/assistants/busqueda_literal.h"
#include "assistants/calculo_aislada.h"
#include "assistants/calculo_red.h"
#include "solar/energia.h"

namespace {

using namespace efv::assistants;

// 550 W panels on a string inverter of 100 kW, and 400 W ones on one of 5 kW.
constexpr CampoBuscado kCampos[] = {
    {100'000, 550, 41.9, 13.1, 49.8, 200, 1000, 1100, 26, 23},
    {5'000, 400, 31, 12.9, 37.1, 90, 560, 600, 26, 12},
    {100'000, 550, 41.9, 13.1, 49.8, 200, 1000, 1100, 13'100, 23},  // a central one: any number of branches
};

void BuscarRamalesLiteral(benchmark::State& estado)
{
    CampoBuscado campo = kCampos[estado.range(0)];
    for (auto _ : estado) {
        benchmark::DoNotOptimize(campo);
        benchmark::DoNotOptimize(efv::pruebas::BuscarRamalesLiteral(campo));
    }
}
BENCHMARK(BuscarRamalesLiteral)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

void BuscarRamales(benchmark::State& estado)
{
    using Reloj = std::chrono::steady_clock;
    CampoBuscado campo = kCampos[estado.range(0)];
    constexpr int kLiterales = 200;
    const auto inicioLiteral = Reloj::now();
    for (int i = 0; i < kLiterales; ++i) {
        benchmark::DoNotOptimize(campo);
        benchmark::DoNotOptimize(efv::pruebas::BuscarRamalesLiteral(campo));
    }
    const std::chrono::duration<double> literal = (Reloj::now() - inicioLiteral) / kLiterales;

    const auto inicio = Reloj::now();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(campo);
        benchmark::DoNotOptimize(efv::assistants::BuscarRamales(campo));
    }
    const std::chrono::duration<double> total = Reloj::now() - inicio;
    estado.counters["veces"] = literal / (total / static_cast<double>(estado.iterations()));
}
BENCHMARK(BuscarRamales)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// The whole stand-alone sizing with 50 loads and the shipped table of factors K.
void RecalcularAislada(benchmark::State& estado)
{
    phCargarBaseFactorK(efv::CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ZqFactorKHE5.xml"));
    const CBaseFactorK& tabla = phGetBaseFactorK();
    const ConsultaFactoresK factores = [&tabla](double dLatitud, int iHemisferio, double dAlpha) {
        return efv::solar::FactoresK(tabla, dLatitud, iHemisferio, dAlpha);
    };
    CBaseAcumuladorModelo acumulador;
    acumulador.dCapC100 = 620;
    acumulador.dVnom = 2;
    CBasePanelFotoModelo panel;
    panel.dPmpm = 400;
    panel.dVoc = 37.1;
    const std::vector<DatosReceptor> receptores(50, DatosReceptor{2, 60.5, 3.25});
    ValoresAislada v;
    v.dLatitud = 40.42;
    v.adRadiacion.fill(16'000);
    for (auto _ : estado) {
        benchmark::DoNotOptimize(v);
        Recalcular(v, {&acumulador, &panel, receptores, factores}, true);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RecalcularAislada)->Unit(benchmark::kMicrosecond);

}  // namespace

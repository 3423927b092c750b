// Hourly years of consumption, each beside its floor; the counter "suelos" is how many times it the
// library takes.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <quorvel/consumption.h>

namespace {

using namespace efv;
using Reloj = std::chrono::steady_clock;

// Mean time of `veces` runs of `f`, s.
template <class F>
double Medir(int veces, F&& f)
{
    f();
    const auto inicio = Reloj::now();
    for (int i = 0; i < veces; ++i)
        f();
    return std::chrono::duration<double>(Reloj::now() - inicio).count() / veces;
}

template <class F>
void Comparar(benchmark::State& estado, double dSuelo, F&& f)
{
    const auto inicio = Reloj::now();
    for (auto _ : estado)
        f();
    const std::chrono::duration<double> total = Reloj::now() - inicio;
    estado.counters["suelos"] = total.count() / static_cast<double>(estado.iterations()) / dSuelo;
}

// A year of quarter hours from its text. Floor: from_chars over the same characters, each value behind the
// other, with nothing done but a sum.
void AnoDeTexto(benchmark::State& estado)
{
    constexpr int kValores = 35040;
    std::mt19937 azar(1);
    std::wstring texto;
    std::string estrecho;
    for (int i = 0; i < kValores; ++i) {
        const std::string valor = std::to_string(azar() % 3000) + ',' + std::to_string(10 + azar() % 90) + ';';
        texto.append(valor.begin(), valor.end());
        estrecho += valor;
    }
    std::ranges::replace(estrecho, ',', '.');
    const double dSuelo = Medir(50, [&] {
        double dSuma = 0.0, d = 0.0;
        const char* const fin = estrecho.data() + estrecho.size();
        for (const char* p = estrecho.data(); p < fin; dSuma += d)
            p = std::from_chars(p, fin, d).ptr + 1;
        benchmark::DoNotOptimize(dSuma);
    });
    const FormatoValores formato{12, false, true};
    auto ano = std::make_unique<AnoHorario>();
    Comparar(estado, dSuelo, [&] {
        AsignarValores(LeerValores(texto, L';', ValoresEsperados(formato)), formato, *ano);
        benchmark::DoNotOptimize(ano->data());
    });
}
BENCHMARK(AnoDeTexto)->Unit(benchmark::kMicrosecond);

// A year from 100 loads: their weeks alike through the year but for the weekend, or every day of every
// month another. Floor: the bare loop over the year, the fractions of the hours being there already.
void AnoDeCienReceptores(benchmark::State& estado)
{
    const bool bDistintos = estado.range(0) != 0;
    estado.SetLabel(bDistintos ? "todos los dias distintos" : "laborables y fin de semana");
    std::mt19937 azar(2);
    CObArrayPropio<CSFVDataReceptor> lista;
    for (int i = 0; i < 100; ++i) {
        auto& r = lista.Add(std::make_unique<CSFVDataReceptor>());
        r.dPotencia = 10.0 * i;
        for (auto& mes : r.dHorario) {
            for (int d = 0; d < 7; ++d) {
                const unsigned semilla = static_cast<unsigned>(2 * i + d / 5);
                std::mt19937 delDia(bDistintos ? azar() : semilla);
                for (double& minuto : mes[d])
                    minuto = static_cast<double>(delDia() % 1441);
                std::ranges::sort(mes[d]);
            }
        }
    }
    using Tabla = std::array<std::array<double, 24>, 84>;  // by month and day type
    std::vector<Tabla> fracciones(100);
    for (Tabla& tabla : fracciones)
        for (auto& dia : tabla)
            dia.fill(0.5);
    auto ano = std::make_unique<AnoHorario>();
    const double dSuelo = Medir(50, [&] {
        ano->fill(0.0);
        for (std::size_t i = 0; i < 100; ++i) {
            const double dPcc = lista[static_cast<std::ptrdiff_t>(i)].GetPcc();
            std::size_t h = 0;
            for (std::size_t iMes = 0; iMes < 12; ++iMes) {
                const auto hFin = static_cast<std::size_t>(HorasDePeriodo(static_cast<int>(iMes)).iFin);
                for (; h < hFin; h += 24) {
                    const auto& dia = fracciones[i][7 * iMes + h / 24 % 7];
                    for (std::size_t k = 0; k < 24; ++k)
                        (*ano)[h + k] += dia[k] * dPcc;
                }
            }
        }
        benchmark::DoNotOptimize(ano->data());
    });
    Comparar(estado, dSuelo, [&] { benchmark::DoNotOptimize(AnoDeReceptores(lista, *ano)); });
}
BENCHMARK(AnoDeCienReceptores)->DenseRange(0, 1)->Unit(benchmark::kMicrosecond);

}  // namespace

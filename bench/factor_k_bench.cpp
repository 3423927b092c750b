// Table of factors K: lookup and load. Floor of the load: the parser's own parse of the file plus the
// bare conversion of the same numbers.
#include <array>
#include <charconv>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <quorvel/solar.h>

namespace {

constexpr const char* kTabla = EFV_CARPETA_DATOS "/ZqFactorKHE5.xml";

void BuscarFactores(benchmark::State& estado)
{
    phCargarBaseFactorK(efv::CadenaDesdeUtf8(kTabla));
    double adK[12] = {};
    double dLatitud = 40.42;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(dLatitud);
        benchmark::DoNotOptimize(phGetDataFactorK(dLatitud, 1, 33, adK));
        benchmark::ClobberMemory();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(BuscarFactores);

void CargarTabla(benchmark::State& estado)
{
    const CString csTabla = efv::CadenaDesdeUtf8(kTabla);
    for (auto _ : estado)
        benchmark::DoNotOptimize(phCargarBaseFactorK(csTabla));
}
BENCHMARK(CargarTabla)->Unit(benchmark::kMicrosecond);

struct FilaDesnuda {
    double dAlpha;
    std::array<double, 12> k;
};

void CargarTablaSuelo(benchmark::State& estado)
{
    for (auto _ : estado) {
        pugi::xml_document documento;
        documento.load_file(kTabla);
        std::vector<FilaDesnuda> filas;
        for (const pugi::xml_node latitud : documento.document_element().first_child()) {
            for (const pugi::xml_node alpha : latitud) {
                FilaDesnuda& fila = filas.emplace_back();
                double* destino = &fila.dAlpha;
                std::size_t i = 0;
                for (const pugi::xml_attribute atributo : alpha.attributes()) {
                    const std::string_view texto = atributo.value();
                    std::from_chars(texto.data(), texto.data() + texto.size(), *destino);
                    destino = &fila.k[i < 12 ? i : 11];
                    ++i;
                }
            }
        }
        benchmark::DoNotOptimize(filas.data());
    }
}
BENCHMARK(CargarTablaSuelo)->Unit(benchmark::kMicrosecond);

}  // namespace

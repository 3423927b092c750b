// Catalogue of 20,000 modules: load and lookup. Floor of the load: the parser's own parse of the file
// plus the bare conversion of the same numbers. Load and floor take turns, so that both meet the same
// memory and the same noise; the counter "cociente" is the ratio of their medians.
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

#include <malloc.h>

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <quorvel/catalogues.h>

#include "medidor.h"

namespace {

using efv::bench::FicheroDe;
using efv::bench::Mediana;

void LeerSinMas(const std::string& ruta)
{
    pugi::xml_document documento;
    documento.load_file(ruta.c_str());
    std::vector<double> numeros;
    for (const pugi::xml_node familia : documento.document_element().first_child()) {
        for (const pugi::xml_node modelo : familia) {
            for (const pugi::xml_attribute atributo : modelo.attributes()) {
                const std::string_view texto = atributo.value();
                double d = 0.0;
                std::from_chars(texto.data(), texto.data() + texto.size(), d);
                numeros.push_back(d);
            }
        }
    }
    benchmark::DoNotOptimize(numeros.data());
}

template <class F>
double Segundos(F trabajo)
{
    const auto inicio = efv::bench::Reloj::now();
    trabajo();
    return efv::bench::SegundosDesde(inicio);
}

void CargarCatalogo(benchmark::State& estado)
{
    // Memory given back to the system and taken anew would be most of the floor, and less of the load.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    const std::string ruta = FicheroDe(20000);
    const CString csRuta = efv::CadenaDesdeUtf8(ruta);
    std::vector<double> cargas, suelos;
    for (auto _ : estado) {
        cargas.push_back(Segundos([&] { phCargarBasePanelesFotovoltaicos(csRuta); }));
        suelos.push_back(Segundos([&] { LeerSinMas(ruta); }));
        estado.SetIterationTime(cargas.back());
    }
    const double dCarga = Mediana(cargas);
    const double dSuelo = Mediana(suelos);
    estado.counters["carga_ms"] = 1e3 * dCarga;
    estado.counters["suelo_ms"] = 1e3 * dSuelo;
    estado.counters["cociente"] = dCarga / dSuelo;
}
BENCHMARK(CargarCatalogo)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(2.0);

// The cost must not grow with the catalogue.
void BuscarModelo(benchmark::State& estado)
{
    const int n = static_cast<int>(estado.range(0));
    phCargarBasePanelesFotovoltaicos(efv::CadenaDesdeUtf8(FicheroDe(n)));
    const CString csId = L"Fabricante 0#FX-" + std::to_wstring(n - 1);
    CString csFamilia;
    for (auto _ : estado)
        benchmark::DoNotOptimize(phGetFabricantePanelFoto(csId, csFamilia));
}
BENCHMARK(BuscarModelo)->Arg(20)->Arg(20000);

}  // namespace

// Catalogue of 20,000 modules: load and lookup. Floor of the load: the parser's own parse of the file
// plus the bare conversion of the same numbers.
#include <charconv>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <pugixml.hpp>

#include <quorvel/catalogues.h>

namespace {

// A catalogue of `n` modules, a hundred a family.
std::string FicheroDe(int n)
{
    const auto ruta = std::filesystem::temp_directory_path() / fmt::format("efv-bench-{}.xml", n);
    std::ofstream f(ruta, std::ios::binary);
    f << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QuorvelEFV><TablaFamilias>\n";
    for (int i = 0; i < n; ++i) {
        if (i % 100 == 0)
            f << (i > 0 ? "</Familia>\n" : "") << fmt::format("<Familia nombre=\"Fabricante {}\">\n", i / 100);
        f << fmt::format(
            "<Modelo csModelo=\"FX-{0}\" dPmpm=\"{1:f}\" dVsmax=\"1000.000000\" dVmpm=\"30.500000\" "
            "dImpm=\"{2:f}\" "
            "dVoc=\"37.800000\" dIsc=\"8.700000\" dCTVoc=\"-125.000000\" dCTIsc=\"4.500000\" "
            "dCTPmpm=\"-1100.000000\" "
            "dCEf=\"5.100000\" iNp=\"1\" iNs=\"60\" dAcel=\"24336.000000\" iTipoCelula=\"1\" "
            "dH=\"1640.000000\" "
            "dB=\"992.000000\" dA=\"40.000000\" dP=\"19.000000\" nColor=\"0\" csCodPrecio=\"\"/>\n",
            i, 200.0 + i % 400, 7 + 0.001 * i);
    }
    f << "</Familia></TablaFamilias></QuorvelEFV>\n";
    return ruta.string();
}

void CargarCatalogo(benchmark::State& estado)
{
    const CString csRuta = efv::CadenaDesdeUtf8(FicheroDe(20000));
    for (auto _ : estado)
        benchmark::DoNotOptimize(phCargarBasePanelesFotovoltaicos(csRuta));
}
BENCHMARK(CargarCatalogo)->Unit(benchmark::kMillisecond);

void CargarCatalogoSuelo(benchmark::State& estado)
{
    const std::string ruta = FicheroDe(20000);
    for (auto _ : estado) {
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
}
BENCHMARK(CargarCatalogoSuelo)->Unit(benchmark::kMillisecond);

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

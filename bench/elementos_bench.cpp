// Opening the dialog of an array of panels with its simulated year, beside the years of sky that it takes.
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <vector>

#include <benchmark/benchmark.h>

#include <QuorvelEFV.h>

#include "ano_tipico.h"
#include "medidor.h"
#include "solar/curvas_inclinacion.h"

namespace {

using namespace efv;

struct HorasHorizontal {
    double ad[12][31][24] = {};
};

// The horizontal and the tilted plane.
void SueloDosAnosDeCielo(benchmark::State& estado)
{
    std::vector<double> ano(8760);
    const clima::SitioCielo sitio{650.0, 40.4, 0.5, solar::TemperaturasNormales()};
    for (auto _ : estado) {
        for (const double dInclinacion : {0.0, 35.0})
            clima::BibliotecaActual().AnoDelPlano(sitio, dInclinacion, 0.0, std::span<double, 8760>(ano));
        benchmark::DoNotOptimize(ano.data());
    }
}
BENCHMARK(SueloDosAnosDeCielo)->Unit(benchmark::kMicrosecond);

// Makes the typical year the one that the climate library reads.
void CargarRegistro()
{
    const auto ruta = std::filesystem::temp_directory_path() / "efv_bench_registro.txt";
    std::ofstream(ruta, std::ios::binary)
        << solar::ConvertirAnoTipico(bench::AnoTipico(), "Madrid", 40.4, 0.0).texto;
    CString csError;
    if (!clima::CargarRegistroClimatico(CadenaDesdeUtf8(ruta.string()), csError))
        throw std::runtime_error(CadenaUtf8(csError));
    std::filesystem::remove(ruta);
}

// Its argument is the source: 0 the record, 1 the sky, 2 the host's hours.
void AbrirPanelFotovoltaico(benchmark::State& estado)
{
    phCargarBasePanelesFotovoltaicos(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ZqModFotoHE5.xml"));
    phCargarBaseMicroInversores(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ZqMicroInversorHE5.xml"));
    CargarRegistro();
    const auto horas = std::make_unique<HorasHorizontal>();
    CString csReferencia = L"FV1", csId = L"CHSM6612P-295", csOptimizador, csString, csIdMicro = L"IQ8-60-2-US";
    int nPaneles = 4, bModelo = 1, bInclinacion = 1, iOrientacion = 0, iMontaje = 0, bDesconexion = 0;
    int bMPPT = 0, bSombra = 0, bExcluir = 0, bNoSombras = 0, iAux = 0, bClima = 1, bMicro = 1;
    int bMicroModelo = 1, iConexion = 0, bForzado = 0, iFuente = static_cast<int>(estado.range(0));
    double dInclinacion = 35.0, dRendimiento = 100.0, dDesconexion = 1.0, dSombreado = 25.0;
    double dLatitud = 40.4, dOrientacion = 0.0, dDatoSitio = 650.0;
    short nColor = 256;
    std::size_t nPuntos = 0;
    const bench::Medidor medidor([&](ui::Dialogo& dialogo) {
        nPuntos = bench::ControlDe<ui::Grafica>(dialogo, "grafica").datos.aSeries.at(1).adY.size();
    });
    for (auto _ : estado)
        phShowPropertyPanelFoto(csReferencia, csId, nPaneles, bModelo, bInclinacion, dInclinacion, iOrientacion,
                                iMontaje, dRendimiento, 0, bDesconexion, dDesconexion, bMPPT, csOptimizador, {},
                                csString, bSombra, dSombreado, bExcluir, bNoSombras, iAux, dLatitud,
                                dOrientacion, dDatoSitio, bClima, iFuente, bMicro, csIdMicro, bMicroModelo,
                                iConexion, horas->ad, bForzado, nColor);
    if (nPuntos != 365)
        estado.SkipWithError("the dialog has no year");
}
BENCHMARK(AbrirPanelFotovoltaico)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace

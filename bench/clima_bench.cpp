// The sky's hot paths, each beside a floor of the same arithmetic in a bare loop.
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <quorvel/clima.h>
#include <quorvel/solar/pvgis.h>

#include "platform/clima/cielo.h"
#include "solar/curvas_inclinacion.h"
#include "solar/inclinacion_optima.h"

namespace {

using namespace efv;

clima::SitioCielo Madrid()
{
    return {650.0, 40.4, 0.5, solar::TemperaturasNormales()};
}

// Sun, sky and plane of each hour of daylight, by the functions of one hour, without the year around them.
void SueloAnoDelPlano(benchmark::State& estado)
{
    std::vector<double> ano(8760);
    const clima::LatitudCielo latitud(40.4);
    const double dPresion = clima::Presion(650.0);
    for (auto _ : estado) {
        const clima::PlanoCielo plano(35.0, 0.0);
        for (int iDia = 1; iDia <= 365; ++iDia) {
            const clima::DiaCielo dia(iDia);
            const double dAgua = clima::AguaPrecipitable(25.0, 0.5);
            for (int iHora = 1; iHora <= 24; ++iHora) {
                clima::HoraCielo hora = clima::SolDeLaHora(latitud, dia, iHora);
                if (hora.dCosCenit <= 0.0)
                    continue;
                clima::CieloDespejado(hora, dia.dExtraterrestre, dPresion, dAgua);
                ano[static_cast<std::size_t>((iDia - 1) * 24 + iHora - 1)] =
                    clima::TotalEnPlano(hora, clima::Frente(hora, plano), plano);
            }
        }
        benchmark::DoNotOptimize(ano.data());
    }
}
BENCHMARK(SueloAnoDelPlano)->Unit(benchmark::kMicrosecond);

void AnoDelPlano(benchmark::State& estado)
{
    std::vector<double> ano(8760);
    const auto sitio = Madrid();
    for (auto _ : estado) {
        clima::BibliotecaActual().AnoDelPlano(sitio, 35.0, 0.0, std::span<double, 8760>(ano));
        benchmark::DoNotOptimize(ano.data());
    }
}
BENCHMARK(AnoDelPlano)->Unit(benchmark::kMicrosecond);

// 200 tilts × 8,760 hours × 13 sums.
void EstudioDeInclinacion(benchmark::State& estado)
{
    const auto sitio = Madrid();
    for (auto _ : estado) {
        auto optimos = solar::BuscarOptimos(clima::BibliotecaActual(), sitio, 0.0, solar::kPasoEstudio);
        benchmark::DoNotOptimize(optimos);
    }
}
BENCHMARK(EstudioDeInclinacion)->Unit(benchmark::kMicrosecond);

std::string AnoTipico()
{
    std::string texto =
        "Latitude (decimal degrees): 40.400\r\nLongitude (decimal degrees): -3.700\r\nElevation (m): 652.0\r\n"
        "time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP\r\n";
    for (int iHora = 0; iHora < 8760; ++iHora) {
        const int iDia = iHora / 24;
        texto += fmt::format(
            "2007{:02}{:02}:{:02}10,{:.2f},{:.2f},{:.1f},0.0,{:.1f},300.0,{:.2f},{:.1f},95000.0\r\n",
            iDia / 31 + 1, iDia % 28 + 1, iHora % 24, iHora % 41 - 5.0, 40.0 + iHora % 53, iHora % 907 * 1.0,
            iHora % 401 * 1.0, iHora % 13 * 0.7, iHora % 361 * 1.0);
    }
    return texto;
}

void RespuestaARegistro(benchmark::State& estado)
{
    const std::string respuesta = AnoTipico();
    for (auto _ : estado) {
        auto registro = solar::ConvertirAnoTipico(respuesta, "Madrid", 40.4, 0.0);
        if (registro.iFilas != solar::kFilasAnoTipico)
            estado.SkipWithError("the answer is no year");
        benchmark::DoNotOptimize(registro);
    }
}
BENCHMARK(RespuestaARegistro)->Unit(benchmark::kMicrosecond);

}  // namespace

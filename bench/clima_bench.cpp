// The sky's hot paths, each beside a floor of the same arithmetic in a bare loop.
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>
#include <vector>

#include <benchmark/benchmark.h>

#include <quorvel/clima.h>
#include <quorvel/solar/pvgis.h>

#include "ano_tipico.h"
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

void RespuestaARegistro(benchmark::State& estado)
{
    const std::string respuesta = bench::AnoTipico();
    for (auto _ : estado) {
        auto registro = solar::ConvertirAnoTipico(respuesta, "Madrid", 40.4, 0.0);
        if (registro.iFilas != solar::kFilasAnoTipico)
            estado.SkipWithError("the answer is no year");
        benchmark::DoNotOptimize(registro);
    }
}
BENCHMARK(RespuestaARegistro)->Unit(benchmark::kMicrosecond);

}  // namespace

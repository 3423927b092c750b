// Economic studies. Floors: the bare loop over the hours of the year with its monthly sums; the stated search
// of a rate, round by round; and a sheet of fifty elements whose element changes.
#include <array>
#include <cmath>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include <quorvel/economics.h>
#include <quorvel/economics_calculo.h>

#include "medidor.h"

namespace {

using namespace efv::economics;

constexpr std::array<std::size_t, 12> kDias = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

std::vector<double> Horas(int a, double dEscala, std::size_t nBloques = 1)
{
    std::vector<double> ad(nBloques * kHorasBloque);
    for (std::size_t i = 0; i < ad.size(); ++i)
        ad[i] = static_cast<double>((static_cast<int>(i % 8191) * a + 7) % 1009) * dEscala;
    return ad;
}

struct Ano {
    std::vector<double> P = Horas(31, 0.002), C = Horas(17, 0.0015), B = Horas(11, 0.0002),
                        S = Horas(5, 0.00007);
};

struct Desnudo {
    std::vector<double> adGasto = std::vector<double>(kHorasBloque), adAutoconsumo = adGasto,
                        adVertido = adGasto;
    std::array<double, 12> adMesGasto{}, adMesAutoconsumo{}, adMesVertido{};
};

// The hours of a year and the sums of its months, and nothing else.
void BalanceDesnudo(const Ano& ano, Desnudo& d)
{
    for (std::size_t m = 0; m < 12; ++m) {
        double g = 0.0, a = 0.0, v = 0.0;
        for (std::size_t i = m * 744; i < m * 744 + kDias[m] * 24; ++i) {
            const double dSobrante = ano.P[i] - ano.C[i];
            const double e = dSobrante > 0.0 ? dSobrante : 0.0;
            g += std::abs(d.adGasto[i] = ano.B[i] * ano.C[i]);
            a += std::abs(d.adAutoconsumo[i] = (ano.P[i] - e) * ano.B[i]);
            v += std::abs(d.adVertido[i] = e * ano.S[i]);
        }
        d.adMesGasto[m] = g;
        d.adMesAutoconsumo[m] = a;
        d.adMesVertido[m] = v;
    }
}

void BalanceDeUnAnoSuelo(benchmark::State& estado)
{
    const Ano ano;
    Desnudo d;
    for (auto _ : estado) {
        BalanceDesnudo(ano, d);
        benchmark::DoNotOptimize(d.adMesGasto);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BalanceDeUnAnoSuelo);

void BalanceDeUnAno(benchmark::State& estado)
{
    const Ano ano;
    const HorasEstudio horas{BloqueHorario(ano.P), BloqueHorario(ano.C), BloqueHorario(ano.B),
                             BloqueHorario(ano.S)};
    BalanceHorario balance;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CalcularBalance(horas, {}, balance));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BalanceDeUnAno);

// Twenty-five flows whose rate lies in reach; with a negative factor none does.
std::vector<double> Flujos(double dFactor)
{
    std::vector<double> ad;
    for (int y = 0; y < 25; ++y)
        ad.push_back(dFactor * 8000.0 * std::pow(0.9975, y));
    return ad;
}

double BusquedaDesnuda(double dCoste, const std::vector<double>& flujos)
{
    double r = 50.0, dPaso = 50.0, a = 0.0;
    for (int i = 0; i < 10000; ++i) {
        const double dBase = r / 100.0 + 1.0;
        double v = -dCoste, k = 1.0;
        for (const double f : flujos) {
            v += f / std::pow(dBase, k);
            k += 1.0;
        }
        a = std::abs(v);
        if (a <= 0.01 + 1e-6)
            break;
        r += v > 1e-6 ? dPaso : v < -1e-6 ? -dPaso : 0.0;
        dPaso *= 0.5;
    }
    return a < 0.1 ? r : 0.0;
}

void Tasa(benchmark::State& estado, double dFactor, bool bSuelo)
{
    const std::vector<double> flujos = Flujos(dFactor);
    double dCoste = 100000.0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(dCoste);
        benchmark::DoNotOptimize(bSuelo ? BusquedaDesnuda(dCoste, flujos)
                                        : TasaInternaRetorno(dCoste, flujos).dTIR);
    }
}
BENCHMARK_CAPTURE(Tasa, Suelo, 1.0, true);
BENCHMARK_CAPTURE(Tasa, Hallada, 1.0, false);
BENCHMARK_CAPTURE(Tasa, FueraDeAlcanceSuelo, -1.0, true);
BENCHMARK_CAPTURE(Tasa, FueraDeAlcance, -1.0, false);

/// Another element in each page of an open sheet.
void CambioDeElemento(benchmark::State& estado, int iPagina, const wchar_t* rotulo)
{
    constexpr std::size_t kElementos = 50;
    const auto produccion = Horas(31, 0.002, kElementos + 1);
    const auto consumo = Horas(17, 0.0015, kElementos + 1);
    CObArrayPropio<CSFVCalculoEconomicoAuto> estudios;
    for (std::size_t i = 0; i < kElementos; ++i)
        estudios.Add(std::make_unique<CSFVCalculoEconomicoAuto>()).dCosteInstalacion = 9000.0;
    using Bloque = double[12][31][24];
    const auto precios = std::make_unique<Bloque[]>(2);
    for (std::size_t b = 0; b < 2; ++b)
        std::fill_n(&precios[b][0][0][0], kHorasBloque, b == 0 ? 0.2 : 0.05);
    const efv::bench::Medidor medidor([&](efv::ui::Dialogo& hoja) {
        hoja.Elegir(*hoja.Pestanas(), iPagina);
        efv::ui::Seleccion* elemento = nullptr;
        for (efv::ui::Control* control : hoja.Controles())
            if (control->NumeroDePagina() == iPagina && control->csRotulo == rotulo)
                elemento = dynamic_cast<efv::ui::Seleccion*>(control);
        int i = 0;
        for (auto _ : estado)
            hoja.Elegir(*elemento, ++i % static_cast<int>(kElementos));
    });
    phViabilidadEconomicaAutoconsumo(produccion.data(), consumo.data(), nullptr, nullptr, nullptr, nullptr,
                                     nullptr, 0.0, precios[0], precios[1], estudios);
}
BENCHMARK_CAPTURE(CambioDeElemento, Energia, 0, L"Consumo:");
BENCHMARK_CAPTURE(CambioDeElemento, Balance, 4, L"Consumo:");
BENCHMARK_CAPTURE(CambioDeElemento, Amortizacion, 5, L"Generador:");

}  // namespace

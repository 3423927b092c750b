#include "solar/inclinacion_optima.h"

#include <quorvel/solar/inclinacion.h>

#include <algorithm>
#include <cmath>

#include "platform/numero/tolerancia.h"
#include "solar/calendario.h"

namespace efv::solar {

namespace {

/// Tilts between two steps of the progress.
constexpr std::size_t kGrupo = 8;

double SumaDelMes(const clima::SumasMeses& sumas, int iMes)
{
    return iMes >= 0 && iMes <= kAnoBusqueda ? sumas[static_cast<std::size_t>(iMes)] : 0.0;
}

}  // namespace

std::vector<double> InclinacionesDeBusqueda(double dLatitud, double dPaso)
{
    if (std::isnan(dLatitud))
        return {};
    const double dMayor = std::max(std::min(std::abs(dLatitud), 90.0), 10.0);
    const double dLimite = std::trunc(dMayor) * (1.0 / dPaso);
    std::vector<double> adInclinaciones;
    double t = 0.0;
    for (int iRonda = 0; iRonda < dLimite; ++iRonda, t += dPaso)
        adInclinaciones.push_back(t);
    return adInclinaciones;
}

double OrientacionAlEcuador(double dLatitud)
{
    return numero::MayorIgual(dLatitud, 0.0) ? 0.0 : 180.0;
}

std::array<Optimo, 13> BuscarOptimos(clima::BibliotecaClima& biblioteca, const clima::SitioCielo& sitio,
                                     double dOrientacion, double dPaso,
                                     const std::function<void(std::size_t)>& avance)
{
    const std::vector<double> adInclinaciones = InclinacionesDeBusqueda(sitio.dLatitud, dPaso);
    std::vector<clima::SumasMeses> sumas(adInclinaciones.size());
    std::array<Optimo, 13> optimos{};
    biblioteca.SumasDeInclinaciones(sitio, adInclinaciones, dOrientacion, sumas);
    for (std::size_t t = 0; t < adInclinaciones.size(); ++t) {
        for (std::size_t m = 0; m < optimos.size(); ++m)
            if (numero::Mayor(sumas[t][m], optimos[m].dRadiacion))
                optimos[m] = {adInclinaciones[t], sumas[t][m]};
        if (avance && (t + 1 == adInclinaciones.size() || (t + 1) % kGrupo == 0))
            avance(t + 1);
    }
    return optimos;
}

Optimo BuscarOptimo(clima::BibliotecaClima& biblioteca, const clima::SitioCielo& sitio, double dPaso, int iMes)
{
    if (iMes < 0 || iMes > kAnoBusqueda)
        return {};
    const double dOrientacion = OrientacionAlEcuador(sitio.dLatitud);
    return BuscarOptimos(biblioteca, sitio, dOrientacion, dPaso)[static_cast<std::size_t>(iMes)];
}

std::array<InclinacionOptima, 13> InclinacionesOptimas(clima::BibliotecaClima& biblioteca,
                                                       const clima::SitioCielo& sitio, double dOrientacion)
{
    const auto adProbadas = InclinacionesDeBusqueda(sitio.dLatitud, kPasoConsulta);
    const auto optimos = BuscarOptimos(biblioteca, sitio, dOrientacion, kPasoConsulta);
    std::array<InclinacionOptima, 13> resultado;
    for (std::size_t m = 0; m < resultado.size(); ++m)
        resultado[m] = {optimos[m].dInclinacion, optimos[m].dRadiacion,
                        !adProbadas.empty() && optimos[m].dInclinacion == adProbadas.back()};
    return resultado;
}

double Perdidas(clima::BibliotecaClima& biblioteca, const clima::SitioCielo& sitio, int iMes,
                double dInclinacion, double dOrientacion, double dRadOptima)
{
    if (numero::MenorIgual(dRadOptima, 0.0))
        dRadOptima = BuscarOptimo(biblioteca, sitio, kPasoConsulta, iMes).dRadiacion;
    std::array<clima::SumasMeses, 1> sumas{};
    biblioteca.SumasDeInclinaciones(sitio, std::array{dInclinacion}, dOrientacion, sumas);
    const double dSuma = iMes == kAnoPerdidas ? sumas[0][12] : iMes < 12 ? SumaDelMes(sumas[0], iMes) : 0.0;
    return (dRadOptima - dSuma) / dRadOptima * 100.0;
}

double FactorDelDia(clima::BibliotecaClima& biblioteca, double dDatoSitio, double dLatitud, int iMes, int iDia,
                    double dInclinacion, double dOrientacion, double dHumedad, double dTemperatura)
{
    double dHorizontal = 0.0;
    double dPanel = 0.0;
    for (int iHora = 1; iHora <= 24; ++iHora) {
        const auto neta = [&](double t) {
            const auto parte = [&](double p) {
                return biblioteca.clGetRadiacionSolarTotal(dDatoSitio, dLatitud, iMes + 1, iDia + 1, iHora,
                                                           dTemperatura, dHumedad, t, dOrientacion, p);
            };
            const double dTotal = parte(0.0);
            return dTotal - std::abs(parte(1.0));
        };
        dHorizontal += neta(0.0);
        dPanel += neta(dInclinacion);
    }
    return dPanel / dHorizontal;
}

std::wstring_view NombreOrientacion(double a)
{
    using numero::Mayor, numero::MayorIgual, numero::Menor, numero::MenorIgual;
    struct Tramo {
        bool (*desde)(double, double);
        double dDesde;
        bool (*hasta)(double, double);
        double dHasta;
        std::wstring_view nombre;
    };
    constexpr auto kMayor = [](double x, double b) { return Mayor(x, b); };
    constexpr auto kMayorIgual = [](double x, double b) { return MayorIgual(x, b); };
    constexpr auto kMenor = [](double x, double b) { return Menor(x, b); };
    constexpr auto kMenorIgual = [](double x, double b) { return MenorIgual(x, b); };
    // In the order in which they are tried.
    static constexpr Tramo kTramos[] = {
        {kMayor, -10, kMenorIgual, 0, L"S"},      {kMayorIgual, 0, kMenor, 10, L"S"},
        {kMayor, -80, kMenorIgual, -10, L"SE"},   {kMayor, -100, kMenorIgual, -80, L"E"},
        {kMayor, -170, kMenorIgual, -100, L"NE"}, {kMayorIgual, -180, kMenor, -170, L"N"},
        {kMayor, 170, kMenorIgual, 180, L"N"},    {kMayor, 100, kMenorIgual, 170, L"NO"},
        {kMayor, 80, kMenorIgual, 100, L"O"},     {kMayor, 10, kMenorIgual, 80, L"SO"},
    };
    for (const Tramo& tramo : kTramos)
        if (tramo.desde(a, tramo.dDesde) && tramo.hasta(a, tramo.dHasta))
            return tramo.nombre;
    return {};
}

}  // namespace efv::solar

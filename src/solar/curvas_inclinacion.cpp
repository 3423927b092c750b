#include "solar/curvas_inclinacion.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include <fmt/xchar.h>

#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "solar/calendario.h"
#include "solar/inclinacion_optima.h"

namespace efv::solar {

namespace {

constexpr std::size_t kHorasDia = 24;

/// Calls `f` with month and day from 0, the day's first hour in a block and its first of the year.
template <class F>
void CadaDia(F&& f)
{
    std::size_t iHoraAno = 0;
    for (std::size_t m = 0; m < kMeses; ++m)
        for (std::size_t d = 0; d < static_cast<std::size_t>(kDiasMesReferencia[m]); ++d, iHoraAno += kHorasDia)
            f(m, d, (m * 31 + d) * kHorasDia, iHoraAno);
}

void Repartir(std::span<const double, 8760> ano, BloqueHoras bloque)
{
    CadaDia([&](std::size_t, std::size_t, std::size_t iBloque, std::size_t iHora) {
        std::ranges::copy(ano.subspan(iHora, kHorasDia), bloque.subspan(iBloque).begin());
    });
}

void DelRegistro(clima::BibliotecaClima& biblioteca, double dInclinacion, double dOrientacion,
                 BloqueHoras bloque)
{
    CadaDia([&](std::size_t, std::size_t, std::size_t iBloque, std::size_t iHora) {
        for (std::size_t h = 0; h < kHorasDia; ++h)
            bloque[iBloque + h] =
                std::max(biblioteca.clGetID(static_cast<int>(iHora + h), dInclinacion, dOrientacion), 0.0);
    });
}

void DelCielo(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
              BloqueHoras bloque)
{
    const clima::SitioCielo sitio{plano.dDatoSitio, plano.dLatitud, kHumedadNormal, TemperaturasNormales()};
    std::vector<double> ano(8760);
    biblioteca.AnoDelPlano(sitio, dInclinacion, plano.dOrientacion, std::span<double, 8760>(ano));
    Repartir(std::span<const double, 8760>(ano), bloque);
}

double SumarHoras(std::span<const double> adHoras)
{
    double dSuma = 0.0;
    for (const double d : adHoras)
        dSuma += d;
    return dSuma;
}

// The factor of each day is FactorDelDia, out of two whole years: the same additions in the same order.
void DeLaHorizontal(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
                    BloqueHoras adInclinada, std::span<const double, kHorasBloque> adHorizontal)
{
    std::vector<double> enHorizontal(kHorasBloque), enPlano(kHorasBloque);
    DelCielo(biblioteca, plano, 0.0, BloqueHoras(enHorizontal));
    DelCielo(biblioteca, plano, dInclinacion, BloqueHoras(enPlano));
    CadaDia([&](std::size_t, std::size_t, std::size_t iBloque, std::size_t) {
        const auto suma = [iBloque](const std::vector<double>& horas) {
            return SumarHoras(std::span(horas).subspan(iBloque, kHorasDia));
        };
        const double dFactor = suma(enPlano) / suma(enHorizontal);
        for (std::size_t h = iBloque; h < iBloque + kHorasDia; ++h)
            adInclinada[h] = dFactor * adHorizontal[h];
    });
}

}  // namespace

std::span<const double, 372> TemperaturasNormales()
{
    static const auto temperaturas = [] {
        std::array<double, 372> ad{};
        ad.fill(kTemperaturaNormal);
        return ad;
    }();
    return temperaturas;
}

void RadiarPlano(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
                 BloqueHoras adInclinada, BloqueHoras adHorizontal)
{
    switch (plano.fuente) {
        case FuenteRadiacion::registro:
            DelRegistro(biblioteca, 0.0, plano.dOrientacion, adHorizontal);
            DelRegistro(biblioteca, dInclinacion, plano.dOrientacion, adInclinada);
            break;
        case FuenteRadiacion::cielo:
            DelCielo(biblioteca, plano, 0.0, adHorizontal);
            DelCielo(biblioteca, plano, dInclinacion, adInclinada);
            break;
        case FuenteRadiacion::horizontal:
            DeLaHorizontal(biblioteca, plano, dInclinacion, adInclinada, adHorizontal);
            break;
    }
}

CurvaDiaria SumarDias(std::span<const double, kHorasBloque> adHoras)
{
    CurvaDiaria curva;
    std::size_t iDia = 0;
    CadaDia([&](std::size_t, std::size_t, std::size_t iBloque, std::size_t) {
        const double dSuma = SumarHoras(adHoras.subspan(iBloque, kHorasDia));
        curva.adDia[iDia++] = dSuma;
        curva.dTotal += dSuma;
    });
    return curva;
}

CString TituloRadiacion(const PlanoEstudio& plano)
{
    return fmt::format(L"Radiación incidente (w/m²·día) Lat={}{} Or:{}{}",
                       numero::nuConvertFltToIntlStr(plano.dLatitud, 2),
                       numero::Menor(plano.dLatitud, 0.0) ? L"S" : L"N", NombreOrientacion(plano.dOrientacion),
                       plano.fuente == FuenteRadiacion::registro ? L"" : L" T=25ºC Hr=50%");
}

ui::SerieCurva SerieDeDias(const CurvaDiaria& curva, ui::Color color, std::wstring_view nombre)
{
    ui::SerieCurva serie;
    serie.adX.resize(curva.adDia.size());
    std::iota(serie.adX.begin(), serie.adX.end(), 1.0);
    serie.adY.assign(curva.adDia.begin(), curva.adDia.end());
    serie.color = color;
    serie.csNombre = nombre;
    return serie;
}

CCtrlCurva2D GraficaRadiacion(CString csTitulo, std::vector<ui::SerieCurva> series)
{
    CCtrlCurva2D grafica;
    grafica.csTitulo = std::move(csTitulo);
    grafica.claseX = ui::ClaseEje::fecha;
    grafica.csTituloY = L"w/m²·día";
    grafica.aSeries = std::move(series);
    return grafica;
}

}  // namespace efv::solar

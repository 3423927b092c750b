#include "solar/curvas_inclinacion.h"

#include <algorithm>
#include <cstddef>
#include <vector>

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

void DeLaHorizontal(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
                    BloqueHoras adInclinada, std::span<const double, kHorasBloque> adHorizontal)
{
    CadaDia([&](std::size_t m, std::size_t d, std::size_t iBloque, std::size_t) {
        const double dFactor =
            FactorDelDia(biblioteca, plano.dDatoSitio, plano.dLatitud, static_cast<int>(m), static_cast<int>(d),
                         dInclinacion, plano.dOrientacion, kHumedadNormal, kTemperaturaNormal);
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

CurvaDiaria CalcularCurva(clima::BibliotecaClima& biblioteca, const PlanoEstudio& plano, double dInclinacion,
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
    CurvaDiaria curva;
    std::size_t iDia = 0;
    CadaDia([&](std::size_t, std::size_t, std::size_t iBloque, std::size_t) {
        double dSuma = 0.0;
        for (std::size_t h = iBloque; h < iBloque + kHorasDia; ++h)
            dSuma += adInclinada[h];
        curva.adDia[iDia++] = dSuma;
        curva.dTotal += dSuma;
    });
    return curva;
}

}  // namespace efv::solar

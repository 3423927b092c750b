// The batch operations of a climate library that has only the single ones.
#include <cmath>

#include <quorvel/clima.h>

#include "platform/clima/cielo.h"

namespace efv::clima {

namespace {

double Neta(BibliotecaClima& biblioteca, const SitioCielo& s, int iMes, int iDia, int iHora,
            double dInclinacion, double dOrientacion)
{
    const double dTemperatura = s.adTemperaturas[static_cast<std::size_t>((iMes - 1) * 31 + iDia - 1)];
    const auto parte = [&](double dParte) {
        return biblioteca.clGetRadiacionSolarTotal(s.dDatoSitio, s.dLatitud, iMes, iDia, iHora, dTemperatura,
                                                   s.dHumedad, dInclinacion, dOrientacion, dParte);
    };
    const double dTotal = parte(0.0);
    return dTotal - std::abs(parte(1.0));
}

/// Calls `f` with month, day and hour (from 1) of each hour of the year.
template <class F>
void CadaHora(F&& f)
{
    for (int iMes = 1; iMes <= 12; ++iMes)
        for (int iDia = 1; DiaDelAno(iMes, iDia); ++iDia)
            for (int iHora = 1; iHora <= 24; ++iHora)
                f(iMes, iDia, iHora);
}

}  // namespace

void BibliotecaClima::AnoDelPlano(const SitioCielo& sitio, double dInclinacion, double dOrientacion,
                                  std::span<double, 8760> adNeta)
{
    std::size_t i = 0;
    CadaHora([&](int iMes, int iDia, int iHora) {
        adNeta[i++] = Neta(*this, sitio, iMes, iDia, iHora, dInclinacion, dOrientacion);
    });
}

void BibliotecaClima::SumasDeInclinaciones(const SitioCielo& sitio, std::span<const double> adInclinaciones,
                                           double dOrientacion, std::span<SumasMeses> sumas)
{
    for (std::size_t i = 0; i < adInclinaciones.size(); ++i) {
        SumasMeses& suma = sumas[i];
        suma.fill(0.0);
        CadaHora([&](int iMes, int iDia, int iHora) {
            const double dNeta = Neta(*this, sitio, iMes, iDia, iHora, adInclinaciones[i], dOrientacion);
            suma[static_cast<std::size_t>(iMes - 1)] += dNeta;
            suma[12] += dNeta;
        });
    }
}

}  // namespace efv::clima

#include "economia/horas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numeric>

#include <quorvel/clima.h>

#include "diseno/equipos.h"

namespace efv::estudio {

namespace {

using economics::kHorasBloque;

constexpr double kTemperatura = 20.0;  // ºC, of the clear sky that gives the shape of a day
constexpr double kMil = 1000.0;

// Hours of a year of 365 days into their places.
BloqueHoras EnBloque(const AnoHorario& ano)
{
    BloqueHoras bloque(kHorasBloque);
    std::size_t i = 0;
    for (std::size_t m = 0; m < solar::kMeses; ++m)
        for (std::size_t h = 0; h < static_cast<std::size_t>(solar::kDiasMesReferencia[m]) * 24; ++h)
            bloque[m * 31 * 24 + h] = ano[i++];
    return bloque;
}

}  // namespace

std::optional<CampoRed> CampoDe(const CProyectoEstudio& proyecto)
{
    if (!HayDiseno(proyecto.red))
        return std::nullopt;
    const GrupoInversores inversores = InversoresDe(proyecto.red);
    CampoRed campo;
    campo.dPotencia = PanelesDe(proyecto.red).Potencia() * inversores.iCuantos;
    campo.dInversores = inversores.Potencia();
    campo.dInclinacion = proyecto.red.dInclinacion;
    solar::CampoSolar solar{.dLatitud = proyecto.lugar.dLatitud,
                            .bNorte = proyecto.lugar.iHemisferio == 1,
                            .dInclinacion = campo.dInclinacion,
                            .dPotencia = campo.dPotencia / kMil};
    std::ranges::copy(proyecto.lugar.adRadHorizontal, solar.adRadHorizontal.begin());
    for (const solar::Metodo metodo : {solar::kMetodoDeUso, solar::Metodo::correlacion}) {
        const auto ano = solar::CalcularEnergia(solar, metodo, phGetBaseFactorK());
        if (!ano || !std::isfinite(ano->Energia()))
            continue;
        campo.ano = *ano;
        return campo;
    }
    return std::nullopt;
}

BloqueHoras ProduccionDe(const CProyectoEstudio& proyecto, const CampoRed& campo)
{
    std::array<double, 372> adTemperaturas;
    adTemperaturas.fill(kTemperatura);
    const clima::SitioCielo sitio{.dLatitud = proyecto.lugar.dLatitud, .adTemperaturas = adTemperaturas};
    const auto ano = std::make_unique<AnoHorario>();
    clima::BibliotecaActual().AnoDelPlano(sitio, campo.dInclinacion,
                                          proyecto.lugar.iHemisferio == 1 ? 0.0 : 180.0, *ano);
    for (double& d : *ano)
        d = std::max(d, 0.0);
    BloqueHoras bloque = EnBloque(*ano);
    for (std::size_t m = 0; m < solar::kMeses; ++m) {
        constexpr auto nHoras = std::ptrdiff_t{31} * 24;
        const auto desde = bloque.begin() + static_cast<std::ptrdiff_t>(m) * nHoras;
        const double dForma = std::accumulate(desde, desde + nHoras, 0.0);
        const double dEnergia = campo.ano.meses[m].dEnergiaMes * kPerformanceRatio;
        std::for_each(desde, desde + nHoras,
                      [&](double& d) { d = dForma > 0.0 ? d * dEnergia / dForma : 0.0; });
    }
    return bloque;
}

BloqueHoras ConsumoDe(const CProyectoEstudio& proyecto)
{
    const Consumo& consumo = proyecto.consumo;
    const auto ano = std::make_unique<AnoHorario>();
    if (consumo.bExcluir != 0)
        return EnBloque(*ano);
    if (consumo.iTipoEntrada == 0)
        std::ranges::copy(consumo.adHoras, ano->begin());
    else
        AnoDeReceptores(consumo.lReceptores, *ano);
    for (double& d : *ano)
        d /= kMil;
    return EnBloque(*ano);
}

double Suma(const BloqueHoras& horas)
{
    return std::accumulate(horas.begin(), horas.end(), 0.0);
}

}  // namespace efv::estudio

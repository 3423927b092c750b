#include <quorvel/solar/energia.h>

#include <cmath>

#include "solar/energia.h"
#include "solar/radiacion.h"

namespace efv::solar {

namespace {

DoceMeses Extraer(const AnoEnergia& ano, double MesEnergia::*valor)
{
    DoceMeses ad{};
    for (std::size_t m = 0; m < kMeses; ++m)
        ad[m] = ano.meses[m].*valor;
    return ad;
}

MesEnergia Mes(const CampoSolar& campo, std::size_t m, double dPlano)
{
    MesEnergia mes;
    mes.dHorizontal = campo.adRadHorizontal[m] / kKJporKWh;
    mes.dPlano = dPlano;
    mes.dEnergiaDia = dPlano * campo.dPotencia * campo.dPR * campo.dFactor;
    mes.dEnergiaMes = mes.dEnergiaDia * kDiasMesReferencia[m];
    return mes;
}

// The correlation takes the latitude with its sign and tilts toward the south, so that in the south a tilt
// toward the equator is negative.
AnoEnergia PorCorrelacion(const CampoSolar& campo)
{
    const double dSigno = campo.bNorte ? 1.0 : -1.0;
    const PlanoInclinado plano = PrepararPlano(dSigno * std::abs(campo.dLatitud), dSigno * campo.dInclinacion);
    RegistroRadiacion registro;
    AnoEnergia ano;
    for (std::size_t m = 0; m < kMeses; ++m) {
        CalcularMes(registro, static_cast<int>(m), plano, campo.adRadHorizontal[m], {});
        ano.meses[m] = Mes(campo, m, registro.dRadPlanoKWh[m]);
    }
    return ano;
}

}  // namespace

double AnoEnergia::Energia() const
{
    double dSuma = 0.0;
    for (const MesEnergia& mes : meses)
        dSuma += mes.dEnergiaMes;
    return dSuma;
}

double AnoEnergia::HorizontalMedia() const
{
    return MediaAnual(Extraer(*this, &MesEnergia::dHorizontal));
}

double AnoEnergia::PlanoMedio() const
{
    return MediaAnual(Extraer(*this, &MesEnergia::dPlano));
}

double AnoEnergia::EnergiaDiaMedia() const
{
    return MediaAnual(Extraer(*this, &MesEnergia::dEnergiaDia));
}

double MediaAnual(const DoceMeses& adDia)
{
    double dSuma = 0.0;
    int iDias = 0;
    for (std::size_t m = 0; m < kMeses; ++m) {
        dSuma += adDia[m] * kDiasMesReferencia[m];
        iDias += kDiasMesReferencia[m];
    }
    return dSuma / iDias;
}

AnoEnergia CalcularEnergia(const CampoSolar& campo, const DoceMeses& adK)
{
    AnoEnergia ano;
    for (std::size_t m = 0; m < kMeses; ++m)
        ano.meses[m] = Mes(campo, m, HorasPico(campo.adRadHorizontal[m], adK[m]));
    return ano;
}

std::optional<AnoEnergia> CalcularEnergia(const CampoSolar& campo, Metodo metodo, const CBaseFactorK& tabla)
{
    if (metodo == Metodo::correlacion)
        return PorCorrelacion(campo);
    const auto k = FactoresK(tabla, campo.dLatitud, campo.bNorte ? 1 : 0, campo.dInclinacion);
    return k ? std::optional(CalcularEnergia(campo, *k)) : std::nullopt;
}

}  // namespace efv::solar

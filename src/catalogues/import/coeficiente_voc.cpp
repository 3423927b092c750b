#include "catalogues/import/coeficiente_voc.h"

#include <cmath>
#include <limits>

namespace efv::catalogues {

namespace {

constexpr double kBoltzmann = 8.617333262e-5;  // eV/K
constexpr double kReferencia = 298.15;         // K
constexpr int kMitades = 200;

// V of all cells in series where the current is 0.
double TensionVacio(const UnDiodo& d, double dFotocorriente, double dSaturacion, double dEscala)
{
    const auto corriente = [&](double dV) {
        return dFotocorriente - dSaturacion * std::expm1(dV / dEscala) - dV / d.dParalelo;
    };
    double dBajo = 0.0, dAlto = 2.0 * d.dVoc;
    for (int i = 0; i < kMitades; ++i) {
        const double dMedio = 0.5 * (dBajo + dAlto);
        (corriente(dMedio) > 0.0 ? dBajo : dAlto) = dMedio;
    }
    return 0.5 * (dBajo + dAlto);
}

}  // namespace

double CoeficienteVoc(const UnDiodo& d)
{
    const bool bSirve = d.dIsc > 0.0 && d.dVoc > 0.0 && d.dSerie >= 0.0 && d.dParalelo > 0.0 &&
                        d.dIdealidad > 0.0 && d.iCelulas > 0;
    if (!bSirve)
        return std::numeric_limits<double>::quiet_NaN();
    const double dFotocorriente = d.dIsc * (1.0 + d.dSerie / d.dParalelo);
    const auto escala = [&](double dT) {
        return d.iCelulas * (d.dIdealidad + d.dIdealidadGrado * (dT - kReferencia)) * kBoltzmann * dT;
    };
    const double dSaturacion =
        (dFotocorriente - d.dVoc / d.dParalelo) / std::expm1(d.dVoc / escala(kReferencia));
    const auto vacio = [&](double dGrados) {
        const double dT = kReferencia + dGrados;
        const double dIdealidad = d.dIdealidad + d.dIdealidadGrado * dGrados;
        const double dPropia = dSaturacion * std::pow(dT / kReferencia, 3) *
                               std::exp(d.dBanda / (dIdealidad * kBoltzmann) * (1.0 / kReferencia - 1.0 / dT));
        return TensionVacio(d, dFotocorriente + d.dIscGrado * dGrados, dPropia, escala(dT));
    };
    return (vacio(1.0) - vacio(-1.0)) / 2.0 * 1000.0;
}

}  // namespace efv::catalogues

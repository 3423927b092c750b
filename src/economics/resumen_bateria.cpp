// What a battery did in a year and what it saved.
#include <algorithm>

#include <quorvel/economics_calculo.h>

#include "economics/horas_bloque.h"

namespace efv::economics {

bool ResumenBateria::Vacio() const
{
    return dCargaRed + dCargaFV + dDescarga < 0.01;
}

ResumenBateria ResumirBateria(const HorasEstudio& h, const HorasBateria& bat)
{
    ResumenBateria r;
    double dBase = 0.0;
    double dConBateria = 0.0;
    for (std::size_t m = 0; m < 12; ++m) {
        const auto [iPrimera, iFin] = HorasDelMes(m);
        for (std::size_t i = iPrimera; i < iFin; ++i) {
            const double P = h.adProduccion[i];
            const double C = h.adConsumo[i];
            const double B = h.adPrecioConsumo[i];
            const double S = h.adPrecioVertido[i];
            r.dCargaFV += bat.adCargaFV[i];
            r.dCargaRed += bat.adCargaRed[i];
            r.dDescarga += bat.adDescarga[i];
            dBase += std::max(C - P, 0.0) * B - std::max(P - C, 0.0) * S;
            dConBateria += std::max(C - bat.adAutoconsumo[i], 0.0) * B + bat.adCargaRed[i] * B -
                           S * bat.adVertido[i] + bat.adDescarga[i] * bat.dCosteDegradacion;
        }
    }
    r.dCosteDegradacion = r.dDescarga * bat.dCosteDegradacion;
    r.dAhorroNeto = dBase - dConBateria;
    return r;
}

}  // namespace efv::economics

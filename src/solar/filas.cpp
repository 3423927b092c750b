#include "solar/filas.h"

#include <cmath>

#include "solar/angulos.h"

namespace efv::solar {

double CoeficienteSombra(double dLatitud)
{
    return 1 / std::tan(ARadianes(61 - dLatitud));
}

double DivisorPendiente(double dPendiente, double dCoeficienteSombra)
{
    return std::tan(ARadianes(dPendiente)) * dCoeficienteSombra + 1;
}

SeparacionFilas SeparacionPorAlturaSolar(int iNumPaneles, double dLongitudPanel, double dInclinacion,
                                         double dAlturaSolar)
{
    const double dLongitud = iNumPaneles * dLongitudPanel;
    SeparacionFilas s{};
    s.dDistanciaFilas =
        dLongitud * std::sin(ARadianes(180 - dInclinacion - dAlturaSolar)) / std::sin(ARadianes(dAlturaSolar));
    s.dAlturaFila = dLongitud * std::sin(ARadianes(dInclinacion));
    s.dAlturaPanel = s.dAlturaFila / iNumPaneles;
    s.dDistanciaLibre = s.dDistanciaFilas - dLongitud * std::cos(ARadianes(dInclinacion));
    return s;
}

SeparacionFilas SeparacionPorCondicionesTecnicas(int iNumPaneles, double dLongitudPanel, double dInclinacion,
                                                 double dPendiente, double dLatitud)
{
    const double dLongitud = iNumPaneles * dLongitudPanel;
    const double dBeta = ARadianes(dInclinacion);
    const double k = CoeficienteSombra(dLatitud);
    SeparacionFilas s{};
    s.dAlturaFila = dLongitud * std::sin(dBeta);
    s.dAlturaPanel = s.dAlturaFila / iNumPaneles;
    s.dDistanciaLibre = dLongitud * k * std::sin(dBeta) / DivisorPendiente(dPendiente, k);
    s.dDistanciaFilas = dLongitud * std::cos(dBeta) + s.dDistanciaLibre;
    return s;
}

}  // namespace efv::solar

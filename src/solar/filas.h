// How far apart rows of panels stand.
#pragma once

namespace efv::solar {

/// 1 / tan(61º − latitude): length of the shadow of a height of 1 while the sun stands 61º − latitude high, the
/// height that the rule takes for four hours of sun around noon of the shortest day.
double CoeficienteSombra(double dLatitud);

/// What a slope of the ground (degrees) takes from that shadow: the shadow is divided by it.
double DivisorPendiente(double dPendiente, double dCoeficienteSombra);

struct SeparacionFilas {
    double dDistanciaFilas;  ///< from the foot of a row to the foot of the next
    double dDistanciaLibre;  ///< of it, what no panel covers
    double dAlturaPanel;     ///< height that one panel adds
    double dAlturaFila;      ///< height of the row
};

/// Rows of `iNumPaneles` panels of a length, one above the other, that don't shade each other while the
/// sun stands at `dAlturaSolar` or higher. Angles in degrees; lengths in the unit of `dLongitudPanel`.
SeparacionFilas SeparacionPorAlturaSolar(int iNumPaneles, double dLongitudPanel, double dInclinacion,
                                         double dAlturaSolar);

/// The same by the rule of the technical conditions, on ground of a slope.
SeparacionFilas SeparacionPorCondicionesTecnicas(int iNumPaneles, double dLongitudPanel, double dInclinacion,
                                                 double dPendiente, double dLatitud);

}  // namespace efv::solar

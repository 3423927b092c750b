// The temperature coefficient of the open-circuit voltage out of a module's one-diode figures.
#pragma once

namespace efv::catalogues {

struct UnDiodo {
    double dIsc, dVoc;           ///< A, V at 25 ºC
    double dSerie, dParalelo;    ///< resistances, ohm
    double dIdealidad;           ///< of the diode, at 25 ºC
    double dIdealidadGrado = 0;  ///< its change, 1/ºC
    double dIscGrado = 0;        ///< A/ºC
    double dBanda = 1.12;        ///< eV
    int iCelulas = 1;            ///< in series
};

/// mV/ºC around 25 ºC, by the single-diode model with a saturation current of T³·exp(−Eg/γkT) (Mermoud and
/// Lejeune, 2010). Not a number when the figures make no module.
double CoeficienteVoc(const UnDiodo& diodo);

}  // namespace efv::catalogues

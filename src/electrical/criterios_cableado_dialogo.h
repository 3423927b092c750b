// Dialogs of what holds for all conductors: their materials and the margins of safety.
#pragma once

#include "electrical/cables.h"
#include "ui/ficha.h"

namespace efv::electrical {

/// Resistivities at 20 ºC, Ω·mm²/m, and coefficients, 1/K.
struct DatosFisicosConductor {
    double dResistividadCobre = kCobre.dResistividad, dResistividadAluminio = kAluminio.dResistividad;
    double dCoeficienteCobre = kCobre.dCoeficiente, dCoeficienteAluminio = kAluminio.dCoeficiente;
};

/// What conductors are sized above their current, %.
struct MargenesCableado {
    double dMargenPaneles = 0.0, dMargenAcumuladores = 0.0, dMargenReceptores = 0.0;
};

}  // namespace efv::electrical

class CDlgDatosFisicoConductor : public efv::ui::DialogoFicha<efv::electrical::DatosFisicosConductor> {
public:
    explicit CDlgDatosFisicoConductor(const efv::electrical::DatosFisicosConductor& inicial);
};

class CDlgDatosMargenSeguridadCableado : public efv::ui::DialogoFicha<efv::electrical::MargenesCableado> {
public:
    explicit CDlgDatosMargenSeguridadCableado(const efv::electrical::MargenesCableado& inicial);
};

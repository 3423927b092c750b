// Dialogs of a regulator: one that charges batteries, one of an installation for self-consumption. They
// calculate nothing.
#pragma once

#include "elements/elemento_dialogo.h"

namespace efv::elements {

struct DatosRegulador : DatosElemento {
    double dVNom = 0.0;                                  ///< V, of batteries and loads
    double dPPanelMax = 0.0, dIPanelMax = 0.0;           ///< W, A
    double dVPanelMax = 0.0, dVPanelMin = 0.0;           ///< V
    double dPerdidas = 0.0;                              ///< %
    int iTipoRegulador = 0;                              ///< 1: with an inverter of its own
    double dTensionSalida = 0.0, dPotenciaSalida = 0.0;  ///< V, W, of that inverter
    int iTipoSalida = 0;                                 ///< 0 single-phase, 1 three-phase
};

template <>
inline constexpr auto kNombresDe<DatosRegulador> = std::to_array<ui::NombreCampo<DatosRegulador>>({
    {"dVNom", &DatosRegulador::dVNom},
    {"dPPanelMax", &DatosRegulador::dPPanelMax},
    {"dIPanelMax", &DatosRegulador::dIPanelMax},
    {"dVPanelMax", &DatosRegulador::dVPanelMax},
    {"dVPanelMin", &DatosRegulador::dVPanelMin},
    {"dPerdidas", &DatosRegulador::dPerdidas},
    {"iTipoRegulador", &DatosRegulador::iTipoRegulador},
    {"dTensionSalida", &DatosRegulador::dTensionSalida},
    {"dPotenciaSalida", &DatosRegulador::dPotenciaSalida},
    {"iTipoSalida", &DatosRegulador::iTipoSalida},
});

}  // namespace efv::elements

class CDlgDatosReguladorCarga final : public efv::elements::DialogoElemento<efv::elements::DatosRegulador> {
public:
    explicit CDlgDatosReguladorCarga(const efv::elements::DatosRegulador& inicial);

private:
    void RotularPotencia();
};

class CDlgDatosReguladorAuto final : public efv::elements::DialogoElemento<efv::elements::DatosRegulador> {
public:
    explicit CDlgDatosReguladorAuto(const efv::elements::DatosRegulador& inicial);

private:
    void HabilitarSalida();
};

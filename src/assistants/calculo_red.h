// Sizing of a grid-connected installation: how many inverters for a power, and which panel field on each.
//
// Each result stands twice: the one that follows the values in force, and the program's proposal, whose
// name ends in P.
#pragma once

#include <quorvel/assistants.h>

#include "assistants/equipos.h"

namespace efv::assistants {

/// An inverter as the sizing takes it.
struct InversorLeido {
    double dPCANom = 0.0, dPCAMax = 0.0;    ///< nominal and maximum output, W
    double dVMPPMax = 0.0, dVMPPMin = 0.0;  ///< window of the voltage at maximum power, V
    double dVCCMax = 0.0;                   ///< most input voltage, V
    double dIMaxEntrada = 0.0;              ///< current that each panel field must keep to, A
    int iNumMPPT = 0, iNumEntradas = 0;
    int iUsoPrincipal = 0;  ///< 0: for connection to the grid
    int iTipoSalida = 0;
};

InversorLeido LeerInversor(const CBaseInversorModelo& modelo);

/// Working values of the assistant. The record's fields stand in it as the person last left them.
struct ValoresRed : CSFVAsistenteRed {
    double dLatitud = 0.0;        ///< degrees
    CString csHemisferio = L"N";  ///< "N" north, else south

    InversorLeido inversor;
    DatosPanel panel;

    int iInversoresP = 0;
    int iPanelesSerieP = 0, iPanelesParaleloP = 0;
    double dInclinacionP = 0.0, dOrientacionP = 0.0;                     ///< degrees
    double dDistanciaFilasP = 0.0;                                       ///< mm
    double dPotenciaInversorCampo = 0.0, dPotenciaInversorCampoP = 0.0;  ///< panels of one inverter, Wp
    double dTensionRamal = 0.0, dTensionRamalP = 0.0;                    ///< V
    int iPanelesInversor = 0, iPanelesInversorP = 0;
    int iTotalPaneles = 0, iTotalPanelesP = 0;
    double dPotenciaTotal = 0.0, dPotenciaTotalP = 0.0;                // of the panels, kW
    double dPotenciaInversores = 0.0, dPotenciaInversoresP = 0.0;      ///< kW
    double dSuperficieTotal = 0.0, dSuperficieTotalP = 0.0;            ///< m²
    double dSuperficieProyectada = 0.0, dSuperficieProyectadaP = 0.0;  ///< on the horizontal, m²
};

/// The whole sizing at standard conditions. With `bForzar` the proposals replace the values in force.
/// A model that isn't known has data of 0: the results then mean nothing.
void RecalcularRed(ValoresRed& v, bool bForzar);

/// Row spacing at the tilt in force. False, with nothing changed, for a panel without length.
bool EspaciarFilas(ValoresRed& v);

}  // namespace efv::assistants

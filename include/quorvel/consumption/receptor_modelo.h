// What a load has of its model of the catalogue.
#pragma once

#include <quorvel/catalogues/receptor.h>
#include <quorvel/consumption.h>

namespace efv::consumption {

/// Calls `accion` with each figure that a load has of its model, the load's and the model's.
/// @param receptor a CSFVDataReceptor @param modelo a CBaseReceptorModelo; either may be const
template <class RECEPTOR, class MODELO, class ACCION>
void PorPares(RECEPTOR& receptor, MODELO& modelo, ACCION accion)
{
    accion(receptor.dPotencia, modelo.dP);
    accion(receptor.dVoltaje, modelo.dVs);
    accion(receptor.dVoltajeMinimo, modelo.dVsMin);
    accion(receptor.dRendimiento, modelo.dRend);
    accion(receptor.iTipoRed, modelo.iTipoRed);
    accion(receptor.iLuminaria, modelo.bIlum);
}

/// Fills all of them, and the manufacturer, from the model.
inline void TomarDelModelo(CSFVDataReceptor& receptor, const CBaseReceptorModelo& modelo)
{
    receptor.csFabricante = modelo.csFamilia;
    PorPares(receptor, modelo, [](auto& delReceptor, const auto& delModelo) { delReceptor = delModelo; });
}

}  // namespace efv::consumption

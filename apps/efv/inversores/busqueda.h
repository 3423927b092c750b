// Which inverters of a catalogue suit so many panels of a module.
#pragma once

#include <span>
#include <string>
#include <vector>

#include <quorvel/assistants_calculo.h>
#include <quorvel/catalogues.h>
#include <quorvel/report/disenos.h>

#include "catalogo/acceso.h"

namespace efv::orden {

/// What is looked for.
struct PanelesPedidos {
    const CBasePanelFotoModelo* panel = nullptr;
    int iPaneles = 0;
    report::TemperaturasCelulas temperaturas;
    /// Of the panels' power to the nominal output of the inverters.
    double dRatioMinimo = report::kRatioMinimo, dRatioMaximo = report::kRatioMaximo;
    int iInversoresMaximos = 1;

    double Potencia() const { return iPaneles * panel->dPmpm; }  ///< W
};

struct InversorEnsayado {
    const CBaseInversorModelo* inversor = nullptr;
    assistants::PropuestaComprobada
        reparto;                     ///< the strings of each; counts where there is no reason against it
    std::vector<int> aiPorSeguidor;  ///< strings on each tracker
    std::string motivo;              ///< why it doesn't suit; empty when it does

    bool Vale() const { return motivo.empty(); }
};

/// All of them: first those that suit, the fewest inverters first, then those with equal trackers, then those
/// whose nominal output is nearest to the panels' power; then those that don't, as they stand in the catalogue.
std::vector<InversorEnsayado> EnsayarInversores(const PanelesPedidos& pedido, const Modelos& inversores);

}  // namespace efv::orden

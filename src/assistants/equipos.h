// What the sizings take from the catalogue models of batteries, panels and inverters.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/catalogues.h>

namespace efv::assistants {

/// A battery as the sizing takes it, but for its capacity.
struct DatosAcumulador {
    double dVnom = 0.0;                   ///< V
    double dH = 0.0, dW = 0.0, dL = 0.0;  ///< mm
    double dPeso = 0.0;                   ///< kg
};

DatosAcumulador LeerAcumulador(const CBaseAcumuladorModelo& modelo);

/// The rated capacity that exceeds the others; nothing when two share the highest place. The one at 20
/// hours is not compared with those at 10 and 100, nor any other with it: at equal rights the shorter
/// discharge wins.
std::optional<double> CapacidadEnVigor(const CBaseAcumuladorModelo& modelo);

/// A panel as it stands in the field: its length runs up the slope.
struct DatosPanel {
    double dPmpm = 0.0;        ///< maximum power, W
    double dVmpm = 0.0;        ///< voltage at it, V
    double dImpm = 0.0;        ///< current at it, A
    double dVoc = 0.0;         ///< open-circuit voltage, V
    double dLargoPanel = 0.0;  ///< mm
    double dAnchoPanel = 0.0;  ///< mm
    double dAreaPanel = 0.0;   ///< m²
    double dPesoPanel = 0.0;   ///< kg
};

/// `iDisposicion` 0: standing; anything else: lying.
DatosPanel Disponer(const CBasePanelFotoModelo& modelo, int iDisposicion);

/// The lowest positive current of a list such as "12,5/9/0", A: the weakest tracker limits all. `dICCMax`
/// when the list holds none.
double CorrienteLimite(double dICCMax, std::wstring_view csICCMaxMPPT);

}  // namespace efv::assistants

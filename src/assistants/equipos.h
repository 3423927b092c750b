// Catalogue data of batteries, panels and inverters as the sizings need them.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::assistants {

struct ModeloAcumulador {
    // Rated capacities for a discharge in 1 to 120 hours, Ah.
    double dCapC1 = 0.0, dCapC5 = 0.0, dCapC10 = 0.0, dCapC20 = 0.0, dCapC100 = 0.0, dCapC120 = 0.0;
    double dVnom = 0.0;                   ///< V
    double dH = 0.0, dW = 0.0, dL = 0.0;  ///< mm
    double dPeso = 0.0;                   ///< kg
};

/// The rated capacity that exceeds the others; nothing when two share the highest place. The one at 20
/// hours is not compared with those at 10 and 100, nor any other with it: at equal rights the shorter
/// discharge wins.
std::optional<double> CapacidadEnVigor(const ModeloAcumulador& modelo);

struct ModeloPanel {
    double dPmpm = 0.0;         ///< maximum power, W
    double dVmpm = 0.0;         ///< voltage at it, V
    double dImpm = 0.0;         ///< current at it, A
    double dVoc = 0.0;          ///< open-circuit voltage, V
    double dH = 0.0, dB = 0.0;  ///< length and width, mm
    double dP = 0.0;            ///< weight, kg
};

/// A panel as it stands in the field: its length runs up the slope.
struct DatosPanel {
    double dPmpm = 0.0;
    double dVmpm = 0.0;
    double dImpm = 0.0;
    double dVoc = 0.0;
    double dLargoPanel = 0.0;  ///< mm
    double dAnchoPanel = 0.0;  ///< mm
    double dAreaPanel = 0.0;   ///< m²
    double dPesoPanel = 0.0;   ///< kg
};

/// `iDisposicion` 0: standing; anything else: lying.
DatosPanel Disponer(const ModeloPanel& modelo, int iDisposicion);

/// The lowest positive current of a list such as "12,5/9/0", A: the weakest tracker limits all. `dICCMax`
/// when the list holds none.
double CorrienteLimite(double dICCMax, std::wstring_view csICCMaxMPPT);

}  // namespace efv::assistants

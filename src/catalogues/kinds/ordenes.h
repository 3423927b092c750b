// Commands of a model's dialog that belong to a later layer than the catalogues; they are handed in.
#pragma once

#include <functional>

#include <quorvel/ui/grafica.h>

class CBasePanelFotoModelo;

namespace efv::catalogues {

/// Most models have none.
template <class M>
struct OrdenesModelo {
};

/// They get the dialog's current values.
template <>
struct OrdenesModelo<CBasePanelFotoModelo> {
    std::function<void(const CBasePanelFotoModelo&)> curvasATemperaturaConstante;
    std::function<void(const CBasePanelFotoModelo&)> curvasAIrradiacionConstante;
    std::function<CCtrlCurva2D(const CBasePanelFotoModelo&)> grafica;  ///< to see beside others
};

}  // namespace efv::catalogues

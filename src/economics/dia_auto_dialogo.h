// One day of an hourly year block.
#pragma once

#include <quorvel/economics_calculo.h>

#include "consumption/dia_dialogo.h"

namespace efv::economics {

/// What a day looks like.
struct AspectoDia {
    CCtrlCurva2D grafica;  ///< titles of the curve
    CString csSerie;
    int iDecimales = 2;
    bool bSoloConsulta = false;
};

/// Opens the day's dialog over the block.
/// @return 1 when accepted, with the block changed; 0 when cancelled, or for a day that doesn't exist
int EditarDia(int iMes, int iDia, std::span<double, kHorasBloque> bloque, const AspectoDia& aspecto);

}  // namespace efv::economics

class CDlgCalculoEconomicoAutoDia : public efv::consumption::DialogoDia {
public:
    /// Day `iDia` (from 0) of month `iMes`, which must exist. The block is written on acceptance.
    CDlgCalculoEconomicoAutoDia(int iMes, int iDia, std::span<double, efv::economics::kHorasBloque> bloque,
                                const efv::economics::AspectoDia& aspecto);
};

// One day of an hourly year.
#pragma once

#include "consumption/dia_dialogo.h"

class CDlgDatosConsumoDia : public efv::consumption::DialogoDia {
public:
    /// Day `iDia` (from 0) of month `iMes`, which must exist. The year is written on acceptance.
    CDlgDatosConsumoDia(int iMes, int iDia, std::span<double, efv::kHorasDelAno> adHoras);
};

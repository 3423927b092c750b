// One day of an hourly year.
#pragma once

#include <quorvel/consumption.h>

#include "consumption/controles_horas.h"

class CDlgDatosConsumoDia : public efv::ui::Dialogo {
public:
    /// Day `iDia` (from 0) of month `iMes`, which must exist. The year is written on acceptance.
    CDlgDatosConsumoDia(int iMes, int iDia, std::span<double, efv::kHorasDelAno> adHoras);

protected:
    bool AlAceptar() override;

private:
    void AlPegar();

    int m_iMes, m_iDia;
    std::span<double, efv::kHorasDelAno> m_adHoras;
    efv::consumption::ControlesHoras m_horas;
    int m_iAlcance = 0;
};

// A year by hours as a table of its days, days by months.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include <quorvel/consumption.h>
#include <quorvel/ui/controles.h>

namespace efv::consumption {

/// "Día", then the short names of the months.
std::vector<CString> ColumnasDeDias();

/// The energy of each day, without decimals; blank for days that a month doesn't have.
class TablaDeDias final : public ui::ModeloFilas {
public:
    explicit TablaDeDias(std::shared_ptr<const AnoHorario> adHoras) : m_adHoras(std::move(adHoras)) {}

    int Filas() const override { return 31; }
    CString Celda(int iFila, int iColumna) const override;

private:
    std::shared_ptr<const AnoHorario> m_adHoras;
};

}  // namespace efv::consumption

// A year by hours as a table of its days, days by months.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <quorvel/ui/controles.h>

namespace efv::consumption {

/// "Día", then the short names of the months.
std::vector<CString> ColumnasDeDias();

/// A value of each day; blank for days that a month doesn't have.
class TablaDeDias final : public ui::ModeloFilas {
public:
    /// @param valor of day `iDia` (from 0) of month `iMes`, asked for when a cell is
    TablaDeDias(std::function<double(int iMes, int iDia)> valor, int iDecimales)
        : m_valor(std::move(valor)), m_iDecimales(iDecimales)
    {
    }

    int Filas() const override { return 31; }
    CString Celda(int iFila, int iColumna) const override;

private:
    std::function<double(int, int)> m_valor;
    int m_iDecimales;
};

}  // namespace efv::consumption

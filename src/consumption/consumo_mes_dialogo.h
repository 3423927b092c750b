// Monthly energies by tariff period, and the periods of the day.
#pragma once

#include <vector>

#include <quorvel/consumption.h>
#include <quorvel/ui/dialogo.h>

namespace efv::consumption {

struct DatosConsumoMes {
    double adMes[12][6] = {};    ///< kWh by month and period; the first three are P1, P2, P3
    int aiPeriodoHora[24] = {};  ///< period of each hour of the day, 0 to 2
    int iPatron = 0;             ///< preset that the energies follow
};

}  // namespace efv::consumption

class CDlgDatosConsumoMes : public efv::ui::Dialogo {
public:
    efv::consumption::DatosConsumoMes datos;

    /// @param acsPatrones titles of the presets
    CDlgDatosConsumoMes(const efv::consumption::DatosConsumoMes& inicial, std::vector<CString> acsPatrones);

private:
    void AnadirMeses();
    void AnadirHoras();
};

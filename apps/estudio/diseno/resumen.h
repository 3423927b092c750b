// What a design or a consumption amounts to, line by line.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "diseno/comprobaciones.h"
#include "proyecto/proyecto.h"

namespace efv::estudio {

struct LineaResumen {
    CString csConcepto, csValor;
    bool operator==(const LineaResumen&) const = default;
};

/// No lines while there is no accepted design.
std::vector<LineaResumen> ResumenDe(const CSFVAsistenteAislada& diseno);
std::vector<LineaResumen> ResumenDe(const CSFVAsistenteRed& diseno);

/// The same behind the yearly energy: the assistant's figure and, beside it, what the planes give as they look.
/// @param calculado of that design
std::vector<LineaResumen> ResumenDe(const CProyectoEstudio& proyecto, Diseno diseno,
                                    const std::optional<DisenoCalculado>& calculado);

/// The year of a consumption element, of hours or of loads; zeros when it is left out of the calculation.
struct AnoDeConsumo {
    double dPotencia = 0.0;          ///< greatest power at once, W
    std::array<double, 12> adMes{};  ///< energy of each month, kWh
    double Energia() const;          ///< kWh a year
};
AnoDeConsumo AnoDe(const Consumo& consumo);
std::vector<LineaResumen> ResumenDe(const Consumo& consumo, const AnoDeConsumo& ano);

/// The twelve energies as bars.
CCtrlCurva2D GraficaDe(const AnoDeConsumo& ano);

}  // namespace efv::estudio

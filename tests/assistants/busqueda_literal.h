// The search as it is told: the whole double loop.
#pragma once

#include <cmath>
#include <limits>
#include <optional>

#include "assistants/busqueda_ramales.h"
#include "platform/numero/tolerancia.h"

namespace efv::pruebas {

inline std::optional<assistants::Ramales> BuscarRamalesLiteral(const assistants::CampoBuscado& c)
{
    using namespace numero;
    std::optional<assistants::Ramales> mejor;
    double dMejor = std::numeric_limits<double>::max();
    for (int p = 1; p <= assistants::kRamalesMaximos; ++p) {
        for (int s = c.iSerieMaxima; s >= 1; --s) {
            const double dVm = s * c.dVmpm, dVo = s * c.dVoc, dI = p * c.dImpm;
            const double dDistancia = std::abs(c.dPotencia - s * p * c.dPmpm);
            if (Menor(dDistancia, dMejor) && MenorIgual(dVm, c.dVMPPMax) && Mayor(dVm, c.dVMPPMin) &&
                MenorIgual(dVo, c.dVCCMax) && MenorIgual(dI, c.dIMaxEntrada)) {
                dMejor = dDistancia;
                mejor = {s, p};
            }
        }
    }
    return mejor;
}

}  // namespace efv::pruebas

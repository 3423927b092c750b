// Which panel field on one inverter comes nearest to a power.
#pragma once

#include <optional>

namespace efv::assistants {

struct CampoBuscado {
    double dPotencia;                  ///< to come near to, W
    double dPmpm, dVmpm, dImpm, dVoc;  ///< of a panel: W, V, A, V
    double dVMPPMin, dVMPPMax;         ///< window of the voltage at maximum power, V; the lower end is out
    double dVCCMax;                    ///< most open-circuit voltage, V
    double dIMaxEntrada;               ///< most current, A
    int iSerieMaxima;                  ///< most panels a branch
};

struct Ramales {
    int iSerie, iParalelo;

    bool operator==(const Ramales&) const = default;
};

inline constexpr int kRamalesMaximos = 999;

/// The pair that this double loop ends with, found without walking all of it: for p from 1 branch to 999
/// and within it s from `iSerieMaxima` panels a branch down to 1, each pair inside the limits whose
/// distance to the power is below the best so far by more than the tolerance. Nothing when no pair fits.
std::optional<Ramales> BuscarRamales(const CampoBuscado& campo);

}  // namespace efv::assistants

// The local clock that the module asks for the current year.
#pragma once

#include <optional>

#include <quorvel/exportar.h>

namespace efv {

/// A moment of local time.
struct FechaHora {
    int iAno, iMes, iDia;  ///< year, month 1 to 12, day 1 to 31
    int iHora, iMinuto, iSegundo;
};

class EFV_API Reloj {
public:
    Reloj() = default;
    Reloj(const Reloj&) = delete;
    Reloj& operator=(const Reloj&) = delete;
    virtual ~Reloj() = default;

    /// The local time; nothing when the clock or its conversion fails.
    virtual std::optional<FechaHora> Ahora() const = 0;
};

/// Replaces the clock in use by a fixed moment, for results that must repeat; an empty one gives the system's
/// clock back.
EFV_API void FijarReloj(std::optional<FechaHora> ahora);

/// The local time of the clock in use; nothing when that fails.
EFV_API std::optional<FechaHora> LeerReloj();

}  // namespace efv

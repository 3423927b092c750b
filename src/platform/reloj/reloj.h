// The local clock, which a program may fix.
#pragma once

#include <optional>

#include <quorvel/reloj.h>

namespace efv::reloj {

/// The local time; nothing when the system's clock or its conversion fails.
std::optional<FechaHora> Ahora();

/// Replaces the system's clock; null gives it back. A function that gives nothing is a clock that fails.
void Sustituir(std::optional<FechaHora> (*fuente)());

}  // namespace efv::reloj

// The fixed clock of the environment variable EFV_AHORA.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/reloj.h>

namespace efv::orden {

/// Reads "2028-02-01T12:00:00", or the date alone (midnight). Empty when the text or the moment is wrong.
std::optional<FechaHora> LeerMomento(std::string_view texto);

/// Sets the library's clock as EFV_AHORA says; without it the system's clock stays. @throws ErrorUso
void FijarRelojDelEntorno();

}  // namespace efv::orden

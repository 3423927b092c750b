// What a file has beside its content: owner, permissions, extended attributes, who holds it.
#pragma once

#include <string>

#include <sys/stat.h>

namespace efv::fichero {

/// As SistemaFicheros::CopiarAtributos.
int CopiarAtributos(int iViejo, int iNuevo);

/// The process that holds the file locked, "efv, proceso 1234"; empty when the system doesn't say.
std::string OcupanteDe(const struct stat& estado);

}  // namespace efv::fichero

// The bytes of an opened file.
#pragma once

#include <cstddef>
#include <string>

#include <quorvel/sistema_ficheros.h>

namespace efv::fichero {

/// Reads to the end. @return 0, -EFBIG when it has more than `maximo` bytes, another error of the system
int LeerTodo(SistemaFicheros& sistema, int iFichero, std::size_t maximo, std::string& bytes);

}  // namespace efv::fichero

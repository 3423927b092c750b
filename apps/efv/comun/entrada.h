// What a command reads whole: a file, or a pipe that the shell gives in its place.
#pragma once

#include <cstddef>
#include <string>

namespace efv::orden {

/// Whether it is a pipe or a device, which can't be read or replaced as a whole.
bool EsFlujo(const std::string& ruta);

/// The bytes of a file, pipe or device, of the standard input for "-". @throws ErrorEjecucion with the cause:
/// it can't be read, is empty or holds more than `maximo` bytes
std::string LeerEntrada(const std::string& ruta, std::size_t maximo);

}  // namespace efv::orden

// The command `efv`.
#pragma once

#include <string>
#include <vector>

#include "comun/consola.h"

namespace efv::orden {

/// Runs the command line `argumentos` (without the program's name). A failure is one line on the
/// console's errors. @return exit status: 0, 1 when the work failed, 2 for wrong usage
int Ejecutar(const std::vector<std::string>& argumentos, Consola consola);

}  // namespace efv::orden

// Where a command writes, and how it fails.
#pragma once

#include <ostream>
#include <stdexcept>

#include <quorvel/report/texto.h>

namespace efv::orden {

struct Consola {
    std::ostream& salida;
    std::ostream& errores;
    report::FormaTexto forma{.bMiles = true};  ///< of the texts on `salida`
};

/// The command was called wrongly: exit status 2.
class ErrorUso : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The command was called rightly and can't do its work: exit status 1.
class ErrorEjecucion : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace efv::orden

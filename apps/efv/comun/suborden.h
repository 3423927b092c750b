// A subcommand of `efv`.
#pragma once

#include <iosfwd>

#include "comun/consola.h"

namespace CLI {
class App;
}

namespace efv::orden {

class Suborden {
public:
    Suborden() = default;
    Suborden(const Suborden&) = delete;
    Suborden& operator=(const Suborden&) = delete;
    virtual ~Suborden() = default;

    /// Adds itself to the command line; the options are read into this object. @return its part of it
    virtual CLI::App& Declarar(CLI::App& raiz) = 0;

    /// Runs with the options read. @return exit status @throws ErrorUso, ErrorEjecucion, CException
    virtual int Ejecutar(std::ostream& salida) = 0;
};

}  // namespace efv::orden

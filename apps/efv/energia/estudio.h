// The calculated field with what a reader must know to use the figures.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "energia/campo.h"
#include "energia/opciones.h"

namespace efv::orden {

struct Estudio {
    Encargo encargo;
    std::optional<Resultado> correlacion;
    std::optional<Resultado> tabla;
    int iAnoReloj = 0;  ///< decides the days of February in the correlation
    std::vector<std::string> notas;
};

/// Loads the factor table when it is needed and calculates. @throws ErrorEjecucion, CException
Estudio Estudiar(Encargo encargo);

}  // namespace efv::orden

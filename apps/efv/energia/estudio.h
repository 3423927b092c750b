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
    std::optional<solar::AnoEnergia> correlacion;
    std::optional<solar::AnoEnergia> tabla;
    solar::EnergiaPlanos orientada;
    std::vector<std::string> notas;

    /// The method whose figure counts: the one of use where it was asked for and has an answer, else the other.
    solar::Metodo DeUso() const { return tabla ? solar::kMetodoDeUso : solar::Metodo::correlacion; }
    const solar::AnoEnergia& AnoDeUso() const { return tabla ? *tabla : *correlacion; }
};

/// Loads the factor table when it is needed and calculates. @throws ErrorEjecucion, CException
Estudio Estudiar(Encargo encargo);

}  // namespace efv::orden

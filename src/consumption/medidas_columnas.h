// Which column of a meter's file is which.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/contador.h>

namespace efv::contador {

struct Columnas {
    std::optional<std::size_t> cups, fecha, hora, consumo, excedente, estado;
    std::vector<std::size_t> horas;  ///< of a row a day: one an hour, or one a quarter
    UnidadContador unidadConsumo = UnidadContador::automatica;
    UnidadContador unidadExcedente = UnidadContador::automatica;
};

using Campos = std::vector<std::string>;

/// What the headings say; nothing when they don't name a date and another column of a meter.
std::optional<Columnas> ColumnasDeCabecera(const Campos& campos);

/// What a row of data without headings looks like; nothing when it has no date and number.
std::optional<Columnas> ColumnasDeDatos(const Campos& campos);

bool TieneFecha(const Campos& campos);

}  // namespace efv::contador

// The inverter input's record by its rows.
#pragma once

#include <quorvel/entradas.h>

#include "platform/framework/tabla_registro.h"

namespace efv::framework {

template <>
struct FilasDe<CSFVInverterInput> {
    using R = CSFVInverterInput;

    static constexpr int schema = 1;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"iIndice", &R::iIndice},
        {"csReferencia", &R::csReferencia},
        {"nColor", &R::nColor},
    });
};

}  // namespace efv::framework

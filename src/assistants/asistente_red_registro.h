// The grid-connected assistant's record by its rows.
#pragma once

#include <quorvel/assistants.h>

#include "platform/framework/tabla_registro.h"

namespace efv::framework {

template <>
struct FilasDe<CSFVAsistenteRed> {
    using R = CSFVAsistenteRed;

    static constexpr int schema = 3;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"dPotenciaObjetivo", &R::dPotenciaObjetivo, 1, {0, 1000000}},
        {"iTipoSalida", &R::iTipoSalida},
        {"dLongitudL1", &R::dLongitudL1, 1, {0, 1000}},
        {"dLongitudL2", &R::dLongitudL2, 1, {0, 1000}},
        {"dLongitudL3", &R::dLongitudL3, 1, {0, 1000}},
        {"csInversor", &R::csInversor},
        {"iInversores", &R::iInversores, 1, {1, 100000}},
        {"csPanel", &R::csPanel},
        {"iPanelesSerie", &R::iPanelesSerie, 1, {1, 100000}},
        {"iPanelesParalelo", &R::iPanelesParalelo, 1, {1, 100000}},
        {"dInclinacion", &R::dInclinacion, 1, {0, 90}},
        {"dOrientacion", &R::dOrientacion, 1, {-180, 180}},
        {"dPanelesPorFila", &R::dPanelesPorFila, 1, {1, 1000}},
        {"dDistanciaPaneles", &R::dDistanciaPaneles, 1, {0, 10000}},
        {"dDistanciaFilas", &R::dDistanciaFilas, 1, {0, 100000}},
        {"iSimboloInversor", &R::iSimboloInversor, 2},
        {"iSimboloPanel", &R::iSimboloPanel, 2},
        {"iDisposicion", &R::iDisposicion, 3, {0, 1}},
    });
};

}  // namespace efv::framework

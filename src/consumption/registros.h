// The consumption records by their rows. The order in which they are declared is the archive's, and each has
// one schema.
#pragma once

#include <quorvel/consumption.h>

#include "platform/framework/tabla_registro.h"

namespace efv::framework {

template <>
struct FilasDe<CSFVDataReceptor> {
    using R = CSFVDataReceptor;

    static constexpr int schema = 1;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"csModelo", &R::csModelo},
        {"csFabricante", &R::csFabricante},
        {"iCantidad", &R::iCantidad},
        {"dPotencia", &R::dPotencia},
        {"dVoltaje", &R::dVoltaje},
        {"dVoltajeMinimo", &R::dVoltajeMinimo},
        {"dRendimiento", &R::dRendimiento},
        {"iLuminaria", &R::iLuminaria},
        {"iTipoRed", &R::iTipoRed},
        {"dHorasDia", &R::dHorasDia},
        {"iReservadoA", &R::iReservadoA},
        {"iReservadoB", &R::iReservadoB},
        {"bNoCalcular", &R::bNoCalcular},
        {"dHorario", Bloque<&R::dHorario>()},
    });
};

template <>
struct FilasDe<CItemConsumo> {
    using R = CItemConsumo;

    // Unlike the other records', its number has 16 bits.
    static constexpr short schema = 1;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"csNombre", &R::csNombre},
        {"csDescripcion", &R::csDescripcion},
        {"dConsumoHora", Bloque<&R::dConsumoHora>()},
    });
};

}  // namespace efv::framework

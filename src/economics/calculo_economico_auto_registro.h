// The record of a self-consumption study by its rows.
#pragma once

#include <quorvel/economics.h>

#include "platform/framework/tabla_registro.h"

namespace efv::framework {

template <>
struct FilasDe<CSFVCalculoEconomicoAuto> {
    using R = CSFVCalculoEconomicoAuto;

    static constexpr int schema = 1;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"iIdElemento", &R::iIdElemento},
        {"csReferencia", &R::csReferencia},
        {"dPotenciaPaneles", &R::dPotenciaPaneles},
        {"dPotenciaInversores", &R::dPotenciaInversores},
        {"dEnergiaProducida", &R::dEnergiaProducida},
        {"dEnergiaConsumida", &R::dEnergiaConsumida},
        {"dPerformanceRatio", &R::dPerformanceRatio},
        {"dEnvejecimiento", &R::dEnvejecimiento, 1, {0, 5}},
        {"dVariacionPrecio", &R::dVariacionPrecio, 1, {0, 100}},
        {"dCosteInstalacion", &R::dCosteInstalacion, 1, {0, 1e8}},
        {"dCapitalInicial", &R::dCapitalInicial, 1, {0, 1e8}},
        {"dCapitalFinanciado", &R::dCapitalFinanciado},
        {"dTipoInteres", &R::dTipoInteres, 1, {0, 100}},
        {"dMesesFinanciacion", &R::dMesesFinanciacion, 1, {0, 12000}},
        {"dIntereses", &R::dIntereses},
        {"dCosteFinanciacion", &R::dCosteFinanciacion},
        {"dReservado", &R::dReservado},
        {"dCosteTotal", &R::dCosteTotal},
        {"dAniosRecuperacion", &R::dAniosRecuperacion},
        {"dTIR", &R::dTIR},
    });
};

}  // namespace efv::framework

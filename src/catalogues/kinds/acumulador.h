// The catalogue of batteries.
#pragma once

#include <array>

#include <quorvel/catalogues/acumulador.h>

#include "catalogues/format/campos.h"

namespace efv::catalogues {

template <>
struct FormatoCatalogo<CBaseAcumuladorModelo> : ReglasCatalogo<CBaseAcumuladorModelo> {
    using M = CBaseAcumuladorModelo;

    static constexpr NombresCatalogo kNombres{
        "CBaseAcumuladores", "CBaseAcumuladorFamilia",         "CBaseAcumuladorModelo",
        L"Acumuladores",     L"Base de Datos de Acumuladores", 20443,
        L"acumulador"};
    static constexpr auto kCampos = std::to_array<CampoModelo<M>>({
        {"csModelo", &M::csModelo},
        {"iTipo", &M::iTipo, L"Tipo"},
        {"dCapC1", &M::dCapC1},
        {"dVccC1", &M::dVccC1},
        {"dCapC5", &M::dCapC5},
        {"dVccC5", &M::dVccC5},
        {"dCapC10", &M::dCapC10, L"C10 (Ah)"},
        {"dVccC10", &M::dVccC10},
        {"dCapC20", &M::dCapC20},
        {"dVccC20", &M::dVccC20},
        {"dCapC100", &M::dCapC100, L"C100 (Ah)"},
        {"dVccC100", &M::dVccC100},
        {"dCapC120", &M::dCapC120},
        {"dVccC120", &M::dVccC120},
        {"dImax", &M::dImax},
        {"dVnom", &M::dVnom, L"Vnom (V)"},
        {"iVidaUtil", &M::iVidaUtil},
        {"dH", &M::dH},
        {"dW", &M::dW},
        {"dL", &M::dL},
        {"dPeso", &M::dPeso},
        {"nColor", &M::nColor},
        {"csCodPrecio", &M::csCodPrecio},
    });
};

}  // namespace efv::catalogues

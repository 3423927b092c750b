// The catalogue of batteries.
#pragma once

#include <array>
#include <optional>

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
        {"dCapC1", &M::dCapC1, {}, Cero::sinDato},
        {"dVccC1", &M::dVccC1, {}, Cero::sinDato},
        {"dCapC5", &M::dCapC5, {}, Cero::sinDato},
        {"dVccC5", &M::dVccC5, {}, Cero::sinDato},
        {"dCapC10", &M::dCapC10, L"C10 (Ah)", Cero::sinDato},
        {"dVccC10", &M::dVccC10, {}, Cero::sinDato},
        {"dCapC20", &M::dCapC20, {}, Cero::sinDato},
        {"dVccC20", &M::dVccC20, {}, Cero::sinDato},
        {"dCapC100", &M::dCapC100, L"C100 (Ah)", Cero::sinDato},
        {"dVccC100", &M::dVccC100, {}, Cero::sinDato},
        {"dCapC120", &M::dCapC120, {}, Cero::sinDato},
        {"dVccC120", &M::dVccC120, {}, Cero::sinDato},
        {"dImax", &M::dImax, {}, Cero::sinDato},
        {"dVnom", &M::dVnom, L"Vnom (V)", Cero::sinDato},
        {"iVidaUtil", &M::iVidaUtil, {}, Cero::sinDato},
        {"dH", &M::dH, {}, Cero::sinDato},
        {"dW", &M::dW, {}, Cero::sinDato},
        {"dL", &M::dL, {}, Cero::sinDato},
        {"dPeso", &M::dPeso, {}, Cero::sinDato},
        {"nColor", &M::nColor},
        {"csCodPrecio", &M::csCodPrecio},
    });

    /// Capacity over the hours of the discharge; none of a battery without regimes.
    static std::optional<CCtrlCurva2D> Grafica(const M& modelo);
};

}  // namespace efv::catalogues

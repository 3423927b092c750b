// The catalogue of electrical loads.
#pragma once

#include <array>

#include <quorvel/catalogues/receptor.h>

#include "catalogues/format/campos.h"

namespace efv::catalogues {

template <>
struct FormatoCatalogo<CBaseReceptorModelo> : ReglasCatalogo<CBaseReceptorModelo> {
    using M = CBaseReceptorModelo;
    using Base = CBaseReceptores;

    static constexpr NombresCatalogo kNombres{
        "CBaseReceptores", "CBaseReceptorFamilia",         "CBaseReceptorModelo",
        L"Receptores",     L"Base de Datos de Receptores", 20446,
        L"receptor"};
    static constexpr auto kCampos = std::to_array<CampoModelo<M>>({
        {"csModelo", &M::csModelo},
        {"dP", &M::dP, L"P (W)", Cero::sinDato},
        {"dVs", &M::dVs, L"Vs (V)", Cero::sinDato},
        {"dVsMin", &M::dVsMin, {}, Cero::sinDato},
        {"dRend", &M::dRend, L"Rend. (%)", Cero::sinDato},
        {"iTipoRed", &M::iTipoRed, L"Red"},
        {"bIlum", &M::bIlum},
        {"nColor", &M::nColor},
        {"csCodPrecio", &M::csCodPrecio},
    });
};

}  // namespace efv::catalogues

// The catalogue of DC/DC converters.
#pragma once

#include <array>

#include <quorvel/catalogues/convertidor.h>

#include "catalogues/format/campos.h"

namespace efv::catalogues {

template <>
struct FormatoCatalogo<CBaseConvertidorModelo> : ReglasCatalogo<CBaseConvertidorModelo> {
    using M = CBaseConvertidorModelo;

    static constexpr NombresCatalogo kNombres{
        "CBaseConvertidores", "CBaseConvertidorFamilia",         "CBaseConvertidorModelo",
        L"Convertidores",     L"Base de Datos de Convertidores", 20445,
        L"convertidor"};
    static constexpr auto kCampos = std::to_array<CampoModelo<M>>({
        {"csModelo", &M::csModelo},
        {"dVInMin", &M::dVInMin, L"Vin mín. (V)"},
        {"dVInMax", &M::dVInMax, L"Vin máx. (V)"},
        {"dPAutoCons", &M::dPAutoCons},
        {"dVOutNom", &M::dVOutNom, L"Vout (V)"},
        {"dPOutNom", &M::dPOutNom, L"Pout (W)"},
        {"dRendMax", &M::dRendMax},
        {"dAncho", &M::dAncho},
        {"dLargo", &M::dLargo},
        {"dAlto", &M::dAlto},
        {"dPeso", &M::dPeso},
        {"nColor", &M::nColor},
        {"csCodPrecio", &M::csCodPrecio},
    });
};

}  // namespace efv::catalogues

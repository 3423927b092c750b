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
        {"dVInMin", &M::dVInMin, L"Vin mín. (V)", Cero::sinDato},
        {"dVInMax", &M::dVInMax, L"Vin máx. (V)", Cero::sinDato},
        {"dPAutoCons", &M::dPAutoCons, {}, Cero::sinDato},
        {"dVOutNom", &M::dVOutNom, L"Vout (V)", Cero::sinDato},
        {"dPOutNom", &M::dPOutNom, L"Pout (W)", Cero::sinDato},
        {"dRendMax", &M::dRendMax, {}, Cero::sinDato},
        {"dAncho", &M::dAncho, {}, Cero::sinDato},
        {"dLargo", &M::dLargo, {}, Cero::sinDato},
        {"dAlto", &M::dAlto, {}, Cero::sinDato},
        {"dPeso", &M::dPeso, {}, Cero::sinDato},
        {"nColor", &M::nColor},
        {"csCodPrecio", &M::csCodPrecio},
    });
};

}  // namespace efv::catalogues

// The catalogue of DC/DC converters.
#pragma once

#include <span>

#include <quorvel/catalogues/convertidor.h>

#include "catalogues/campos.h"

namespace efv::catalogues {

template <>
struct Catalogo<CBaseConvertidorModelo> : ReglasCatalogo<CBaseConvertidorModelo> {
    static std::span<const CampoModelo<CBaseConvertidorModelo>> Campos();
    static NombresCatalogo Nombres();
};

}  // namespace efv::catalogues

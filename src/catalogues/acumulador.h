// The catalogue of batteries.
#pragma once

#include <span>

#include <quorvel/catalogues/acumulador.h>

#include "catalogues/campos.h"

namespace efv::catalogues {

template <>
struct Catalogo<CBaseAcumuladorModelo> : ReglasCatalogo<CBaseAcumuladorModelo> {
    static std::span<const CampoModelo<CBaseAcumuladorModelo>> Campos();
    static NombresCatalogo Nombres();
};

}  // namespace efv::catalogues

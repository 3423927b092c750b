// The catalogue of electrical loads.
#pragma once

#include <span>

#include <quorvel/catalogues/receptor.h>

#include "catalogues/campos.h"

namespace efv::catalogues {

template <>
struct Catalogo<CBaseReceptorModelo> : ReglasCatalogo<CBaseReceptorModelo> {
    using Base = CBaseReceptores;
    static std::span<const CampoModelo<CBaseReceptorModelo>> Campos();
    static NombresCatalogo Nombres();
};

}  // namespace efv::catalogues

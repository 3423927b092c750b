// The catalogue of micro-inverters.
#pragma once

#include <span>

#include <quorvel/catalogues/micro_inversor.h>

#include "catalogues/campos.h"

namespace efv::catalogues {

template <>
struct Catalogo<CBaseMicroInversorModelo> : ReglasCatalogo<CBaseMicroInversorModelo> {
    static void Preparar(CBaseMicroInversorModelo& retenido);
    static void Sanear(CBaseMicroInversorModelo& leido);
    static void PrepararEdicion(CBaseMicroInversorModelo& modelo, bool bNuevo);
    static std::span<const CampoModelo<CBaseMicroInversorModelo>> Campos();
    static NombresCatalogo Nombres();
};

}  // namespace efv::catalogues

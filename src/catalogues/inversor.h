// The catalogue of inverters.
#pragma once

#include <span>

#include <quorvel/catalogues/inversor.h>

#include "catalogues/campos.h"

namespace efv::catalogues {

template <>
struct Catalogo<CBaseInversorModelo> : ReglasCatalogo<CBaseInversorModelo> {
    static void Preparar(CBaseInversorModelo& retenido);
    static void AntesDeModelo(CBaseInversorModelo& retenido);
    static void Sanear(CBaseInversorModelo& leido);
    static void PrepararEdicion(CBaseInversorModelo& modelo, bool bNuevo);
    static std::span<const char* const> AnadirSiFaltan();
    static std::span<const CampoModelo<CBaseInversorModelo>> Campos();
    static NombresCatalogo Nombres();
};

}  // namespace efv::catalogues

// The catalogue of micro-inverters.
#pragma once

#include <array>

#include <quorvel/catalogues/micro_inversor.h>

#include "catalogues/kinds/inversores_comun.h"

namespace efv::catalogues {

template <>
struct FormatoCatalogo<CBaseMicroInversorModelo> : ReglasInversor<CBaseMicroInversorModelo> {
    using M = CBaseMicroInversorModelo;

    static constexpr NombresCatalogo kNombres{
        "CBaseMicroInversores", "CBaseMicroInversorFamilia",         "CBaseMicroInversorModelo",
        L"MicroInversores",     L"Base de Datos de MicroInversores", 20447,
        L"microinversor"};
    static constexpr auto kCampos = Unir(std::to_array<CampoModelo<M>>({{"csModelo", &M::csModelo}}),
                                         kCamposEntrada<M>, kCamposRestantes<M>);
};

}  // namespace efv::catalogues

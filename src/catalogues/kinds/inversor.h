// The catalogue of inverters.
#pragma once

#include <array>
#include <span>

#include <quorvel/catalogues/inversor.h>

#include "catalogues/kinds/inversores_comun.h"

namespace efv::catalogues {

template <>
struct FormatoCatalogo<CBaseInversorModelo> : ReglasInversor<CBaseInversorModelo> {
    using M = CBaseInversorModelo;

    static void AntesDeModelo(M& retenido);
    static void Sanear(M& leido);
    static void PrepararEdicion(M& modelo, bool bNuevo);
    static void SinHeredar(M& propio);
    static std::span<const char* const> AnadirSiFaltan();

    static constexpr NombresCatalogo kNombres{
        "CBaseInversores", "CBaseInversorFamilia",         "CBaseInversorModelo",
        L"Inversores",     L"Base de Datos de Inversores", 20444,
        L"inversor"};
    static constexpr auto kCampos =
        Unir(std::to_array<CampoModelo<M>>({
                 {"csModelo", &M::csModelo},
                 {"iUsoPrincipal", &M::iUsoPrincipal, L"Uso"},
             }),
             kCamposEntrada<M>,
             std::to_array<CampoModelo<M>>({
                 {"csICCMaxMPPT", &M::csICCMaxMPPT, {}, Cero::sinDato, Omision::derivada},
                 {"csICCMinMPPT", &M::csICCMinMPPT, {}, Cero::esValor, Omision::derivada},
             }),
             kCamposRestantes<M>);
};

}  // namespace efv::catalogues

// What the catalogues of inverters and of micro-inverters share: rows of their tables and their rules.
#pragma once

#include <algorithm>
#include <array>
#include <type_traits>

#include <quorvel/catalogues/inversor.h>

#include "catalogues/format/campos.h"
#include "catalogues/kinds/corrientes.h"
#include "platform/numero/tolerancia.h"

namespace efv::catalogues {

/// One table out of several.
template <class T, std::size_t... N>
constexpr auto Unir(const std::array<T, N>&... tablas)
{
    std::array<T, (N + ...)> unida{};
    auto destino = unida.begin();
    ((destino = std::copy(tablas.begin(), tablas.end(), destino)), ...);
    return unida;
}

// Attributes in the order of reading. Those without a member are of older data sheets: they stay in the
// file untouched.

template <class M>
inline constexpr auto kCamposEntrada = std::to_array<CampoModelo<M>>({
    {"dPCCMax", &M::dPCCMax, {}, Cero::sinDato},
    {"dVMPPMax", &M::dVMPPMax, L"Vmpp máx. (V)", Cero::sinDato},
    {"dVMPPMin", &M::dVMPPMin, L"Vmpp mín. (V)", Cero::sinDato},
    {"dVCCMax", &M::dVCCMax, {}, Cero::sinDato},
    {"dVCCMin", &M::dVCCMin, {}, Cero::sinDato},
    {"dVSTCMax", {}},
    {"dVSTCMin", {}},
    {"dICCMax", &M::dICCMax, {}, Cero::sinDato},
    {"dICCMin", &M::dICCMin},
});

template <class M>
inline constexpr auto kCamposRestantes = std::to_array<CampoModelo<M>>({
    {"dIScMax", &M::dIScMax, {}, Cero::sinDato},
    {"iNumMPPT", &M::iNumMPPT, L"MPPT"},
    {"iNumEntradas", &M::iNumEntradas},
    {"dPCANom", &M::dPCANom, L"Pca (W)", Cero::sinDato},
    {"dPCAMax", &M::dPCAMax, {}, Cero::sinDato},
    {"dVCANom", &M::dVCANom, {}, Cero::sinDato},
    {"iTipoSalida", &M::iTipoSalida, L"Salida"},
    {"dICAMax", &M::dICAMax, {}, Cero::sinDato},
    {"dICAMin", &M::dICAMin},
    {"dFP", &M::dFP, {}, Cero::sinDato},
    {"dRendMax", &M::dRendMax, {}, Cero::sinDato},
    {"dRendEuro", {}},
    {"dAncho", &M::dAncho, {}, Cero::sinDato},
    {"dLargo", &M::dLargo, {}, Cero::sinDato},
    {"dAlto", &M::dAlto, {}, Cero::sinDato},
    {"dPeso", &M::dPeso, {}, Cero::sinDato},
    {"nColor", &M::nColor},
    {"csCodPrecio", &M::csCodPrecio},
});

inline void SanearContadores(DatosInversor& datos)
{
    datos.iNumMPPT = std::clamp(datos.iNumMPPT, 1, kMaximoMPPT);
    datos.iNumEntradas = std::clamp(datos.iNumEntradas, 1, kMaximoMPPT);
}

template <class M>
struct ReglasInversor : ReglasCatalogo<M> {
    static void Preparar(M& retenido) { SanearContadores(retenido); }

    /// Old files hold negative values for what isn't known.
    static void Sanear(M& leido)
    {
        for (const auto& campo : FormatoCatalogo<M>::kCampos) {
            AlMiembro(leido, campo, [](auto& valor) {
                if constexpr (std::is_same_v<std::remove_reference_t<decltype(valor)>, double>)
                    valor = numero::MenorIgual(valor, 0.0) ? 0.0 : valor;
            });
        }
        leido.iTipoSalida = std::max(leido.iTipoSalida, 0);
        SanearContadores(leido);
    }

    static void PrepararEdicion(M& modelo, bool bNuevo)
    {
        SanearContadores(modelo);
        if (bNuevo) {
            modelo.dFP = 1.0;
            modelo.dRendMax = 99.0;
        }
    }
};

/// The lists of an inverter that has them, out of the currents of one tracker.
template <class M>
void RehacerListas(M& modelo)
{
    if constexpr (requires { modelo.csICCMaxMPPT; }) {
        modelo.csICCMaxMPPT = RepetirCorriente(modelo.dICCMax, modelo.iNumMPPT);
        modelo.csICCMinMPPT = RepetirCorriente(modelo.dICCMin, modelo.iNumMPPT);
    }
}

}  // namespace efv::catalogues

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
    {"dPCCMax", &M::dPCCMax},
    {"dVMPPMax", &M::dVMPPMax, L"Vmpp máx. (V)"},
    {"dVMPPMin", &M::dVMPPMin, L"Vmpp mín. (V)"},
    {"dVCCMax", &M::dVCCMax},
    {"dVCCMin", &M::dVCCMin},
    {"dVSTCMax", {}},
    {"dVSTCMin", {}},
    {"dICCMax", &M::dICCMax},
    {"dICCMin", &M::dICCMin},
});

template <class M>
inline constexpr auto kCamposRestantes = std::to_array<CampoModelo<M>>({
    {"dIScMax", &M::dIScMax},
    {"iNumMPPT", &M::iNumMPPT, L"MPPT"},
    {"iNumEntradas", &M::iNumEntradas},
    {"dPCANom", &M::dPCANom, L"Pca (W)"},
    {"dPCAMax", &M::dPCAMax},
    {"dVCANom", &M::dVCANom},
    {"iTipoSalida", &M::iTipoSalida, L"Salida"},
    {"dICAMax", &M::dICAMax},
    {"dICAMin", &M::dICAMin},
    {"dFP", &M::dFP},
    {"dRendMax", &M::dRendMax},
    {"dRendEuro", {}},
    {"dAncho", &M::dAncho},
    {"dLargo", &M::dLargo},
    {"dAlto", &M::dAlto},
    {"dPeso", &M::dPeso},
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

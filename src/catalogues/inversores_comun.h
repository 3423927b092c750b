// What the catalogues of inverters and of micro-inverters share: rows of their tables and their rules.
#pragma once

#include <algorithm>
#include <array>
#include <type_traits>

#include <quorvel/catalogues/inversor.h>

#include "catalogues/campos.h"
#include "catalogues/corrientes.h"
#include "catalogues/importacion.h"
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
        for (const auto& campo : Catalogo<M>::kCampos) {
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

// ---------------------------------------------------------------------------------------------------
// OND file, the inverter description of the simulation program PVsyst
// ---------------------------------------------------------------------------------------------------

/// Lengths come in metres. The nominal output takes the nominal DC power, the power factor the European
/// efficiency, and height and depth change places: so this import has always been.
template <class M>
inline constexpr auto kClavesOnd = std::to_array<ClaveImportada<M>>({
    {L"Model", &M::csModelo},
    {L"PNomDC", &M::dPCCMax},
    {L"VMPPMax", &M::dVMPPMax},
    {L"VMppMin", &M::dVMPPMin},
    {L"VAbsMax", &M::dVCCMax},
    {L"IDCMax", &M::dICCMax},
    {L"NbMPPT", &M::iNumMPPT},
    {L"NbInputs", &M::iNumEntradas},
    {L"PNomDC", &M::dPCANom},
    {L"PMaxOUT", &M::dPCAMax},
    {L"VOutConv", &M::dVCANom},
    {L"IMaxAC", &M::dICAMax},
    {.clave = L"EfficEuro", .miembro = &M::dFP, .dDivisor = 100},
    {L"EfficMax", &M::dRendMax},
    {L"Width", &M::dAncho, 1000},
    {L"Height", &M::dLargo, 1000},
    {L"Depth", &M::dAlto, 1000},
    {L"Weight", &M::dPeso},
});

/// The lists of an inverter that has them, out of the currents of one tracker.
template <class M>
void RehacerListas(M& modelo)
{
    if constexpr (requires { modelo.csICCMaxMPPT; }) {
        modelo.csICCMaxMPPT = RepetirCorriente(modelo.dICCMax, modelo.iNumMPPT);
        modelo.csICCMinMPPT = RepetirCorriente(modelo.dICCMin, modelo.iNumMPPT);
    }
}

/// Fills the inverter from the file's text; its lines must end in CR LF. An absent key clears its field;
/// what the format doesn't hold stays. @return the maker.
template <class M>
CString ImportarOnd(std::wstring_view csTexto, M& modelo)
{
    Importar<M>(csTexto, kClavesOnd<M>, modelo);
    SanearContadores(modelo);
    modelo.iTipoSalida = ValorDeClave(csTexto, L"MonoTri") == L"Tri" ? 1 : 0;
    if constexpr (requires { modelo.iUsoPrincipal; })
        modelo.iUsoPrincipal = 0;
    RehacerListas(modelo);
    return ValorDeClave(csTexto, L"Manufacturer");
}

}  // namespace efv::catalogues

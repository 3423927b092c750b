#include "catalogues/dialogs/inversor_paginas.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/dialogs/inversores_dialogo.h"

namespace efv::catalogues {

namespace {

using M = CBaseInversorModelo;

constexpr ui::Color kGris = 0x808080;

constexpr auto kCorrientes = ui::Campos<M>({
    {&M::iNumMPPT, L"Nº de inversores MPPT y entradas (total):", {1, 100}},
    {.miembro = &M::iNumEntradas, .rotulo = L"", .limites = {&M::iNumMPPT, 100}, .junto = &M::iNumMPPT},
    {&M::csICCMaxMPPT, L"Corriente máxima por MPPT (A):"},
    {&M::csICCMinMPPT, L"Corriente mínima por MPPT (A):"},
});
constexpr auto kCortocircuito = ui::Campos<M>({{&M::dIScMax, L"Corriente de cortocircuito máxima (A):"}});

constexpr auto kFase = ui::Campos<M>({
    {&M::dFP, L"Factor de potencia:", {0.1, 1, [](const M& m) { return m.iUsoPrincipal == kUsoRed; }}},
    {.miembro = &M::iTipoSalida, .rotulo = L"", .entradas = kTiposSalida, .junto = &M::dFP},
});

/// What a field is called in each use once the use has been chosen. A field without a caption in
/// stand-alone use isn't there then; on the page of the output it is only hidden.
struct RotuloPorUso {
    ui::Miembro<M> campo;
    std::wstring_view red;
    std::wstring_view aislada = {};
};
constexpr auto kRotulos = std::to_array<RotuloPorUso>({
    {&M::dPCCMax, L"Potencia CC máx (W):", L"Potencia de autoconsumo (W):"},
    {&M::dVMPPMax, L"Rango de tensiones MPPT (V) [max.- min.]:", L"Rango tensiones entrada (V) [max.- min.]:"},
    {&M::dVCCMax, L"Tensión de entrada máxima (V):"},
    {&M::dVCCMin, L""},
    {&M::iNumMPPT, L"Nº de inversores MPPT y entradas (total):"},
    {&M::iNumEntradas, L""},
    {&M::csICCMaxMPPT, L"Corriente máx. por MPPT (A):"},
    {&M::csICCMinMPPT, L"Corriente mín. por MPPT (A):"},
    {&M::dIScMax, L"Corriente de cortocircuito máxima (A):"},
});
constexpr auto kOcultosEnAislada = std::to_array<double M::*>({&M::dICAMax, &M::dICAMin, &M::dFP});

}  // namespace

void PaginasInversor::Anadir(ui::Pagina& entrada, ui::Pagina& salida, ui::Pagina& sistema)
{
    campos.Anadir(entrada, kFilasTensiones<M>);
    campos.Anadir(entrada, kCorrientes);
    m_indicacion = &entrada.Anadir<ui::TextoFijo>("csIndicacionMPPT", L"");
    m_indicacion->color = kGris;
    campos.Anadir(entrada, kCortocircuito);
    campos.Anadir(salida, kFilasSalida<M>);
    campos.Anadir(salida, kFase);
    campos.Anadir(sistema, kFilasSistema<M>);
}

void PaginasInversor::Rotular(bool bAislada)
{
    for (const RotuloPorUso& rotulo : kRotulos) {
        ui::Control& control = campos.De(rotulo.campo);
        control.csRotulo = bAislada ? rotulo.aislada : rotulo.red;
        control.bVisible = !bAislada || !rotulo.aislada.empty();
        control.bHabilitado = control.bVisible;
    }
    m_indicacion->bVisible = m_indicacion->bHabilitado = !bAislada;
    for (double M::*campo : kOcultosEnAislada)
        campos.De(campo).bVisible = !bAislada;
}

void PaginasInversor::Indicar()
{
    m_indicacion->csTexto =
        m_modelo.iNumMPPT <= 1
            ? CString(L"Introduzca 1 valor de I máx. y 1 de I mín.")
            : fmt::format(L"Introduzca {} valores para la I máx. e I mín., separados por '/'.",
                          m_modelo.iNumMPPT);
}

}  // namespace efv::catalogues

#include "elements/regulador_dialogo.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/dialogs/inversor_paginas.h"
#include "platform/numero/conversion.h"

namespace {

namespace elements = efv::elements;
namespace ui = efv::ui;
using D = elements::DatosRegulador;

constexpr int kHibrido = 1;
constexpr std::wstring_view kSimbolo = L"regulador";
constexpr ui::Colocacion kSalidaCA{.grupo = L"Valores de salida en CA: "};

constexpr auto kTipos = std::to_array<std::wstring_view>(
    {L"Regulador sin inversor integrado", L"Regulador con inversor integrado (híbrido)"});

constexpr auto kTipo = ui::Campos<D>({
    {.miembro = &D::iTipoRegulador, .rotulo = L"Tipo:", .entradas = kTipos},
});

// Voltage and power, whose captions differ.
constexpr ui::LimitesFicha<D> kLimitesTension{1, 2500}, kLimitesPotencia{0, 10000000};

constexpr auto kCircuito = ui::Campos<D>({
    {&D::dIPanelMax, L"Corriente fotovoltaica máxima (A):", {0, 10000}},
    {&D::dVPanelMax, L"Tensión máxima del circuito fotovoltaico (V):", {0, 10000}},
    {&D::dVPanelMin, L"Tensión mínima del circuito fotovoltaico (V):", {0, &D::dVPanelMax}},
    {&D::dPerdidas, L"Pérdidas de energía en el regulador (%):", {0, 99}},
});

// What can't be changed isn't refused.
constexpr bool TieneSalida(const D& datos)
{
    return datos.iTipoRegulador == kHibrido;
}
constexpr auto kSalida = ui::Campos<D>({
    {&D::dTensionSalida, L"Tensión de salida (V):", {0, 20000, TieneSalida}},
    {&D::dPotenciaSalida, L"Potencia máx. de salida (W):", {0, 10000000, TieneSalida}},
    {.miembro = &D::iTipoSalida, .rotulo = L"Tipo de salida:", .entradas = efv::catalogues::kTiposSalida},
});

CString RotuloPotencia(double dTension)
{
    return fmt::format(L"Potencia fotovoltaica máxima (W) para {} V:",
                       efv::numero::nuConvertFltToIntlStr(dTension, 2));
}

}  // namespace

CDlgDatosReguladorCarga::CDlgDatosReguladorCarga(const D& inicial)
    : DialogoElemento("CDlgDatosReguladorCarga", L"Datos del regulador de carga", inicial, {})
{
    AnadirReferencia(kSimbolo);
    Anadir(ui::Campos<D>({
        {&D::dVNom, L"Tensión en acumuladores y receptores (V):", kLimitesTension},
        {&D::dPPanelMax, RotuloPotencia(datos.dVNom), kLimitesPotencia},
    }));
    Anadir(kCircuito);
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
    De(&D::dVNom).alSalir = [this] { RotularPotencia(); };
}

// What is no voltage leaves the caption as it is.
void CDlgDatosReguladorCarga::RotularPotencia()
{
    if (Recoger(De(&D::dVNom)))
        De(&D::dPPanelMax).csRotulo = RotuloPotencia(datos.dVNom);
}

CDlgDatosReguladorAuto::CDlgDatosReguladorAuto(const D& inicial)
    : DialogoElemento("CDlgDatosReguladorAuto", L"Datos del regulador de autoconsumo", inicial, {})
{
    AnadirReferencia(kSimbolo);
    Anadir(kTipo);
    Anadir(ui::Campos<D>({
        {&D::dVNom, L"Tensión del circuito de acumuladores (V):", kLimitesTension},
        {&D::dPPanelMax, L"Potencia fotovoltaica máxima (W):", kLimitesPotencia},
    }));
    Anadir(kCircuito);
    Anadir(kSalida, kSalidaCA);
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
    De<ui::Seleccion>(&D::iTipoRegulador).alElegir = [this] { HabilitarSalida(); };
    HabilitarSalida();
}

void CDlgDatosReguladorAuto::HabilitarSalida()
{
    const bool bHibrido = De<ui::Seleccion>(&D::iTipoRegulador).iSeleccion == kHibrido;
    for (const auto& campo : kSalida)
        De(campo.miembro).bHabilitado = bHibrido;
}

#include "electrical/criterios_cableado_dialogo.h"

namespace {

using F = efv::electrical::DatosFisicosConductor;
using M = efv::electrical::MargenesCableado;

constexpr auto kNombresFisicos = std::to_array<efv::ui::NombreCampo<F>>({
    {"dResistividadCobre", &F::dResistividadCobre},
    {"dResistividadAluminio", &F::dResistividadAluminio},
    {"dCoeficienteCobre", &F::dCoeficienteCobre},
    {"dCoeficienteAluminio", &F::dCoeficienteAluminio},
});

constexpr auto kNombresMargenes = std::to_array<efv::ui::NombreCampo<M>>({
    {"dMargenPaneles", &M::dMargenPaneles},
    {"dMargenAcumuladores", &M::dMargenAcumuladores},
    {"dMargenReceptores", &M::dMargenReceptores},
});

}  // namespace

template <>
struct efv::ui::CamposDe<F> : efv::ui::CamposDeTabla<F, kNombresFisicos> {
};
template <>
struct efv::ui::CamposDe<M> : efv::ui::CamposDeTabla<M, kNombresMargenes> {
};

namespace {

namespace ui = efv::ui;

constexpr std::wstring_view kResistividad = L"Resistividad del conductor a 20°C (Ohm·mm²/m):";
constexpr std::wstring_view kCoeficiente = L"Coef. variación resistencia específica temperatura (~TEMP~-1):";
constexpr ui::LimitesFicha<F> kLimitesResistividad{0.01, 0.05}, kLimitesCoeficiente{0.001, 0.01};
constexpr int kDecimales = 5, kDecimalesMinimos = 3;

constexpr auto kCobre = ui::Campos<F>({
    {&F::dResistividadCobre, kResistividad, kLimitesResistividad, kDecimales},
    {&F::dCoeficienteCobre, kCoeficiente, kLimitesCoeficiente, kDecimales},
});
constexpr auto kAluminio = ui::Campos<F>({
    {&F::dResistividadAluminio, kResistividad, kLimitesResistividad, kDecimales},
    {&F::dCoeficienteAluminio, kCoeficiente, kLimitesCoeficiente, kDecimales},
});

constexpr auto kMargenes = ui::Campos<M>({
    {&M::dMargenPaneles, L"Margen de seguridad en conductores del campo de paneles (%):", {0, 100}},
    {&M::dMargenAcumuladores, L"Margen de seguridad en conductores del campo de acumuladores (%):", {0, 100}},
    {&M::dMargenReceptores, L"Margen de seguridad en conductores del campo de receptores (%):", {0, 100}},
});

}  // namespace

CDlgDatosFisicoConductor::CDlgDatosFisicoConductor(const F& inicial)
    : DialogoFicha("CDlgDatosFisicoConductor", L"Condiciones físicas del conductor", inicial, {})
{
    Anadir(kCobre, {.grupo = L"Cobre"});
    Anadir(kAluminio, {.grupo = L"Aluminio"});
    for (const auto& fila : kNombresFisicos)
        De<ui::Edicion>(fila.miembro).iDecimalesMinimos = kDecimalesMinimos;
    Volcar();
}

CDlgDatosMargenSeguridadCableado::CDlgDatosMargenSeguridadCableado(const M& inicial)
    : DialogoFicha("CDlgDatosMargenSeguridadCableado", L"Factor de seguridad en dimensionado de cableado",
                   inicial, {})
{
    Anadir(kMargenes);
    Volcar();
}

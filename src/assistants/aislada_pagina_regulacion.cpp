#include "assistants/aislada_paginas.h"
#include "assistants/regulacion_dialogo.h"
#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

using V = ValoresAislada;

constexpr auto kTensiones = std::to_array<double>({12, 24, 36, 48, 60, 72});
constexpr auto kTiposSalida = std::to_array<std::wstring_view>({L"Monofasico", L"Trifasico"});

constexpr auto kPotencia = ui::Campos<V>({{&V::dPotenciaMaxFV, L"Potencia fotovoltaica máxima (W):"}});
constexpr auto kTensionesFV = ui::Campos<V>({
    {&V::dTensionMaxFV, L"Tensión FV [máx, mín] (V):"},
    {.miembro = &V::dTensionMinFV, .rotulo = L"", .junto = &V::dTensionMaxFV},
});
constexpr auto kSalida = ui::Campos<V>({
    {.miembro = &V::bSalidaCA, .rotulo = L"Inversor con salida en CA (V):", .casilla = true},
    {.miembro = &V::dTensionSalidaCA, .rotulo = L"", .junto = &V::bSalidaCA},
    {.miembro = &V::iTipoSalidaCA, .rotulo = L"Tipo de salida (ca):", .entradas = kTiposSalida},
});

}  // namespace

PaginaRegulacion::PaginaRegulacion(ui::Dialogo& dialogo, CDlgAsistenteSFVAislada& asistente)
    : Pagina(dialogo, L"Regulación"), m_asistente(asistente)
{
    AnadirTension();
    asistente.AnadirResultados(*this, kPotencia, ui::kNegro);
    asistente.AnadirCampos(*this, kTensionesFV);
    asistente.AnadirCampos(*this, kSalida);
    asistente.De<ui::Casilla>(&V::bSalidaCA).alCambiar = [this] { AlMarcarSalida(); };
    asistente.AnadirSimbolo(*this, &V::iSimboloRegulador, kCategoriaRegulador);
    AnadirParametros();
    asistente.Vigilar(&V::dTensionMaxFV);
    asistente.Vigilar(&V::dTensionMinFV);
}

void PaginaRegulacion::AnadirTension()
{
    m_tension = &Anadir<ui::Seleccion>(ui::NombreDeMiembro<V>(&V::dTensionSistema), L"Tensión del sistema (V):",
                                       ui::Seleccion::Forma::combo);
    m_tension->intercambio = ui::Intercambio::aMano;
    m_tension->iSeleccion = 0;
    for (std::size_t i = 0; i < kTensiones.size(); ++i) {
        m_tension->acsEntradas.push_back(numero::nuConvertFltToIntlStr(kTensiones[i], 0));
        if (numero::Igual(kTensiones[i], m_asistente.datos.dTensionSistema))
            m_tension->iSeleccion = static_cast<int>(i);
    }
    m_tension->alElegir = [this] { AlElegirTension(); };
}

// The old way of sizing: its coefficients are kept, nothing depends on them.
void PaginaRegulacion::AnadirParametros()
{
    auto& titulo = Anadir<ui::TextoFijo>("", L"");
    titulo.csTexto = L"Parámetros de regulación (OBSOLETO):";
    titulo.bVisible = false;
    m_asistente.AnadirBoton(*this, "Regulacion", L"Regulación ...", {}, [this] { AlPulsarParametros(); })
        .bVisible = false;
}

void PaginaRegulacion::MostrarValores()
{
    const bool bSalida = m_asistente.datos.bSalidaCA != 0;
    m_asistente.De(&V::dTensionSalidaCA).bHabilitado = bSalida;
    m_asistente.De<ui::Seleccion>(&V::iTipoSalidaCA).bHabilitado = bSalida;
}

void PaginaRegulacion::AlElegirTension()
{
    m_asistente.datos.dTensionSistema = kTensiones[static_cast<std::size_t>(m_tension->iSeleccion)];
    m_asistente.Recalcular(true);
}

void PaginaRegulacion::AlMarcarSalida()
{
    V& v = m_asistente.datos;
    m_asistente.bModificado = 1;
    v.bSalidaCA = m_asistente.De<ui::Casilla>(&V::bSalidaCA).bMarcada ? 1 : 0;
    if (v.bSalidaCA == 0)
        v.iTipoSalidaCA = m_asistente.De<ui::Seleccion>(&V::iTipoSalidaCA).iSeleccion = 0;
    MostrarValores();
}

void PaginaRegulacion::AlPulsarParametros()
{
    CDlgDatosRegulacion dialogo(m_asistente.datos);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return;
    dialogo.Devolver(m_asistente.datos);
    m_asistente.MostrarValores();
    m_asistente.Recalcular(true);
    m_asistente.bModificado = 0;
}

}  // namespace efv::assistants

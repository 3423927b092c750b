#include "assistants/aislada_paginas.h"
#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

using V = ValoresAislada;

constexpr auto kCampos = ui::Campos<V>({
    {.miembro = &V::dDiasAutonomia, .rotulo = L"Días de autonomía:", .decimales = 0},
    {.miembro = &V::dProfundidadDescarga, .rotulo = L"Profundidad de descarga ", .decimales = 0},
    {&V::iAcumuladoresSerie, L"Nº de acumuladores por ramal:"},
    {&V::iAcumuladoresParalelo, L"Nº de ramales en paralelo:"},
});
constexpr auto kCapacidades = ui::Campos<V>({
    {&V::dCapacidadNecesaria, L"Capacidad Nominal (Ah):"},
    {&V::dCapacidadResultante, L"Capacidad Resultante (Ah):"},
});
constexpr auto kPropuestas = ui::Campos<V>({
    {.miembro = &V::iAcumuladoresSerieP, .rotulo = L"", .junto = &V::iAcumuladoresSerie},
    {.miembro = &V::iAcumuladoresParaleloP, .rotulo = L"", .junto = &V::iAcumuladoresParalelo},
    {.miembro = &V::dCapacidadResultanteP, .rotulo = L"", .junto = &V::dCapacidadResultante},
});

}  // namespace

PaginaAcumuladores::PaginaAcumuladores(ui::Dialogo& dialogo, CDlgAsistenteSFVAislada& asistente)
    : Pagina(dialogo, L"Acumuladores"),
      m_asistente(asistente),
      m_modelo(
          asistente.AnadirBoton(*this, ui::NombreDeMiembro<V>(&V::csAcumulador), L"", {}, [this] { Elegir(); }))
{
    m_modelo.csIndicacion = L"Elegir el acumulador en el catálogo";
    asistente.AnadirSimbolo(*this, &V::iSimboloAcumulador, kCategoriaAcumulador, ui::JuntoA(m_modelo));
    asistente.AnadirCampos(*this, kCampos);
    asistente.AnadirResultados(*this, kCapacidades, ui::kNegro);
    asistente.AnadirResultados(*this, kPropuestas, kColorPropuesta);
    for (const ui::Miembro<V>& miembro :
         {ui::Miembro<V>(&V::dProfundidadDescarga), ui::Miembro<V>(&V::iAcumuladoresSerie),
          ui::Miembro<V>(&V::iAcumuladoresParalelo), ui::Miembro<V>(&V::dDiasAutonomia)})
        asistente.Vigilar(miembro);
}

void PaginaAcumuladores::MostrarModelo()
{
    const CString& csModelo = m_asistente.datos.csAcumulador;
    m_modelo.csRotulo = csModelo.empty() ? CString(L"Acumulador...") : csModelo;
}

void PaginaAcumuladores::MostrarValores()
{
    const V& v = m_asistente.datos;
    MostrarModelo();
    m_asistente.De(&V::dCapacidadResultante).color =
        numero::Mayor(v.dCapacidadNecesaria, v.dCapacidadResultante) ? kColorInsuficiente : ui::kNegro;
}

void PaginaAcumuladores::Elegir()
{
    if (m_asistente.m_bases.elegirAcumulador(m_asistente.datos.csAcumulador) != 1)
        return;
    MostrarModelo();
    m_asistente.Recalcular(false);
}

}  // namespace efv::assistants

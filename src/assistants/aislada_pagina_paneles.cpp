#include <memory>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "assistants/aislada_paginas.h"
#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "platform/unidades/unidades.h"
#include "solar/calendario.h"
#include "solar/coordenadas_dialogo.h"
#include "solar/energia.h"

namespace efv::assistants {

namespace {

using V = ValoresAislada;

constexpr std::wstring_view kRadiacion = L"Radiación solar";
constexpr ui::Colocacion kDerecha{.iColumna = 1};

constexpr auto kRamales = ui::Campos<V>({
    {&V::iPanelesSerie, L"Nº de paneles por ramal:"},
    {&V::iPanelesParalelo, L"Nº de ramales en paralelo:"},
});
constexpr auto kPotencias = ui::Campos<V>({
    {&V::dPotenciaMinima, L"Potencia mínima necesaria (Wp):"},
    {&V::dPotenciaInstalada, L"Potencia instalada (Wp):"},
    {&V::dHSP, L"Hora solar pico (H.S.P.):"},
});
constexpr auto kPropuestas = ui::Campos<V>({
    {.miembro = &V::iPanelesSerieP, .rotulo = L"", .junto = &V::iPanelesSerie},
    {.miembro = &V::iPanelesParaleloP, .rotulo = L"", .junto = &V::iPanelesParalelo},
    {.miembro = &V::dPotenciaMinimaP, .rotulo = L"", .junto = &V::dPotenciaMinima},
    {.miembro = &V::dPotenciaInstaladaP, .rotulo = L"", .junto = &V::dPotenciaInstalada},
    {.miembro = &V::dHSPP, .rotulo = L"", .junto = &V::dHSP},
});
constexpr auto kDistancias = ui::Campos<V>({
    {.miembro = &V::dDistanciaPaneles, .rotulo = L"Distancia panel - panel (mm):", .decimales = 0},
    {.miembro = &V::dDistanciaFilas, .rotulo = L"Distancia fila - fila (mm):", .decimales = 0},
});

std::array<double, 12> FactoresK(const CBaseFactorK& base, const V& v, double dInclinacion)
{
    return solar::FactoresK(base, v.dLatitud, v.iHemisferio, dInclinacion).value_or(std::array<double, 12>{});
}

void AnadirFilaRadiacion(CListCtrl& lista, double dInclinacion, const std::array<double, 12>& adRadiacion)
{
    const int iFila = lista.InsertItem(lista.GetItemCount(), numero::nuConvertFltToIntlStr(dInclinacion, 2));
    for (int m = 0; m < 12; ++m)
        lista.SetItemText(iFila, m + 1,
                          unidades::cuCadena(kRadiacion, adRadiacion[static_cast<std::size_t>(m)], 2));
}

}  // namespace

PaginaPaneles::PaginaPaneles(ui::Dialogo& dialogo, CDlgAsistenteSFVAislada& asistente)
    : Pagina(dialogo, L"Paneles fotovoltaicos"),
      m_asistente(asistente),
      m_modelo(asistente.AnadirBoton(*this, ui::NombreDeMiembro<V>(&V::csPanel), L"", {}, [this] { Elegir(); }))
{
    m_modelo.csIndicacion = L"Elegir el panel en el catálogo";
    AnadirCampo();
    AnadirPosicion();
    AnadirRadiacion();
    for (const ui::Miembro<V>& miembro :
         {ui::Miembro<V>(&V::iPanelesSerie), ui::Miembro<V>(&V::iPanelesParalelo),
          ui::Miembro<V>(&V::dInclinacion)})
        asistente.Vigilar(miembro);
    AbrirRadiacion();
}

void PaginaPaneles::AnadirCampo()
{
    m_asistente.AnadirSimbolo(*this, &V::iSimboloPanel, kCategoriaPanel, ui::JuntoA(m_modelo));
    auto& mes = Anadir<ui::Seleccion>(ui::NombreDeMiembro<V>(&V::iMesCalculo),
                                      L"Mes a considerar en el cálculo:", ui::Seleccion::Forma::combo);
    for (int m = 0; m < 15; ++m)
        mes.acsEntradas.emplace_back(solar::NombreMes(m));
    mes.destino = &m_asistente.datos.iMesCalculo;
    mes.csIndicacion = L"El mes o el período para cuya radiación se dimensionan los paneles";
    mes.alElegir = [this] { m_asistente.Recalcular(false); };
    m_mesReferencia = &Anadir<ui::TextoFijo>(ui::NombreDeMiembro<V>(&V::csMesReferencia),
                                             L"Mes de referencia para el dimensionado:");
    m_asistente.AnadirCampos(*this, kRamales);
    m_asistente.AnadirResultados(*this, kPotencias, ui::kNegro);
    m_asistente.AnadirResultados(*this, kPropuestas, kColorPropuesta);
}

void PaginaPaneles::AnadirPosicion()
{
    m_asistente.AnadirCampos(*this, kAngulos<V>, kDerecha);
    m_asistente.AnadirResultados(*this, kAngulosP<V>, kColorPropuesta, kDerecha);
    m_asistente
        .AnadirBoton(*this, "CDlgImgCoordenadas", L"...", ui::JuntoA(m_asistente.De(&V::dOrientacion)),
                     [] { CDlgImgCoordenadas().Mostrar(); })
        .csIndicacion = kIndicacionOrientacion;
    AnadirPanelesPorFila();
    m_asistente.AnadirCampos(*this, kDistancias, kDerecha);
    m_asistente.AnadirResultados(*this, kDistanciaP<V>, ui::kNegro, kDerecha);
    m_asistente
        .AnadirBoton(*this, "EspaciarFilas", L"...", ui::JuntoA(m_asistente.De(&V::dDistanciaFilas)),
                     [this] { AlEspaciar(); })
        .bVisible = false;
    m_disposicion = &m_asistente.AnadirDisposicion(*this, kDerecha, [this] { AlElegirDisposicion(); });
}

// Edited with decimals and named as the record's whole number.
void PaginaPaneles::AnadirPanelesPorFila()
{
    auto& paneles =
        Anadir<ui::Edicion>(ui::NombreDeMiembro<V>(&V::iPanelesPorFila), L"Nº máximo de paneles por fila:");
    paneles.destino = &m_asistente.datos.dPanelesPorFila;
    paneles.limites = ui::CamposDe<V>::Limites(&V::iPanelesPorFila).value();
    paneles.iDecimales = 0;
    paneles.colocacion = kDerecha;
}

void PaginaPaneles::AnadirRadiacion()
{
    m_radiacion = &Anadir<ui::Lista>(
        "listaRadiacion",
        fmt::format(L"Radiacion solar diaria media {}/m² en función de la inclinación de la superficie de "
                    L"paneles y para una orientación {}",
                    unidades::cuSimbolo(kRadiacion), m_asistente.datos.iHemisferio == 1 ? L"Sur" : L"Norte"),
        ui::Lista::Forma::tabla);
    m_radiacion->acsColumnas = {L"Ángulo/Rad."};
    for (int m = 0; m < 12; ++m)
        m_radiacion->acsColumnas.emplace_back(solar::NombreMesCorto(m));
    m_radiacion->otras = ui::Alineacion::derecha;
    m_radiacion->modelo = std::make_shared<ui::FilasDeLista>(m_filasRadiacion);
}

// ---------------------------------------------------------------------------------------------------
// What it shows
// ---------------------------------------------------------------------------------------------------

void PaginaPaneles::AbrirRadiacion()
{
    const V& v = m_asistente.datos;
    for (int iInclinacion = 0; iInclinacion <= 90; iInclinacion += 5) {
        std::array<double, 12> adRadiacion = FactoresK(m_asistente.m_bases.factoresK, v, iInclinacion);
        for (std::size_t m = 0; m < 12; ++m)
            adRadiacion[m] *= v.adRadiacion[m];
        AnadirFilaRadiacion(m_filasRadiacion, iInclinacion, adRadiacion);
    }
}

void PaginaPaneles::EscribirRadiacion()
{
    m_filasRadiacion.DeleteAllItems();
    AnadirFilaRadiacion(m_filasRadiacion, m_asistente.datos.dInclinacion,
                        m_asistente.datos.adRadiacionInclinada);
    ++m_radiacion->uVersion;
}

void PaginaPaneles::MostrarModelo()
{
    const CString& csModelo = m_asistente.datos.csPanel;
    m_modelo.csRotulo = csModelo.empty() ? CString(L"Panel ...") : csModelo;
}

void PaginaPaneles::MostrarValores()
{
    const V& v = m_asistente.datos;
    MostrarModelo();
    m_mesReferencia->csTexto = v.csMesReferencia;
    m_asistente.De(&V::dPotenciaInstalada).color =
        numero::Mayor(v.dPotenciaMinima, v.dPotenciaInstalada) ? kColorInsuficiente : ui::kNegro;
}

// ---------------------------------------------------------------------------------------------------
// What a person does
// ---------------------------------------------------------------------------------------------------

void PaginaPaneles::Elegir()
{
    if (m_asistente.m_bases.elegirPanelFoto(m_asistente.datos.csPanel) != 1)
        return;
    MostrarModelo();
    m_asistente.Recalcular(false);
}

void PaginaPaneles::AlElegirDisposicion()
{
    V& v = m_asistente.datos;
    if (m_disposicion->iSeleccion == v.iDisposicion)
        return;
    m_asistente.bModificado = 1;
    std::swap(v.panel.dLargoPanel, v.panel.dAnchoPanel);
    v.iDisposicion = m_disposicion->iSeleccion;
    m_asistente.Recalcular(false);
    m_asistente.bModificado = 0;
}

void PaginaPaneles::AlEspaciar()
{
    const CBasePanelFotoModelo* panel = m_asistente.m_bases.panelesFoto.BuscarModelo(m_asistente.datos.csPanel);
    if (panel == nullptr)
        return;
    EspaciarFilas(m_asistente.datos, *panel);
    m_asistente.MostrarValores();
}

}  // namespace efv::assistants

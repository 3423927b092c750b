#include "elements/panel_dialogo.h"

#include <algorithm>

#include <fmt/xchar.h>
#include <quorvel/catalogues/panel_foto.h>

#include "elements/panel_montaje.h"
#include "elements/panel_paginas.h"
#include "elements/panel_radiacion.h"
#include "ui/intercambio.h"

namespace {

namespace ui = efv::ui;
namespace elements = efv::elements;
using D = elements::DatosPanel;

constexpr ui::Colocacion kPanel{.grupo = L"Paneles"}, kMontaje{.grupo = L"Montaje"},
    kSombras{.grupo = L"Sombras"}, kString{.grupo = L"String"};

constexpr auto kOrientaciones = std::to_array<std::wstring_view>({L"Vertical", L"Horizontal"});
constexpr auto kMontajes = std::to_array<std::wstring_view>({L"Ancho", L"Alto", L"Cuadro"});
constexpr auto kConexiones = std::to_array<std::wstring_view>({L"S", L"P"});

constexpr auto kPaneles = ui::Campos<D>({
    {&D::nPaneles, L"Número de paneles:", {1, 100}},
    {.miembro = &D::bInclinacion, .rotulo = L"Inclinación sobre la horizontal (º):", .casilla = true},
    {&D::dInclinacion, L"Inclinación horizontal (º):", {0, 90}},
});
constexpr auto kRendimiento = ui::Campos<D>({
    {&D::dRendimiento, L"Coeficiente de rendimiento del panel (%):", {1, 200}},
});
constexpr auto kPosicion = ui::Campos<D>({
    {.miembro = &D::iOrientacion,
     .rotulo = L"Posición:",
     .entradas = kOrientaciones,
     .indicacion = L"De cada panel: de pie o tumbado"},
    {.miembro = &D::iMontaje,
     .rotulo = L"Agrupación:",
     .entradas = kMontajes,
     .indicacion = L"Uno al lado de otro, uno sobre otro o en cuadro"},
    {.miembro = &D::iConexion,
     .rotulo = L"Conexión:",
     .entradas = kConexiones,
     .indicacion = L"S, en serie; P, en paralelo"},
});
constexpr auto kSombreado = ui::Campos<D>({
    {.miembro = &D::bNoSombras, .rotulo = L"No realizar estudio de sombras sobre el panel.", .casilla = true},
    {.miembro = &D::bInformarSombra,
     .rotulo = L"Informar sombreado máximo diario (%):",
     .casilla = true,
     .indicacion = L"Permite escribirlo"},
    {.miembro = &D::dSombreado, .rotulo = L"", .limites = {0, 100}, .junto = &D::bInformarSombra},
});
constexpr auto kDeString = ui::Campos<D>({
    {&D::csString, L"String:"},
    {.miembro = &D::bForzado,
     .rotulo = L"Forzado",
     .casilla = true,
     .junto = &D::csString,
     .indicacion = L"El string lleva el color que se elige al lado"},
});

constexpr int kPaginaDelAviso = 1;  // that of the missing micro-inverter, which stands on the one after it
constexpr int kPaginasRecordadas = 2;

}  // namespace

CDlgDatosPanelFotovoltaico::CDlgDatosPanelFotovoltaico(const D& inicial, const elements::ClimaPanel& clima,
                                                       std::span<const CString> acsOptimizadores,
                                                       const efv::catalogues::Bases& bases, int& iUltimaPagina)
    : DialogoConModelo("CDlgDatosPanelFotovoltaico", L"Datos del panel fotovoltaico", inicial, {}),
      m_clima(clima),
      m_bases(bases),
      m_iUltimaPagina(iUltimaPagina),
      m_adHorizontal(clima.adHorizontal.begin(), clima.adHorizontal.end()),
      m_adPanel(efv::solar::kHorasBloque)
{
    m_adHorizontal.resize(efv::solar::kHorasBloque);
    bMaximizable = true;
    AnadirReferencia(L"panel");
    AnadirModelo(bases.elegirPanelFoto, "ElegirModelo");
    AnadirPaneles();
    AnadirMontaje();
    AnadirSombras();
    AnadirString();
    AnadirExcluir();
    AnadirRotulacion();
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion = {.iColumna = 1, .bEstirar = true};
    AnadirPaginas(acsOptimizadores);
    Volcar();
    Habilitar();
    MostrarMontaje();
    MostrarMicro();
    CargarModelo();
    Simular();
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

void CDlgDatosPanelFotovoltaico::AnadirPaneles()
{
    Anadir(kPaneles, kPanel);
    De<ui::Edicion>(&D::nPaneles).alSalir = [this] { AlSalirDePaneles(); };
    De(&D::bInclinacion).bVisible = false;
    auto& inclinacion = De(&D::dInclinacion);
    inclinacion.alSalir = [this] { AlSalirDeInclinacion(); };
    auto& estudiar = Anadir<ui::Boton>("ElegirInclinacion", L"...");
    estudiar.colocacion = ui::JuntoA(inclinacion);
    estudiar.csIndicacion = L"Estudio de la inclinación";
    estudiar.alPulsar = [this] { EstudiarInclinacion(); };
    Anadir(kRendimiento, kPanel);
}

void CDlgDatosPanelFotovoltaico::AnadirMontaje()
{
    Anadir(kPosicion, kMontaje);
    for (const auto miembro : {&D::iOrientacion, &D::iMontaje}) {
        auto& combo = De<ui::Seleccion>(miembro);
        combo.alElegir = [this, &combo] {
            Recoger(combo);
            MostrarMontaje();
        };
    }
    m_imagen = &Anadir<ui::Imagen>("imagenMontaje", L"Montaje de los paneles");
    m_imagen->colocacion = kMontaje;
}

void CDlgDatosPanelFotovoltaico::AnadirSombras()
{
    Anadir(kSombreado, kSombras);
    De<ui::Casilla>(&D::bInformarSombra).alCambiar = [this] { Habilitar(); };
}

void CDlgDatosPanelFotovoltaico::AnadirString()
{
    Anadir(kDeString, kString);
    ui::DejarEscribir(De(&D::csString), false);
    auto& forzado = De<ui::Casilla>(&D::bForzado);
    forzado.alCambiar = [this] { Habilitar(); };
    m_color = &Anadir<ui::BotonColor>(ui::NombreDeCampo(&D::nColor), L"");
    m_color->colocacion = ui::JuntoA(forzado);
    m_color->bDelDibujo = true;
    m_color->destino = &datos.nColor;
}

void CDlgDatosPanelFotovoltaico::AnadirPaginas(std::span<const CString> acsOptimizadores)
{
    m_stc = &AnadirPagina<CTabPanelFotovoltaicoSTC>();
    m_optimizador = &AnadirPagina<CTabPanelFotovoltaicoOptimizador>(datos, acsOptimizadores);
    m_micro = &AnadirPagina<CTabPanelFotovoltaicoMicroInversor>(datos, m_bases);
    m_micro->alHabilitar = [this] { AlHabilitarMicro(); };
    m_micro->alElegir = [this] { MostrarMicro(); };
    Pestanas()->colocacion.iColumna = 1;
    Pestanas()->iSeleccion = m_iUltimaPagina >= kPaginasRecordadas ? 0 : m_iUltimaPagina;
}

// What hangs on the ticks.
void CDlgDatosPanelFotovoltaico::Habilitar()
{
    ui::DejarEscribir(De(&D::dInclinacion), datos.bInclinacion != 0);
    ui::Habilitar(De(&D::dSombreado), De<ui::Casilla>(&D::bInformarSombra).bMarcada);
    m_color->bHabilitado = De<ui::Casilla>(&D::bForzado).bMarcada;
    ui::DejarEscribir(De<ui::Edicion>(&D::nPaneles), datos.bMicroInversor == 0);
    m_optimizador->Habilitar();
    m_micro->Habilitar();
}

// ---------------------------------------------------------------------------------------------------
// What they show
// ---------------------------------------------------------------------------------------------------

void CDlgDatosPanelFotovoltaico::CargarModelo()
{
    const CBasePanelFotoModelo* const modelo = m_bases.panelesFoto.BuscarModelo(datos.csId);
    if (modelo == nullptr)
        return;
    EscribirFabricante(modelo->csFamilia);
    m_stc->Mostrar(*modelo);
    MostrarMicro();
}

// One unit serves as many panels as it has inputs.
void CDlgDatosPanelFotovoltaico::MostrarMicro()
{
    const CBaseMicroInversorModelo* const modelo = m_micro->Mostrar();
    if (modelo == nullptr || datos.bMicroInversor == 0 || modelo->iNumEntradas <= 0)
        return;
    datos.nPaneles = modelo->iNumEntradas;
    ui::Volcar(De(&D::nPaneles));
    MostrarMontaje();
}

void CDlgDatosPanelFotovoltaico::MostrarMontaje()
{
    m_imagen->csImagen = elements::ImagenDeMontaje(datos.iOrientacion, datos.iMontaje, datos.nPaneles);
    De(&D::iConexion).bVisible = datos.bMicroInversor == 0 && datos.nPaneles >= 2;
}

void CDlgDatosPanelFotovoltaico::Simular()
{
    if (!m_clima.bHay)
        return;
    const auto dias =
        elements::SimularPanel(efv::clima::BibliotecaActual(), m_clima.plano, datos.dInclinacion,
                               efv::solar::BloqueHoras(m_adPanel), efv::solar::BloqueHoras(m_adHorizontal));
    m_grafica->datos = elements::GraficaPanel(m_clima.plano, dias);
}

// ---------------------------------------------------------------------------------------------------
// What the person does
// ---------------------------------------------------------------------------------------------------

void CDlgDatosPanelFotovoltaico::AlElegirModelo()
{
    CargarModelo();
}

void CDlgDatosPanelFotovoltaico::AlHabilitarMicro()
{
    Habilitar();
    MostrarMontaje();
}

// What is no number of panels yet waits for acceptance.
void CDlgDatosPanelFotovoltaico::AlSalirDePaneles()
{
    if (Recoger(De(&D::nPaneles)))
        MostrarMontaje();
}

void CDlgDatosPanelFotovoltaico::AlSalirDeInclinacion()
{
    const double dAntes = datos.dInclinacion;
    if (Recoger(De(&D::dInclinacion)) && datos.dInclinacion != dAntes)
        Simular();
}

// The tilt that was found counts only where one may be typed.
void CDlgDatosPanelFotovoltaico::EstudiarInclinacion()
{
    efv::solar::EstudioInclinacion estudio{.dInclinacionActual = datos.dInclinacion,
                                           .fuente = m_clima.plano.fuente,
                                           .dDatoSitio = m_clima.plano.dDatoSitio,
                                           .dLatitud = m_clima.plano.dLatitud,
                                           .dOrientacion = m_clima.plano.dOrientacion,
                                           .radHorizontal = m_adHorizontal};
    if (!efv::solar::EstudiarInclinacion(estudio))
        return;
    if (datos.bInclinacion != 0) {
        datos.dInclinacion = estudio.dInclinacionActual;
        ui::Volcar(De(&D::dInclinacion));
    }
    Simular();
}

bool CDlgDatosPanelFotovoltaico::AlAceptar()
{
    if (Modelo().empty()) {
        ui::MostrarAviso(L"El panel fotovoltaico no tiene seleccionado un modelo válido.", ui::Icono::error);
        return false;
    }
    if (!DialogoConModelo::AlAceptar())
        return false;
    if (datos.bMicroInversor != 0 && datos.csIdMicro.empty()) {
        ui::MostrarAviso(
            L"Se ha habilitado el uso de microinversores y no se ha seleccionado un modelo válido.",
            ui::Icono::error);
        TraerAlFrente(kPaginaDelAviso);
        return false;
    }
    if (datos.iMontaje == elements::cuadro && !elements::EsCuadrado(datos.nPaneles)) {
        ui::MostrarAviso(
            fmt::format(
                L"Un número de {} paneles, no se ajusta correctamente al modo cuadro (Np x H = Np x V).",
                datos.nPaneles),
            ui::Icono::error);
        return false;
    }
    m_iUltimaPagina = PaginaAlFrente();
    return true;
}

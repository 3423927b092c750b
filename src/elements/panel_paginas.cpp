#include "elements/panel_paginas.h"

#include <algorithm>

#include <fmt/xchar.h>

#include "catalogues/dialogs/panel_foto_campos.h"
#include "platform/numero/conversion.h"
#include "ui/intercambio.h"

namespace {

namespace ui = efv::ui;
using D = efv::elements::DatosPanel;
using Micro = CBaseMicroInversorModelo;

constexpr auto kOptimizador = ui::Campos<D>({
    {.miembro = &D::bOptimizador, .rotulo = L"Habilitar el uso de optimizadores", .casilla = true},
    {.miembro = &D::bOptModelo, .rotulo = L"Modelo:", .casilla = true, .indicacion = ui::kDelCatalogo},
    {.miembro = &D::csIdOpt, .rotulo = L"", .junto = &D::bOptModelo},
});
constexpr auto kPerdidas = ui::Campos<D>({
    {.miembro = &D::bAutoDesconexion, .rotulo = L"Auto-desconexión por pérdidas (%):", .casilla = true},
    {.miembro = &D::dAutoDesconexion, .rotulo = L"", .limites = {0.01, 100}, .junto = &D::bAutoDesconexion},
    {.miembro = &D::bOptimizadorMPPT, .rotulo = L"Optimizador MPPT:", .casilla = true},
});
constexpr auto kMicro = ui::Campos<D>({
    {.miembro = &D::bMicroInversor, .rotulo = L"Habilitar uso de microinversores", .casilla = true},
    {.miembro = &D::bMicroModelo, .rotulo = L"Modelo:", .casilla = true, .indicacion = ui::kDelCatalogo},
});

CString ConUnDecimal(double d)
{
    return efv::numero::nuConvertFltToIntlStr(d, 1);
}

template <double DatosInversor::*MIEMBRO>
CString Uno(const Micro& m)
{
    return ConUnDecimal(m.*MIEMBRO);
}

template <double DatosInversor::*MAXIMO, double DatosInversor::*MINIMO>
CString Rango(const Micro& m)
{
    return fmt::format(L"{}/{}", ConUnDecimal(m.*MAXIMO), ConUnDecimal(m.*MINIMO));
}

struct DatoMicro {
    std::wstring_view rotulo;
    CString (*texto)(const Micro&);
};

constexpr auto kHoja = std::to_array<DatoMicro>({
    {L"Pcc (W):", &Uno<&Micro::dPCCMax>},
    {L"Vcc (V):", &Rango<&Micro::dVMPPMax, &Micro::dVMPPMin>},
    {L"Icc (A):", &Rango<&Micro::dICCMax, &Micro::dICCMin>},
    {L"Pca (W):", &Uno<&Micro::dPCAMax>},
    {L"Vca (V):",
     [](const Micro& m) { return ConUnDecimal(m.dVCANom) + (m.iTipoSalida == 0 ? L"/MF" : L"/TF"); }},
    {L"Ica (A):", &Rango<&Micro::dICAMax, &Micro::dICAMin>},
    {L"NPPT:", [](const Micro& m) { return std::to_wstring(m.iNumMPPT); }},
});

}  // namespace

// ---------------------------------------------------------------------------------------------------
// The module
// ---------------------------------------------------------------------------------------------------

CTabPanelFotovoltaicoSTC::CTabPanelFotovoltaicoSTC(ui::Dialogo& dialogo)
    : Pagina(dialogo, L"Características eléctricas del panel (*STC)")
{
    m_modelo.dVmpm = 0.0;  // a record made by name has 30
    m_campos.Anadir(*this, efv::catalogues::kElectricosPanel);
    m_campos.SoloMostrar();
}

void CTabPanelFotovoltaicoSTC::Mostrar(const CBasePanelFotoModelo& modelo)
{
    m_modelo = modelo;
    m_campos.Volcar();
}

// ---------------------------------------------------------------------------------------------------
// Optimizer
// ---------------------------------------------------------------------------------------------------

CTabPanelFotovoltaicoOptimizador::CTabPanelFotovoltaicoOptimizador(ui::Dialogo& dialogo, D& datos,
                                                                   std::span<const CString> acsOptimizadores)
    : Pagina(dialogo, L"Optimizador"), m_datos(datos)
{
    AnadirModelo();
    m_campos.Anadir(*this, kPerdidas);
    AnadirMPPT(acsOptimizadores);
    for (const auto miembro : {&D::bAutoDesconexion, &D::bOptimizadorMPPT})
        m_campos.De<ui::Casilla>(miembro).alCambiar = [this] { Habilitar(); };
    alRecoger = [this] { return AlRecoger(); };
}

void CTabPanelFotovoltaicoOptimizador::AnadirModelo()
{
    const auto ocultar = [](ui::Control& control) {
        control.bVisible = false;
        control.bHabilitado = false;
    };
    m_campos.Anadir(*this, kOptimizador);
    for (const auto& fila : kOptimizador)
        ocultar(m_campos.De(fila.miembro));
    ocultar(Anadir<ui::Boton>("ElegirOptimizador", L"..."));
    ocultar(Anadir<ui::Edicion>("csFabricanteOpt", L"Fabricante:"));
}

// Of two entries with the same text the first is chosen.
void CTabPanelFotovoltaicoOptimizador::AnadirMPPT(std::span<const CString> acsOptimizadores)
{
    m_mppt = &Anadir<ui::Seleccion>(ui::NombreDeCampo(&D::csOptimizadorMPPT), L"", ui::Seleccion::Forma::combo);
    m_mppt->colocacion = ui::JuntoA(m_campos.De(&D::bOptimizadorMPPT));
    m_mppt->acsEntradas.assign(acsOptimizadores.begin(), acsOptimizadores.end());
    const auto elegido = std::ranges::find(m_mppt->acsEntradas, m_datos.csOptimizadorMPPT);
    if (elegido != m_mppt->acsEntradas.end())
        m_mppt->iSeleccion = static_cast<int>(elegido - m_mppt->acsEntradas.begin());
}

void CTabPanelFotovoltaicoOptimizador::Habilitar()
{
    auto& desconexion = m_campos.De<ui::Casilla>(&D::bAutoDesconexion);
    auto& mppt = m_campos.De<ui::Casilla>(&D::bOptimizadorMPPT);
    desconexion.bHabilitado = m_datos.iOptimizador == 0;
    mppt.bHabilitado = m_datos.iOptimizador == 1;
    ui::Habilitar(m_campos.De(&D::dAutoDesconexion), desconexion.bHabilitado && desconexion.bMarcada);
    m_mppt->bHabilitado = mppt.bHabilitado && mppt.bMarcada;
}

bool CTabPanelFotovoltaicoOptimizador::AlRecoger()
{
    if (m_mppt->iSeleccion >= 0)
        m_datos.csOptimizadorMPPT = m_mppt->Texto();
    return true;
}

// ---------------------------------------------------------------------------------------------------
// Micro-inverter
// ---------------------------------------------------------------------------------------------------

CTabPanelFotovoltaicoMicroInversor::CTabPanelFotovoltaicoMicroInversor(ui::Dialogo& dialogo, D& datos,
                                                                       const efv::catalogues::Bases& bases)
    : Pagina(dialogo, L"Micro-Inversor"), m_datos(datos), m_bases(bases)
{
    static_assert(kHoja.size() == kDatos);
    AnadirModelo();
    for (std::size_t i = 0; i < kDatos; ++i) {
        m_hoja[i] = &Anadir<ui::Edicion>("", kHoja[i].rotulo);
        m_hoja[i]->bSoloLectura = true;
    }
}

void CTabPanelFotovoltaicoMicroInversor::AnadirModelo()
{
    m_campos.Anadir(*this, kMicro);
    auto& habilitar = m_campos.De<ui::Casilla>(&D::bMicroInversor);
    auto& conModelo = m_campos.De<ui::Casilla>(&D::bMicroModelo);
    m_id = &Anadir<ui::Edicion>(ui::NombreDeCampo(&D::csIdMicro), L"");
    m_id->bSoloLectura = true;
    m_id->colocacion = ui::JuntoA(conModelo);
    m_elegir = &Anadir<ui::Boton>("ElegirMicro", L"...");
    m_elegir->colocacion = ui::JuntoA(conModelo);
    m_elegir->alPulsar = [this] { Elegir(); };
    m_fabricante = &Anadir<ui::Edicion>("csFabricanteMicro", L"Fabricante:");
    m_fabricante->bSoloLectura = true;
    conModelo.alCambiar = [this] { Habilitar(); };
    habilitar.alCambiar = [this, &habilitar] {
        m_datos.bMicroInversor = habilitar.bMarcada ? 1 : 0;
        Habilitar();
        alHabilitar();
    };
}

void CTabPanelFotovoltaicoMicroInversor::Habilitar()
{
    const bool bHabilitado = m_campos.De<ui::Casilla>(&D::bMicroInversor).bMarcada;
    auto& conModelo = m_campos.De<ui::Casilla>(&D::bMicroModelo);
    conModelo.bHabilitado = bHabilitado;
    m_id->bHabilitado = bHabilitado;
    m_elegir->bHabilitado = bHabilitado && conModelo.bMarcada;
    m_fabricante->bHabilitado = bHabilitado;
    for (ui::Edicion* dato : m_hoja)
        dato->bHabilitado = bHabilitado;
}

const Micro* CTabPanelFotovoltaicoMicroInversor::Mostrar()
{
    m_id->csTexto = efv::elements::EnPantalla(m_datos.csIdMicro);
    const Micro* const modelo = m_bases.microInversores.BuscarModelo(m_datos.csIdMicro);
    if (modelo == nullptr)
        return nullptr;
    m_fabricante->csTexto = modelo->csFamilia;
    for (std::size_t i = 0; i < kDatos; ++i)
        m_hoja[i]->csTexto = kHoja[i].texto(*modelo);
    return modelo;
}

void CTabPanelFotovoltaicoMicroInversor::Elegir()
{
    if (m_bases.elegirMicroInversor(m_datos.csIdMicro) == 1)
        alElegir();
}

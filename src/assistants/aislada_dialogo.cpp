#include "assistants/aislada_dialogo.h"

#include <memory>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "assistants/aislada_paginas.h"
#include "assistants/perdidas_dialogo.h"
#include "consumption/receptor_dialogo.h"
#include "solar/energia.h"

namespace {

namespace ui = efv::ui;
namespace as = efv::assistants;
using V = as::ValoresAislada;

constexpr auto kEnergias = ui::Campos<V>({
    {&V::dEnergiaCableado, L"Energía perdida en el cableado (Wh):"},
    {&V::dEnergiaAcumulador, L"Energía perdida en el acumulador (Wh):"},
    {&V::dEnergiaAcoplamiento, L"Energía perdida por acoplamiento (Wh):"},
    {&V::dEnergiaNecesaria, L"Energía necesaria (Wh):"},
});

constexpr auto kTotales = ui::Campos<V>({
    {&V::iTotalAcumuladores, L"Nº de acumuladores en total:"},
    {&V::dPesoAcumuladores, L"Peso del campo de acumuladores (kg):"},
    {&V::iTotalPaneles, L"Nº de paneles en total:"},
    {&V::dPesoPaneles, L"Peso del campo de paneles (kg):"},
    {.miembro = &V::dSuperficieTotal, .rotulo = L"Superficie solar total (~SUP~):", .magnitud = L"Superficie"},
    {.miembro = &V::dSuperficieProyectada,
     .rotulo = L"Superficie solar proyectada (~SUP~):",
     .magnitud = L"Superficie"},
});

}  // namespace

CDlgAsistenteSFVAislada::CDlgAsistenteSFVAislada(const V& inicial, const as::TextoLugar& lugar,
                                                 CSFVAsistenteAislada& registro,
                                                 const efv::catalogues::Bases& bases, int& iUltimaPagina)
    : DialogoAsistente("CDlgAsistenteSFVAislada", L"Asistente de SFV aislada", inicial, bases),
      m_registro(registro),
      m_iUltimaPagina(iUltimaPagina),
      m_receptores(as::LeerReceptores(registro, bases.receptores))
{
    AnadirTexto("csLocalidad", L"Localidad:", lugar.csLocalidad);
    AnadirTexto("csLocalidad2", L"", lugar.csLocalidad2);
    AnadirTexto("csHemisferio", L"Hemisferio:", datos.iHemisferio == 1 ? L"Norte" : L"Sur");
    AnadirReceptores();
    AnadirPaginas();
    AnadirNotas();
    MostrarValores();
    EscribirReceptores();
    // The loads call for a calculation of their own before the one by which the proposals go into force.
    if (!RecogerAvisando())
        return;
    Calcular(false);
    Recalcular(true);
}

void CDlgAsistenteSFVAislada::AnadirPaginas()
{
    m_acumuladores = &AnadirPagina<as::PaginaAcumuladores>(*this);
    m_paneles = &AnadirPagina<as::PaginaPaneles>(*this);
    m_regulacion = &AnadirPagina<as::PaginaRegulacion>(*this);

    auto& perdidas = AnadirPagina(L"Perdidas");
    Anadir(perdidas, as::kPerdidas<V>);
    AnadirResultados(perdidas, kEnergias, ui::kNegro);
    for (const auto& campo : as::kPerdidas<V>)
        Vigilar(campo.miembro);

    AnadirResultados(AnadirPagina(L"Solución del sistema"), kTotales, ui::kNegro);
    Pestanas()->iSeleccion = m_iUltimaPagina > 4 ? 0 : m_iUltimaPagina;
}

// ---------------------------------------------------------------------------------------------------
// Loads
// ---------------------------------------------------------------------------------------------------

void CDlgAsistenteSFVAislada::AnadirReceptores()
{
    m_lista = &Anadir<ui::Lista>("lReceptores", L"", ui::Lista::Forma::tabla);
    m_lista->acsColumnas = {L"Cant.", L"Modelo", L"Red", L"Potencia (W)", L"h/día", L"Consumo (Wh)"};
    m_lista->alineaciones.assign(3, ui::Alineacion::izquierda);
    m_lista->otras = ui::Alineacion::derecha;
    m_lista->modelo = std::make_shared<ui::FilasDeLista>(m_filasReceptores, ui::FilasDeLista::conCasillas);
    m_lista->colocacion.bEstirar = true;
    m_lista->alElegir = [this] { m_filasReceptores.SetSelectionMark(m_lista->iSeleccion); };
    m_lista->alAbrir = [this](int iFila, int /*iColumna*/) {
        m_filasReceptores.SetSelectionMark(iFila);
        EditarReceptor();
    };
    AnadirBoton(*this, "Anadir", L"Añadir ...", {}, [this] { NuevoReceptor(); });
    AnadirBoton(*this, "Editar", L"Editar ...", {}, [this] { EditarReceptor(); });
    AnadirBoton(*this, "Eliminar", L"Eliminar", {}, [this] { EliminarReceptor(); });
}

CSFVDataReceptor* CDlgAsistenteSFVAislada::ReceptorElegido()
{
    const int i = m_filasReceptores.GetSelectionMark();
    return i >= 0 ? &m_receptores[i] : nullptr;
}

void CDlgAsistenteSFVAislada::EscribirReceptores()
{
    m_filasReceptores.DeleteAllItems();
    for (const auto& receptor : m_receptores)
        receptor->InsertarEnLista(m_filasReceptores, 0, 0);
    m_lista->iSeleccion = -1;
    ++m_lista->uVersion;
}

void CDlgAsistenteSFVAislada::NuevoReceptor()
{
    auto receptor = std::make_unique<CSFVDataReceptor>();
    receptor->iReservadoB = 1;
    if (efv::consumption::EditarReceptor(*receptor, 0, m_bases) != ok)
        return;
    receptor->InsertarEnLista(m_filasReceptores, 0, 0);
    ++m_lista->uVersion;
    m_receptores.Add(std::move(receptor));
    Recalcular(true);
    bModificado = 0;
}

void CDlgAsistenteSFVAislada::EditarReceptor()
{
    CSFVDataReceptor* receptor = ReceptorElegido();
    if (receptor == nullptr)
        return;
    if (efv::consumption::EditarReceptor(*receptor, 0, m_bases) == ok) {
        receptor->ActualizarEnLista(m_filasReceptores, 0, 0);
        ++m_lista->uVersion;
    }
    Recalcular(true);
}

void CDlgAsistenteSFVAislada::EliminarReceptor()
{
    const CSFVDataReceptor* receptor = ReceptorElegido();
    if (receptor == nullptr || !ui::Preguntar(L"¿Desea eliminar el receptor " + receptor->csModelo + L"?"))
        return;
    m_receptores.RemoveAt(m_filasReceptores.GetSelectionMark());
    EscribirReceptores();
    Recalcular(true);
    bModificado = 0;
}

// ---------------------------------------------------------------------------------------------------
// Calculation
// ---------------------------------------------------------------------------------------------------

void CDlgAsistenteSFVAislada::MostrarValores()
{
    m_acumuladores->MostrarValores();
    m_paneles->MostrarValores();
    m_regulacion->MostrarValores();
    Volcar();
}

void CDlgAsistenteSFVAislada::Calcular(bool bForzar)
{
    const std::vector<as::DatosReceptor> receptores = as::ReceptoresParaCalculo(m_receptores);
    as::Recalcular(datos,
                   {m_bases.acumuladores.BuscarModelo(datos.csAcumulador),
                    m_bases.panelesFoto.BuscarModelo(datos.csPanel), receptores,
                    [this](double dLatitud, int iHemisferio, double dAlpha) {
                        return efv::solar::FactoresK(m_bases.factoresK, dLatitud, iHemisferio, dAlpha);
                    }},
                   bForzar);
    m_paneles->EscribirRadiacion();
    MostrarValores();
}

// ---------------------------------------------------------------------------------------------------
// OK
// ---------------------------------------------------------------------------------------------------

namespace {

/// A count that must be at least one.
struct Minimo {
    int V::*cuenta;
    std::wstring_view texto;
};
constexpr auto kMinimos = std::to_array<Minimo>({
    {&V::iAcumuladoresSerie, L"Nº de acumuladores en serie no válido"},
    {&V::iAcumuladoresParalelo, L"Nº de acumuladores en paralelo no válido"},
    {&V::iPanelesSerie, L"Nº de paneles en serie no válido"},
    {&V::iPanelesParalelo, L"Nº de paneles en paralelo no válido"},
});

bool ConfirmarPaneles(const V& v)
{
    if (v.iPanelesParalelo > 100) {
        return ui::Preguntar(
            fmt::format(L"El número de ramas de paneles ({}) es una cantidad muy elevada y "
                        L"puede afectar al trazado de la instalación. ¿Desea continuar?",
                        v.iPanelesParalelo));
    }
    return v.iTotalPaneles < 2000 ||
           ui::Preguntar(fmt::format(
               L"El número de paneles de la intalación ({}) es una cantidad muy elevada. ¿Desea continuar?",
               v.iTotalPaneles));
}

bool ConfirmarAcumuladores(const V& v)
{
    if (v.iAcumuladoresParalelo > 25) {
        return ui::Preguntar(
            fmt::format(L"El número de ramas de acumuladores ({}) es una cantidad muy elevada y puede afectar "
                        L"al trazado de la instalación. ¿Desea continuar?.",
                        v.iAcumuladoresParalelo));
    }
    return v.iTotalAcumuladores < 2000 ||
           ui::Preguntar(fmt::format(L"El número de acumuladores de la intalación ({}) es una cantidad muy "
                                     L"elevada. ¿Desea continuar?.",
                                     v.iTotalAcumuladores));
}

}  // namespace

// On the values as last calculated: the fields are taken over after this.
bool CDlgAsistenteSFVAislada::AntesDeAceptar()
{
    as::GuardarReceptores(m_receptores, m_registro);
    if (!AbiertoDelTodo())
        return true;
    for (const Minimo& minimo : kMinimos) {
        if (datos.*minimo.cuenta < 1) {
            ui::MostrarAviso(minimo.texto, ui::Icono::advertencia);
            return false;
        }
    }
    return ConfirmarPaneles(datos) && ConfirmarAcumuladores(datos);
}

bool CDlgAsistenteSFVAislada::AlAceptar()
{
    m_iUltimaPagina = PaginaAlFrente();
    return true;
}

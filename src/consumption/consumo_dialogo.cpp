#include "consumption/consumo_dialogo.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "consumption/consumo_dia_dialogo.h"
#include "consumption/hora_hora_dialogo.h"
#include "consumption/nombres.h"
#include "consumption/receptor_catalogo.h"
#include "consumption/receptor_dialogo.h"
#include "consumption/tabla_dias.h"
#include "platform/numero/conversion.h"
#include "solar/calendario.h"

namespace {

namespace ui = efv::ui;
using P = efv::consumption::DatosConsumo;
using efv::numero::nuConvertFltToIntlStr;

constexpr double kMil = 1000.0;

constexpr auto kTipos =
    std::to_array<std::wstring_view>({L"Detallado hora a hora", L"Según el tipo de día y de receptor"});
constexpr auto kColumnasReceptores =
    std::to_array<std::wstring_view>({L"Und.", L"Modelo", L"Red", L"Potencia (W)", L"h/día", L"Energia (Wh)"});

constexpr auto kCampos = ui::Campos<P>({
    {&P::csReferencia, L"Referencia:"},
    {.miembro = &P::iTipoEntrada,
     .rotulo = L"Entrada de datos de consumo anual:  ",
     .entradas = kTipos,
     .indicacion = L"Las 8760 horas del año, o una lista de receptores con sus horas de uso"},
    {.miembro = &P::bExcluir,
     .rotulo = L"Excluir del cálculo",
     .casilla = true,
     .indicacion = ui::kFueraDelCalculo},
    {&P::dPotMaxima, L"Potencia máx. simultánea (W):"},
});

constexpr auto kComprobaciones = std::to_array<ui::Comprobacion<P>>({
    {&P::csReferencia, ui::Vacio<&P::csReferencia>, L"El consumo eléctrico no tiene una referencia válida."},
});

CString TextoResumen(const efv::ResumenConsumo& resumen, int iMes)
{
    const auto enMiles = [](double d) { return nuConvertFltToIntlStr(d / kMil, 2); };
    return fmt::format(
        L"Potencia total instalada: {} kW.\r\nEnergía diaria consumida: {} kWh.\r\nEnergía mensual "
        L"[{}] consumida: {} kWh.",
        enMiles(resumen.dPotencia), enMiles(resumen.dEnergiaDia), efv::solar::NombreMesCorto(iMes),
        enMiles(resumen.dEnergiaMes));
}

}  // namespace

CObArrayPropio<CSFVDataReceptor> efv::consumption::CopiarReceptores(
    const CObArrayPropio<CSFVDataReceptor>& lReceptores)
{
    CObArrayPropio<CSFVDataReceptor> copias;
    for (const auto& receptor : lReceptores)
        copias.Add(std::make_unique<CSFVDataReceptor>(*receptor));
    return copias;
}

CDlgDatosConsumo::CDlgDatosConsumo(const P& inicial, const CObArrayPropio<CSFVDataReceptor>& receptores,
                                   efv::AnoHorarioVista horas, const efv::catalogues::Bases& bases,
                                   std::span<efv::PatronConsumo> patrones)
    : DialogoFicha("CDlgDatosConsumo", L"Datos del consumo eléctrico", inicial, kComprobaciones),
      lReceptores(efv::consumption::CopiarReceptores(receptores)),
      m_bases(bases),
      m_patrones(patrones)
{
    bMaximizable = true;
    std::ranges::copy(horas, adHoras->begin());
    Anadir(kCampos);
    De<ui::Seleccion>(&P::iTipoEntrada).alElegir = [this] { AlElegirTipo(); };
    De(&P::dPotMaxima).alCambiar = [this] { AlTeclearPotencia(); };
    AnadirSelectores();
    AnadirBotones();
    AnadirTablaDeDias();
    AnadirReceptores();
    m_resumen = &Anadir<ui::Edicion>("csResumen", L"");
    m_resumen->bSoloLectura = true;
    m_resumen->bVariasLineas = true;
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.bEstirar = true;
    PonerDiasDelMes();
    Volcar();
    MostrarTodo();
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

ui::Seleccion& CDlgDatosConsumo::AnadirCombo(int P::*miembro, std::wstring_view rotulo,
                                             std::vector<CString> acsEntradas,
                                             void (CDlgDatosConsumo::*alElegir)())
{
    auto& combo = Anadir<ui::Seleccion>(ui::NombreDeCampo(miembro), rotulo, ui::Seleccion::Forma::combo);
    combo.acsEntradas = std::move(acsEntradas);
    combo.destino = &(datos.*miembro);
    combo.alElegir = [this, alElegir] { (this->*alElegir)(); };
    return combo;
}

void CDlgDatosConsumo::AnadirSelectores()
{
    m_mes = &AnadirCombo(&P::iMes, L"Mes:", efv::consumption::NombresDeMeses(), &CDlgDatosConsumo::AlElegirMes);
    m_diaMes = &AnadirCombo(&P::iDiaMes, L"Día:", {}, &CDlgDatosConsumo::AlElegirDia);
    m_diaTipo = &AnadirCombo(&P::iDiaTipo, L"Tipo de día:", efv::consumption::NombresDeDias(),
                             &CDlgDatosConsumo::AlElegirDia);
    m_diaMes->colocacion = m_diaTipo->colocacion = ui::JuntoA(*m_mes);
    // A choice that nobody gets to see.
    auto& rotulacion = Anadir<ui::Seleccion>(ui::NombreDeCampo(&P::iRotulacion), L"Rotulación ...",
                                             ui::Seleccion::Forma::menu);
    rotulacion.acsEntradas = {L"Referencia", L"Potencia nominal", L"Máxima energía/mes consumida"};
    rotulacion.bVisible = false;
}

ui::Boton& CDlgDatosConsumo::AnadirBoton(std::wstring_view rotulo, void (CDlgDatosConsumo::*alPulsar)())
{
    auto& boton = Anadir<ui::Boton>("", rotulo);
    boton.alPulsar = [this, alPulsar] { (this->*alPulsar)(); };
    return boton;
}

void CDlgDatosConsumo::AnadirBotones()
{
    m_tabla = &AnadirBoton(L"Editar tabla de datos ...", &CDlgDatosConsumo::AlEditarTabla);
    m_anadir = &AnadirBoton(L"Añadir ...", &CDlgDatosConsumo::AlAnadirReceptor);
    m_editar = &AnadirBoton(L"Editar ...", &CDlgDatosConsumo::AlEditarReceptor);
    m_eliminar = &AnadirBoton(L"Eliminar", &CDlgDatosConsumo::AlEliminarReceptor);
}

void CDlgDatosConsumo::AnadirTablaDeDias()
{
    m_dias = &Anadir<ui::Lista>("adHoras", L"", ui::Lista::Forma::tabla);
    m_dias->acsColumnas = efv::consumption::ColumnasDeDias();
    m_dias->otras = ui::Alineacion::derecha;
    m_dias->modelo = std::make_shared<efv::consumption::TablaDeDias>(
        [horas = adHoras](int iMes, int iDia) { return efv::SumaDeHoras(*horas, efv::HorasDeDia(iMes, iDia)); },
        0);
    m_dias->alAbrir = [this](int iFila, int iColumna) { AlAbrirDia(iFila, iColumna); };
    m_dias->colocacion.bEstirar = true;
}

void CDlgDatosConsumo::AnadirReceptores()
{
    m_receptores = &Anadir<ui::Lista>("lReceptores", L"", ui::Lista::Forma::tabla);
    m_receptores->acsColumnas.assign(kColumnasReceptores.begin(), kColumnasReceptores.end());
    m_receptores->alineaciones.assign(3, ui::Alineacion::izquierda);
    m_receptores->otras = ui::Alineacion::derecha;
    m_receptores->modelo = std::make_shared<ui::FilasDeLista>(m_filas, ui::FilasDeLista::conCasillas);
    m_receptores->alElegir = [this] { m_filas.SetSelectionMark(m_receptores->iSeleccion); };
    m_receptores->alAbrir = [this](int iFila, int) {
        m_filas.SetSelectionMark(iFila);
        AlEditarReceptor();
    };
    m_receptores->colocacion.bEstirar = true;
}

// ---------------------------------------------------------------------------------------------------
// What they show
// ---------------------------------------------------------------------------------------------------

// The day on view stays where the month has it, else the first comes up.
void CDlgDatosConsumo::PonerDiasDelMes()
{
    ui::Seleccion& dias = *m_diaMes;
    dias.acsEntradas = efv::consumption::DiasDelMes(datos.iMes);
    const int nDias = static_cast<int>(dias.acsEntradas.size());
    if (datos.iDiaMes < 0 || datos.iDiaMes >= nDias)
        datos.iDiaMes = 0;
    dias.iSeleccion = datos.iDiaMes;
}

void CDlgDatosConsumo::MostrarModo()
{
    const bool bHoras = PorHoras();
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{m_diaMes, &De(&P::dPotMaxima), m_dias, m_tabla})
        control->bVisible = bHoras;
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{m_diaTipo, m_receptores, m_anadir, m_editar, m_eliminar})
        control->bVisible = !bHoras;
}

CSFVDataReceptor* CDlgDatosConsumo::Seleccionado() const
{
    const int iFila = m_filas.GetSelectionMark();
    return iFila >= 0 ? dynamic_cast<CSFVDataReceptor*>(m_filas.GetItemData(iFila)) : nullptr;
}

// A load whose model the catalogue doesn't have is kept, but has no row.
void CDlgDatosConsumo::MostrarReceptores()
{
    const CSFVDataReceptor* const seleccionado = Seleccionado();
    m_filas.DeleteAllItems();
    for (const auto& receptor : lReceptores) {
        if (!efv::consumption::RefrescarDeCatalogo(*receptor, m_bases.receptores))
            continue;
        receptor->InsertarEnLista(m_filas, datos.iMes, datos.iDiaTipo);
        if (receptor.get() == seleccionado)
            m_filas.SetSelectionMark(m_filas.GetItemCount() - 1);
    }
    m_receptores->iSeleccion = m_filas.GetSelectionMark();
    ++m_receptores->uVersion;
}

void CDlgDatosConsumo::MostrarDia()
{
    const bool bHoras = PorHoras();
    const efv::ResumenConsumo resumen =
        bHoras ? efv::ResumirHoras(*adHoras, datos.dPotMaxima, datos.iMes, datos.iDiaMes)
               : efv::ResumirReceptores(lReceptores, datos.iMes, datos.iDiaTipo);
    m_resumen->csTexto = TextoResumen(resumen, datos.iMes);
    const efv::DiaHorarioVista dia(adHoras->begin() + efv::HorasDeDia(datos.iMes, datos.iDiaMes).iInicio, 24);
    m_grafica->datos = bHoras ? efv::GraficaDiaDeHoras(dia)
                              : efv::GraficaDiaDeReceptores(lReceptores, datos.iMes, datos.iDiaTipo);
}

void CDlgDatosConsumo::MostrarTodo()
{
    MostrarModo();
    if (PorHoras())
        ++m_dias->uVersion;
    else
        MostrarReceptores();
    MostrarDia();
}

// ---------------------------------------------------------------------------------------------------
// What the person does
// ---------------------------------------------------------------------------------------------------

void CDlgDatosConsumo::AlElegirTipo()
{
    const int iAntes = std::exchange(datos.iTipoEntrada, De<ui::Seleccion>(&P::iTipoEntrada).iSeleccion);
    if (PorHoras() && iAntes != 0 && !lReceptores.IsEmpty() &&
        ui::Preguntar(
            L"¿Desea trasladar el consumo introducido según el tipo de día y receptor a consumo hora a "
            L"hora?")) {
        datos.dPotMaxima = efv::AnoDeReceptores(lReceptores, *adHoras);
        De(&P::dPotMaxima).csTexto = nuConvertFltToIntlStr(datos.dPotMaxima, 2);
    }
    MostrarTodo();
}

void CDlgDatosConsumo::AlElegirMes()
{
    datos.iMes = m_mes->iSeleccion;
    PonerDiasDelMes();
    MostrarTodo();
}

void CDlgDatosConsumo::AlElegirDia()
{
    datos.iDiaMes = m_diaMes->iSeleccion;
    datos.iDiaTipo = m_diaTipo->iSeleccion;
    MostrarTodo();
}

// What is no number yet waits for acceptance.
void CDlgDatosConsumo::AlTeclearPotencia()
{
    if (Recoger(De(&P::dPotMaxima)))
        MostrarDia();
}

void CDlgDatosConsumo::AlEditarTabla()
{
    if (!RecogerAvisando())
        return;
    efv::consumption::DatosHoraHora horas;
    horas.iPeriodo = datos.iPeriodo;
    horas.iOrigen = datos.iOrigen;
    horas.iPatron = datos.iPatron;
    horas.dPotMaxima = datos.dPotMaxima;
    horas.dHusoHorario = datos.dHusoHorario;
    horas.iSeparador = datos.iSeparador;
    std::ranges::copy(std::span(&datos.adMes[0][0], 72), &horas.adMes[0][0]);
    std::ranges::copy(datos.aiPeriodoHora, horas.aiPeriodoHora);
    CDlgDatosConsumoHoraHora dialogo(horas, m_patrones);
    if (dialogo.Mostrar() != ok)
        return;
    datos.iPeriodo = dialogo.datos.iPeriodo;
    datos.iOrigen = dialogo.datos.iOrigen;
    datos.iPatron = dialogo.datos.iPatron;
    datos.dPotMaxima = dialogo.datos.dPotMaxima;
    datos.iSeparador = dialogo.datos.iSeparador;
    std::ranges::copy(std::span(&dialogo.datos.adMes[0][0], 72), &datos.adMes[0][0]);
    std::ranges::copy(dialogo.datos.aiPeriodoHora, datos.aiPeriodoHora);
    const efv::TramoHoras tramo = efv::HorasDePeriodo(datos.iPeriodo);
    std::copy(dialogo.adHoras->begin() + tramo.iInicio, dialogo.adHoras->begin() + tramo.iFin,
              adHoras->begin() + tramo.iInicio);
    Volcar();
    MostrarTodo();
}

void CDlgDatosConsumo::AlAbrirDia(int iFila, int iColumna)
{
    const int iMes = iColumna - 1;
    if (iMes < 0 || iMes >= 12 || iFila >= efv::solar::kDiasMesReferencia[static_cast<std::size_t>(iMes)])
        return;
    CDlgDatosConsumoDia dialogo(iMes, iFila, *adHoras);
    if (dialogo.Mostrar() == ok)
        MostrarTodo();
}

void CDlgDatosConsumo::AlAnadirReceptor()
{
    auto receptor = std::make_unique<CSFVDataReceptor>();
    if (efv::consumption::EditarReceptor(*receptor, datos.iMes, m_bases) != ok ||
        !efv::consumption::RefrescarDeCatalogo(*receptor, m_bases.receptores))
        return;
    lReceptores.Add(std::move(receptor));
    MostrarTodo();
}

void CDlgDatosConsumo::AlEditarReceptor()
{
    CSFVDataReceptor* const receptor = Seleccionado();
    if (receptor != nullptr && efv::consumption::EditarReceptor(*receptor, datos.iMes, m_bases) == ok)
        MostrarTodo();
}

void CDlgDatosConsumo::AlEliminarReceptor()
{
    CSFVDataReceptor* const receptor = Seleccionado();
    if (receptor == nullptr ||
        !ui::Preguntar(fmt::format(L"¿Desea eliminar el receptor: {}?", receptor->csModelo)))
        return;
    m_filas.SetSelectionMark(-1);
    for (std::ptrdiff_t i = 0; i < lReceptores.GetSize(); ++i) {
        if (&lReceptores[i] == receptor) {
            lReceptores.RemoveAt(i);
            break;
        }
    }
    MostrarTodo();
}

#include "consumption/receptor_dialogo.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "consumption/franjas.h"
#include "consumption/franjas_texto.h"
#include "consumption/horas_texto.h"
#include "consumption/mes_ano_dialogo.h"
#include "consumption/nombres.h"
#include "consumption/receptor_catalogo.h"
#include "consumption/registros.h"
#include "platform/numero/conversion.h"
#include "solar/calendario.h"
#include "ui/campos_registro.h"

namespace {

namespace ui = efv::ui;
using R = CSFVDataReceptor;
using D = efv::consumption::DatosReceptor;

constexpr int kMinutosDia = 1440;
constexpr ui::Colocacion kPlanificacion{.grupo = L"Planificación"};

// Data of the catalogue, shown and never changed here.
constexpr auto kDatos = ui::Campos<R>({
    {&R::dPotencia, L"Potencia de consumo (W):"},
    {&R::dVoltaje, L"Voltaje de servicio (V):"},
    {&R::dVoltajeMinimo, L"Voltaje mínimo de servicio (V):"},
    {&R::dRendimiento, L"Rendimiento (%):"},
});

constexpr auto kComprobaciones = std::to_array<ui::Comprobacion<D>>({
    {nullptr, ui::Vacio<&D::csReferencia>, L"El receptor no tiene una referencia válida."},
    {nullptr, [](const D& d) { return d.receptor.csModelo.empty(); },
     L"El receptor no tiene seleccionado un modelo válido."},
});

constexpr auto kLimites = std::to_array<std::wstring_view>(
    {L"Inicio 1", L"Final 1", L"Inicio 2", L"Final 2", L"Inicio 3", L"Final 3"});

enum Unificar : int { semana, dia, todas };
constexpr auto kUnificar = std::to_array<std::wstring_view>(
    {L"Todos los días en la semana", L"Todos los días como el actual", L"Todas las semanas"});

CString LeerMinutos(int iMinutos)
{
    return efv::consumption::HorasYMinutos(iMinutos / 60.0) + L" h";
}

}  // namespace

CDlgDatosReceptor::CDlgDatosReceptor(const D& inicial, const efv::catalogues::Bases& bases)
    : DialogoFicha("CDlgDatosReceptor", L"Datos del receptor eléctrico", inicial, kComprobaciones),
      m_bases(bases)
{
    efv::ComprobarIndice(datos.iMes, 12);
    if (datos.bPedirCantidad != 0)
        datos.bModelo = 1;
    Anadir(ui::Campos<D>({{&D::csReferencia, L"Referencia:"}}));
    AnadirModelo();
    AnadirDatosCatalogo();
    AnadirPlanificacion();
    AnadirFranjas();
    AnadirLimites();
    Volcar();
    MostrarCatalogo();
    MostrarFranjas();
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

void CDlgDatosReceptor::AnadirModelo()
{
    auto& modelo = m_receptor.Anadir(*this, {&R::csModelo, L"Modelo:"});
    modelo.bSoloLectura = true;
    Anadir(ui::Campos<D>({{.miembro = &D::bModelo, .rotulo = L"", .casilla = true}}));
    auto& conModelo = De<ui::Casilla>(&D::bModelo);
    conModelo.colocacion = ui::JuntoA(modelo);
    conModelo.bHabilitado = datos.bPedirCantidad == 0;
    conModelo.alCambiar = [this, &conModelo] { m_elegir->bHabilitado = conModelo.bMarcada; };
    m_elegir = &Anadir<ui::Boton>("", L"...");
    m_elegir->colocacion = ui::JuntoA(modelo);
    m_elegir->csIndicacion = L"Elegir el modelo en el catálogo";
    conModelo.csIndicacion = ui::kDelCatalogo;
    m_elegir->bHabilitado = datos.bModelo != 0;
    m_elegir->alPulsar = [this] { AlElegirModelo(); };
    m_receptor.Anadir(*this, {&R::iCantidad, L"Cantidad:", {0, 10000}}).bVisible = datos.bPedirCantidad != 0;
    m_receptor.De<ui::Edicion>(&R::iCantidad).alCambiar = [this] { AlTeclearCantidad(); };
    auto& fabricante = m_receptor.Anadir(*this, {&R::csFabricante, L"Fabricante:"});
    fabricante.bSoloLectura = true;
    fabricante.bVisible = datos.bPedirCantidad == 0;
    auto& excluir = Anadir<ui::Casilla>("bExcluir", L"Excluir del cálculo");
    excluir.destino = &datos.receptor.bNoCalcular;
    excluir.csIndicacion = L"Sigue en la lista y no cuenta en el consumo";
    excluir.colocacion =
        ui::JuntoA(fabricante.bVisible ? fabricante : m_receptor.De<ui::Edicion>(&R::iCantidad));
}

void CDlgDatosReceptor::AnadirDatosCatalogo()
{
    m_receptor.Anadir(*this, kDatos);
    for (const auto& dato : kDatos) {
        auto& campo = m_receptor.De<ui::Edicion>(dato.miembro);
        // Shown to two decimals; taking them back would lose the others.
        campo.intercambio = ui::Intercambio::aMano;
        campo.bSoloLectura = true;
    }
    m_receptor.De(&R::dRendimiento).colocacion = ui::JuntoA(m_receptor.De(&R::dPotencia));
    m_tipoRed = &Anadir<ui::TextoFijo>(ui::NombreDeCampo(&R::iTipoRed), L"Tipo de red:");
    m_luminaria = &Anadir<ui::TextoFijo>(ui::NombreDeCampo(&R::iLuminaria), L"Luminaria: ");
    m_luminaria->colocacion = ui::JuntoA(*m_tipoRed);
}

ui::Seleccion& CDlgDatosReceptor::AnadirCombo(int D::*miembro, std::wstring_view rotulo,
                                              std::vector<CString> acsEntradas,
                                              void (CDlgDatosReceptor::*alElegir)())
{
    auto& combo = Anadir<ui::Seleccion>(ui::NombreDeCampo(miembro), rotulo, ui::Seleccion::Forma::combo);
    combo.acsEntradas = std::move(acsEntradas);
    combo.destino = &(datos.*miembro);
    combo.alElegir = [this, alElegir] { (this->*alElegir)(); };
    combo.colocacion = kPlanificacion;
    return combo;
}

void CDlgDatosReceptor::AnadirPlanificacion()
{
    m_mes =
        &AnadirCombo(&D::iMes, L"Mes:", efv::consumption::NombresDeMeses(), &CDlgDatosReceptor::AlElegirMes);
    m_diaTipo = &AnadirCombo(&D::iDiaTipo, L"Tipo de día:", efv::consumption::NombresDeDias(),
                             &CDlgDatosReceptor::AlElegirDiaTipo);
    m_diaTipo->colocacion = ui::JuntoA(*m_mes);
    m_unificar = &Anadir<ui::Seleccion>("", L"Unificar planificación", ui::Seleccion::Forma::menu);
    m_unificar->acsEntradas.assign(kUnificar.begin(), kUnificar.end());
    m_unificar->alElegir = [this] { AlUnificar(); };
    m_unificar->colocacion = kPlanificacion;
    m_unificar->csIndicacion = L"Copia las franjas que se ven a otros días o meses";
    m_receptor.Anadir(*this, {&R::dHorasDia, L"Nº horas uso diario:", {0, 24}}, ui::JuntoA(*m_unificar));
}

// The bands as a line, and how far a change of them reaches.
void CDlgDatosReceptor::AnadirFranjas()
{
    const auto anadirCasilla = [this](const char* nombre, std::wstring_view rotulo) {
        auto& casilla = Anadir<ui::Casilla>(nombre, rotulo);
        casilla.colocacion = kPlanificacion;
        casilla.alCambiar = [this] { Repartir(); };
        return &casilla;
    };
    m_todosLosMeses = anadirCasilla("bTodosLosMeses", L"Todos los meses a la vez");
    m_todosLosDias = anadirCasilla("bTodosLosDias", L"Todos los días a la vez");
    m_todosLosDias->colocacion = ui::JuntoA(*m_todosLosMeses);
    m_todosLosMeses->csIndicacion = L"Las franjas que se ven valen para los doce meses, y así se cambian";
    m_todosLosDias->csIndicacion =
        L"Las franjas que se ven valen para los siete tipos de día, y así se cambian";
    m_franjas = &Anadir<ui::Edicion>("csFranjas", L"Franjas de uso:");
    m_franjas->csEjemplo = L"08:00-12:00; 18:00-22:00";
    m_franjas->colocacion = kPlanificacion;
    m_franjas->alCambiar = [this] { AlTeclearFranjas(); };
    m_franjas->alSalir = [this] { AvisarDeFranjas(); };
}

void CDlgDatosReceptor::AnadirLimites()
{
    for (std::size_t i = 0; i < m_limites.size(); ++i) {
        auto& deslizador = Anadir<ui::Deslizador>("", kLimites[i]);
        deslizador.iMaximo = kMinutosDia;
        deslizador.iPasoGrande = 60;
        deslizador.leer = LeerMinutos;
        deslizador.alMover = [this, i] { AlMover(i); };
        // Both ends of a band on one line.
        deslizador.colocacion = i % 2 == 0 ? kPlanificacion : ui::JuntoA(*m_limites[i - 1].deslizador);
        auto& lectura = Anadir<ui::TextoFijo>(fmt::format("csLectura[{}]", i), L"");
        lectura.colocacion = ui::JuntoA(deslizador);
        m_limites[i] = {&deslizador, &lectura};
    }
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.iColumna = 1;
    m_grafica->colocacion.bEstirar = true;
}

// ---------------------------------------------------------------------------------------------------
// What they show
// ---------------------------------------------------------------------------------------------------

void CDlgDatosReceptor::MostrarCatalogo()
{
    efv::consumption::RefrescarDeCatalogo(datos.receptor, m_bases.receptores);
    const R& receptor = datos.receptor;
    m_receptor.De(&R::csModelo).csTexto = receptor.csModelo;
    m_receptor.De(&R::csFabricante).csTexto = receptor.csFabricante;
    for (const auto& dato : kDatos)
        m_receptor.De<ui::Edicion>(dato.miembro).csTexto =
            efv::numero::nuConvertFltToIntlStr(receptor.*std::get<double R::*>(dato.miembro), 2);
    m_tipoRed->csTexto = receptor.iTipoRed == 0 ? L"CC" : L"CA";
    m_luminaria->csTexto = receptor.iLuminaria == 0 ? L"NO" : L"SI";
}

void CDlgDatosReceptor::MostrarFranjas()
{
    for (std::size_t i = 0; i < m_limites.size(); ++i)
        m_limites[i].deslizador->iValor = std::clamp(efv::numero::Entero(FranjasVisibles()[i]), 0, kMinutosDia);
    m_franjas->csTexto = efv::consumption::TextoDeFranjas(FranjasVisibles());
    m_franjas->color = ui::kNegro;
    MostrarHoras();
}

void CDlgDatosReceptor::MostrarHoras()
{
    for (const Limite& limite : m_limites)
        limite.lectura->csTexto = limite.deslizador->Texto();
    datos.receptor.dHorasDia = efv::consumption::HorasMostradas(FranjasVisibles());
    m_receptor.De(&R::dHorasDia).csTexto = efv::numero::nuConvertFltToIntlStr(datos.receptor.dHorasDia, 2);
    Dibujar();
}

// The load by itself, included or not; one whose units aren't asked for counts once.
void CDlgDatosReceptor::Dibujar()
{
    CObArrayPropio<R> solo;
    R& receptor = solo.Add(std::make_unique<R>(datos.receptor));
    receptor.bNoCalcular = 0;
    if (datos.bPedirCantidad == 0)
        receptor.iCantidad = 1;
    m_grafica->datos = efv::GraficaDiaDeReceptores(solo, datos.iMes, datos.iDiaTipo);
}

// ---------------------------------------------------------------------------------------------------
// What the person does
// ---------------------------------------------------------------------------------------------------

void CDlgDatosReceptor::AlElegirModelo()
{
    if (m_bases.elegirReceptor(datos.receptor.csModelo) == 0)
        return;
    MostrarCatalogo();
    MostrarHoras();
}

void CDlgDatosReceptor::AlElegirMes()
{
    datos.iMes = m_mes->iSeleccion;
    datos.iDiaTipo = 0;
    m_diaTipo->iSeleccion = 0;
    MostrarFranjas();
}

void CDlgDatosReceptor::AlElegirDiaTipo()
{
    datos.iDiaTipo = m_diaTipo->iSeleccion;
    MostrarFranjas();
}

// What is no number yet waits for acceptance.
void CDlgDatosReceptor::AlTeclearCantidad()
{
    if (Recoger(m_receptor.De(&R::iCantidad)))
        Dibujar();
}

void CDlgDatosReceptor::AlMover(std::size_t i)
{
    FranjasVisibles()[i] = m_limites[i].deslizador->iValor;
    Repartir();
    MostrarFranjas();
}

// The sliders follow each letter; what isn't understood yet is red and changes nothing.
void CDlgDatosReceptor::AlTeclearFranjas()
{
    const auto leidas = efv::consumption::LeerFranjas(m_franjas->csTexto);
    m_franjas->color = leidas.franjas ? ui::kNegro : ui::kRojo;
    if (!leidas.franjas)
        return;
    const CString csTecleado = m_franjas->csTexto;
    std::ranges::copy(*leidas.franjas, FranjasVisibles());
    Repartir();
    MostrarFranjas();
    m_franjas->csTexto = csTecleado;
}

// @return whether the line is understood; it then reads as the bands do
bool CDlgDatosReceptor::AvisarDeFranjas()
{
    const auto leidas = efv::consumption::LeerFranjas(m_franjas->csTexto);
    const CString csDeAhora = efv::consumption::TextoDeFranjas(FranjasVisibles());
    // Bands that the sliders have put in disorder stay as they are.
    if (leidas.franjas || m_franjas->csTexto == csDeAhora) {
        m_franjas->csTexto = csDeAhora;
        return true;
    }
    foco = m_franjas;
    ui::MostrarAviso(leidas.csFallo + L".", ui::Icono::advertencia);
    return false;
}

// The bands in sight to the months and day types that change with them.
void CDlgDatosReceptor::Repartir()
{
    const auto actual = std::to_array(FranjasVisibles());
    for (int iMes = 0; iMes < 12; ++iMes) {
        for (int iTipo = 0; iTipo < 7; ++iTipo) {
            if ((iMes == datos.iMes || m_todosLosMeses->bMarcada) &&
                (iTipo == datos.iDiaTipo || m_todosLosDias->bMarcada))
                std::ranges::copy(actual, datos.receptor.dHorario[iMes][iTipo]);
        }
    }
}

void CDlgDatosReceptor::AlUnificar()
{
    const int iEleccion = std::exchange(m_unificar->iSeleccion, -1);
    auto& horario = datos.receptor.dHorario;
    if (iEleccion == semana) {
        const auto actual = std::to_array(FranjasVisibles());
        for (auto& destino : horario[datos.iMes])
            std::ranges::copy(actual, destino);
        return;
    }
    CDlgMesAno meses(datos.iMes);
    if (meses.Mostrar() != ok)
        return;
    for (int iMes = 0; iMes < 12; ++iMes) {
        if (iMes == datos.iMes || meses.abMeses[static_cast<std::size_t>(iMes)] == 0)
            continue;
        for (int iTipo = 0; iTipo < 7; ++iTipo)
            if (iEleccion == todas || iTipo == datos.iDiaTipo)
                std::ranges::copy(horario[datos.iMes][iTipo], horario[iMes][iTipo]);
    }
}

// Month and day type of every pair without hours, in order.
CString CDlgDatosReceptor::DiasSinUso() const
{
    CString lista;
    for (int iMes = 0; iMes < 12; ++iMes) {
        for (int iTipo = 0; iTipo < 7; ++iTipo) {
            if (!ui::EsNulo(efv::consumption::HorasMostradas(datos.receptor.dHorario[iMes][iTipo])))
                continue;
            lista += fmt::format(L"{}{}:{}", lista.empty() ? L"" : L", ", efv::solar::NombreMes(iMes),
                                 efv::solar::NombreDia(iTipo));
        }
    }
    return lista;
}

bool CDlgDatosReceptor::AlAceptar()
{
    // A line that isn't understood was told when it was left, if that was just now.
    if (!DialogoFicha::AlAceptar() || (AcabaDeDejar(*m_franjas) && foco == m_franjas) || !AvisarDeFranjas())
        return false;
    const CString csDias = DiasSinUso();
    return csDias.empty() ||
           ui::Preguntar(fmt::format(L"Hay días que no tienen definido un patrón de consumo:\r\n[{}]\r\n¿Desea "
                                     L"salir sin definir esos patrones?",
                                     csDias));
}

// ---------------------------------------------------------------------------------------------------
// A load by itself
// ---------------------------------------------------------------------------------------------------

int efv::consumption::EditarReceptor(CSFVDataReceptor& receptor, int iMes, const catalogues::Bases& bases)
{
    DatosReceptor inicial;
    inicial.csReferencia = L"ELEMENTO DE CONSUMO";
    inicial.iMes = iMes;
    inicial.receptor.csModelo = receptor.csModelo;
    inicial.receptor.iCantidad = receptor.iCantidad;
    inicial.receptor.iReservadoB = receptor.iReservadoB;
    inicial.receptor.bNoCalcular = receptor.bNoCalcular;
    std::ranges::copy(std::span(&receptor.dHorario[0][0][0], 504), &inicial.receptor.dHorario[0][0][0]);
    CDlgDatosReceptor dialogo(inicial, bases);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return ui::Dialogo::cancelado;
    const CSFVDataReceptor& editado = dialogo.datos.receptor;
    receptor.csModelo = editado.csModelo;
    receptor.iCantidad = editado.iCantidad;
    receptor.dPotencia = editado.dPotencia;
    receptor.bNoCalcular = editado.bNoCalcular;
    std::ranges::copy(std::span(&editado.dHorario[0][0][0], 504), &receptor.dHorario[0][0][0]);
    return ui::Dialogo::ok;
}

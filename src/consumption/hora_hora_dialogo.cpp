#include "consumption/hora_hora_dialogo.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "consumption/consumo_mes_dialogo.h"
#include "consumption/importar_consumo_dialogo.h"
#include "consumption/nombres.h"
#include "consumption/patron_dialogo.h"
#include "ui/fichero_texto.h"

namespace {

namespace ui = efv::ui;
using P = efv::consumption::DatosHoraHora;

constexpr auto kOrigenes =
    std::to_array<std::wstring_view>({L"Directamente por el usuario", L"Patrón de consumo tipo:"});
constexpr auto kSeparadores = std::to_array<std::wstring_view>({L"<;>", L"<TAB>", L"<ESPACIO>"});
constexpr double kWhPorKWh = 1000.0;

constexpr auto kPotencia = ui::Campos<P>({
    {&P::dPotMaxima, L"Pot. máxima (W):", {0.01, 1e10, [](const P& p) { return p.iOrigen == 1; }}},
});
constexpr auto kSeparador = ui::Campos<P>({
    {.miembro = &P::iSeparador,
     .rotulo = L"Separador:",
     .entradas = kSeparadores,
     .indicacion = L"Lo que hay entre un valor y el siguiente"},
});

bool SonPeriodos(const int (&aiPeriodoHora)[24])
{
    return std::ranges::all_of(aiPeriodoHora, [](int i) { return i >= 0 && i < efv::kPeriodosTarifa; });
}

}  // namespace

CString efv::consumption::RotuloHorarioOficial(double dHusoHorario)
{
    return fmt::format(L"Horario oficial (GMT{}{:.0f})", numero::MayorIgual(dHusoHorario, 0.0) ? L'+' : L'-',
                       std::abs(dHusoHorario) / 15.0);
}

CDlgDatosConsumoHoraHora::CDlgDatosConsumoHoraHora(const P& inicial, std::span<efv::PatronConsumo> patrones)
    : DialogoFicha("CDlgDatosConsumoHoraHora", L"Datos de consumo hora a hora", inicial, {}),
      m_patrones(patrones)
{
    bMaximizable = true;
    m_items.reserve(patrones.size());
    for (const efv::PatronConsumo& patron : patrones) {
        CItemConsumo& item = m_items.emplace_back();
        item.csNombre = patron.csTitulo;
        item.csDescripcion = patron.csConsejo;
        efv::AnoDeSemana(patron.adFactor, item.dConsumoHora);
    }
    AnadirControles();
    ConectarControles();
    Volcar();
    Habilitar();
    RedactarPatron();
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

ui::Seleccion& CDlgDatosConsumoHoraHora::AnadirEleccion(int P::*miembro, std::wstring_view rotulo,
                                                        ui::Seleccion::Forma forma,
                                                        std::vector<CString> acsEntradas)
{
    auto& eleccion = Anadir<ui::Seleccion>(ui::NombreDeCampo(miembro), rotulo, forma);
    eleccion.acsEntradas = std::move(acsEntradas);
    eleccion.destino = &(datos.*miembro);
    return eleccion;
}

void CDlgDatosConsumoHoraHora::AnadirControles()
{
    using Forma = ui::Seleccion::Forma;
    std::vector<CString> acsPeriodos = efv::consumption::NombresDeMeses();
    acsPeriodos.emplace_back(L"Año completo");
    m_periodo = &AnadirEleccion(&P::iPeriodo, L"Período de datos de consumo:", Forma::combo, acsPeriodos);
    m_periodo->csIndicacion = L"Las horas que ocupan los datos: las de un mes o las del año";
    m_origen = &AnadirEleccion(&P::iOrigen, L"", Forma::radio, {kOrigenes.begin(), kOrigenes.end()});
    m_patron = &AnadirEleccion(&P::iPatron, L"", Forma::combo, Titulos());
    m_patron->csIndicacion = L"Patrón de consumo tipo";
    m_origen->csIndicacion = L"Lo que se escribe abajo, o el patrón por la potencia máxima";
    m_editar = &Anadir<ui::Boton>("", L"...");
    m_editar->colocacion = ui::JuntoA(*m_patron);
    m_editar->csIndicacion = L"Configurar el patrón";
    Anadir(kPotencia);
    m_consejo = &Anadir<ui::Edicion>("csDescripcion", L"");
    m_consejo->bSoloLectura = true;
    m_consejo->bVariasLineas = true;
    AnadirHorario();
    Anadir(kSeparador);
    m_importar = &Anadir<ui::Boton>("", L"Importar datos ...");
    m_importar->csIndicacion = L"Lee los valores de un fichero de texto";
    Anadir<ui::Boton>("", L"Exportar datos ...").alPulsar = [this] { AlExportar(); };
    m_meses = &Anadir<ui::Boton>("", L"Datos mensuales ...");
    m_meses->csIndicacion = L"Reparte entre las horas la energía de cada mes";
    m_texto = &Anadir<ui::Edicion>("csTexto", L"");
    m_texto->bVariasLineas = true;
    m_texto->colocacion.bEstirar = true;
    PonerUnidad();
}

// No hours are ever converted to the official time: nobody gets to see the choice.
void CDlgDatosConsumoHoraHora::AnadirHorario()
{
    auto& horario = Anadir<ui::Seleccion>("iHorario", L"", ui::Seleccion::Forma::radio);
    horario.acsEntradas = {L"Horario solar", efv::consumption::RotuloHorarioOficial(datos.dHusoHorario)};
    horario.iSeleccion = 0;
    horario.bVisible = false;
    horario.bHabilitado = false;
}

void CDlgDatosConsumoHoraHora::ConectarControles()
{
    // Period and separator are only stored: the text stays as it is.
    m_periodo->alElegir = [this] { datos.iPeriodo = m_periodo->iSeleccion; };
    auto& separador = De<ui::Seleccion>(&P::iSeparador);
    separador.alElegir = [this, &separador] { datos.iSeparador = separador.iSeleccion; };
    m_origen->alElegir = [this] { AlElegirOrigen(); };
    m_patron->alElegir = [this] { AlElegirPatron(); };
    ui::Edicion& potencia = De(&P::dPotMaxima);
    potencia.alCambiar = [this] { m_bCambioPotencia = true; };
    potencia.alSalir = [this] { AlSalirDePotencia(); };
    m_editar->alPulsar = [this] { AlEditarPatron(); };
    m_importar->alPulsar = [this] { AlImportar(); };
    m_meses->alPulsar = [this] { AlPedirMeses(); };
}

void CDlgDatosConsumoHoraHora::Habilitar()
{
    const bool bPatron = datos.iOrigen != 0;
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{m_patron, &De(&P::dPotMaxima), m_consejo, m_editar})
        control->bHabilitado = bPatron;
    m_importar->bHabilitado = !bPatron;
    m_meses->bHabilitado = !bPatron;
}

void CDlgDatosConsumoHoraHora::PonerUnidad()
{
    m_texto->csRotulo =
        datos.iUnidad == 1 ? L"Datos de consumo horario (kWh): " : L"Datos de consumo horario (Wh): ";
}

// ---------------------------------------------------------------------------------------------------
// Text
// ---------------------------------------------------------------------------------------------------

const CItemConsumo& CDlgDatosConsumoHoraHora::Patron() const
{
    efv::ComprobarIndice(datos.iPatron, m_items.size());
    return m_items[static_cast<std::size_t>(datos.iPatron)];
}

std::vector<CString> CDlgDatosConsumoHoraHora::Titulos() const
{
    std::vector<CString> titulos;
    for (const CItemConsumo& item : m_items)
        titulos.push_back(item.csNombre);
    return titulos;
}

void CDlgDatosConsumoHoraHora::PonerTexto(double dEscala, efv::AnoHorarioVista ano)
{
    m_texto->csTexto = efv::TextoDeHoras(ano, dEscala, efv::HorasDePeriodo(datos.iPeriodo),
                                         efv::CaracterSeparador(datos.iSeparador));
}

void CDlgDatosConsumoHoraHora::RedactarPatron()
{
    const CItemConsumo& patron = Patron();
    m_consejo->csTexto = patron.csDescripcion;
    if (datos.iOrigen == 1)
        PonerTexto(datos.dPotMaxima, patron.dConsumoHora);
}

void CDlgDatosConsumoHoraHora::AlElegirOrigen()
{
    datos.iOrigen = m_origen->iSeleccion;
    Habilitar();
    if (datos.iOrigen == 1)
        RedactarPatron();
}

void CDlgDatosConsumoHoraHora::AlElegirPatron()
{
    datos.iPatron = m_patron->iSeleccion;
    RedactarPatron();
}

void CDlgDatosConsumoHoraHora::AlSalirDePotencia()
{
    if (!m_bCambioPotencia || Recoger())  // what is wrong with a field is told on acceptance
        return;
    m_bCambioPotencia = false;
    RedactarPatron();
}

bool CDlgDatosConsumoHoraHora::AlAceptar()
{
    const efv::FormatoValores formato{datos.iPeriodo, datos.iUnidad != 0, datos.iTiempo == 1};
    const int nEsperados = efv::ValoresEsperados(formato);
    const auto valores =
        efv::LeerValores(m_texto->csTexto, efv::CaracterSeparador(datos.iSeparador), nEsperados);
    if (std::ssize(valores) < nEsperados &&
        !ui::Preguntar(fmt::format(L"El número de valores leidos ({}), es inferior al número de valores "
                                   L"esperados ({}). ¿Desea continuar y almacenar estos valores?",
                                   valores.size(), nEsperados)))
        return false;
    efv::AsignarValores(valores, formato, *adHoras);
    for (std::size_t i = 0; i < m_items.size(); ++i)
        m_patrones[i].adFactor = efv::SemanaDeAno(m_items[i].dConsumoHora);
    return true;
}

// ---------------------------------------------------------------------------------------------------
// Other dialogs and files
// ---------------------------------------------------------------------------------------------------

void CDlgDatosConsumoHoraHora::AlEditarPatron()
{
    if (!RecogerAvisando())
        return;
    CDlgConfigPatronConsumo dialogo(efv::SemanaDeAno(Patron().dConsumoHora));
    if (dialogo.Mostrar() != ok)
        return;
    efv::AnoDeSemana(dialogo.semana, m_items[static_cast<std::size_t>(datos.iPatron)].dConsumoHora);
    RedactarPatron();
}

void CDlgDatosConsumoHoraHora::AlPedirMeses()
{
    if (!SonPeriodos(datos.aiPeriodoHora)) {
        ui::MostrarAviso(L"Los períodos tarifarios de las horas del día deben ser P1, P2 o P3.",
                         ui::Icono::error);
        return;
    }
    efv::consumption::DatosConsumoMes meses;
    std::ranges::copy(std::span(&datos.adMes[0][0], 72), &meses.adMes[0][0]);
    std::ranges::copy(datos.aiPeriodoHora, meses.aiPeriodoHora);
    meses.iPatron = datos.iPatron;
    CDlgDatosConsumoMes dialogo(meses, Titulos());
    if (dialogo.Mostrar() != ok)
        return;
    std::ranges::copy(std::span(&dialogo.datos.adMes[0][0], 72), &datos.adMes[0][0]);
    std::ranges::copy(dialogo.datos.aiPeriodoHora, datos.aiPeriodoHora);
    datos.iPatron = dialogo.datos.iPatron;
    const CItemConsumo& patron = Patron();
    efv::RepartirMeses(datos.adMes, datos.aiPeriodoHora, patron.dConsumoHora, *adHoras);
    m_patron->iSeleccion = datos.iPatron;
    m_consejo->csTexto = patron.csDescripcion;
    PonerTexto(kWhPorKWh, *adHoras);
}

void CDlgDatosConsumoHoraHora::AlImportar()
{
    CDlgConfigImportConsumo dialogo({datos.iUnidad, datos.iTiempo, {}},
                                    CDlgConfigImportConsumo::Modo::importar);
    if (dialogo.Mostrar() != ok)
        return;
    const auto csTexto = ui::LeerTextoImportado(dialogo.datos.csArchivo);
    if (!csTexto)
        return;
    datos.iUnidad = dialogo.datos.iUnidad;
    datos.iTiempo = dialogo.datos.iTiempo;
    m_texto->csTexto = efv::NormalizarValores(*csTexto, efv::CaracterSeparador(datos.iSeparador));
    PonerUnidad();
}

void CDlgDatosConsumoHoraHora::AlExportar()
{
    CDlgConfigImportConsumo dialogo({datos.iUnidad, datos.iTiempo, {}},
                                    CDlgConfigImportConsumo::Modo::exportar);
    if (dialogo.Mostrar() == ok)
        ui::GuardarTextoExportado(dialogo.datos.csArchivo, m_texto->csTexto);
}

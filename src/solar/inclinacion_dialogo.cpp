#include "solar/inclinacion_dialogo.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <fmt/xchar.h>

#include "platform/numero/conversion.h"
#include "solar/calendario.h"
#include "solar/inclinacion_optima.h"

namespace {

namespace ui = efv::ui;
using efv::numero::nuConvertFltToIntlStr;
using efv::solar::DatosInclinacion;

constexpr std::wstring_view kSimulacion = L"Simulación";
constexpr int kAnual = 12;
constexpr int kRetardo = 500;  // ms, so that the window shows before the simulation keeps it busy
constexpr ui::Color kColorActual = 0x808040;
constexpr int kTrazoContinuo = 1;
constexpr int kTrazoDePuntos = 3;

constexpr auto kActual = ui::Campos<DatosInclinacion>({
    {&DatosInclinacion::dInclinacionActual, L"Inclinación actual (º):", {0, 90}},
});
constexpr auto kOptima = ui::Campos<DatosInclinacion>({
    {&DatosInclinacion::dInclinacionOptima, L"Inclinación óptima (º):"},
});

std::vector<CString> Meses()
{
    std::vector<CString> meses;
    meses.reserve(kAnual);
    for (int m = 0; m < kAnual; ++m)
        meses.emplace_back(efv::solar::NombreMes(m));
    meses.emplace_back(L"Anual");
    return meses;
}

CString Total(double dInclinacion, double dTotal)
{
    return fmt::format(L"RiTotal ({}º): {} w/m²·año", nuConvertFltToIntlStr(dInclinacion, 2),
                       nuConvertFltToIntlStr(dTotal, 0));
}

ui::SerieCurva Serie(const efv::solar::CurvaDiaria& curva, ui::Color color, bool bEnUso, const wchar_t* nombre)
{
    ui::SerieCurva serie = efv::solar::SerieDeDias(curva, color, nombre);
    serie.iEstilo = bEnUso ? kTrazoContinuo : kTrazoDePuntos;
    return serie;
}

}  // namespace

CDlgCalculoInclinacionPanel::CDlgCalculoInclinacionPanel(const efv::solar::EstudioInclinacion& estudio)
    : DialogoFicha("CDlgCalculoInclinacionPanel", L"Estudio de la inclinación",
                   {.dInclinacionActual = estudio.dInclinacionActual}, {}),
      radInclinada(efv::solar::kHorasBloque),
      radHorizontal(estudio.radHorizontal),
      m_plano{estudio.fuente, estudio.dDatoSitio, estudio.dLatitud, estudio.dOrientacion}
{
    radHorizontal.resize(efv::solar::kHorasBloque);
    if (!estudio.bEditable) {
        bAceptarVisible = false;
        csCancelar = L"Cerrar";
    }
    bMaximizable = true;
    AnadirControles();
    Volcar();
    CalcularCurvas();
    iTemporizador = kRetardo;
}

void CDlgCalculoInclinacionPanel::AnadirControles()
{
    m_opcion = &Anadir<ui::Seleccion>("iOpcion", L"", ui::Seleccion::Forma::radio);
    m_opcion->acsEntradas = {L"Actual:", L"Óptima:"};
    m_opcion->destino = &datos.iOpcion;
    m_opcion->csIndicacion = L"La inclinación que se toma al aceptar";
    m_opcion->alElegir = [this] { AlElegirOpcion(); };
    Anadir(kActual);
    auto& actual = De(&DatosInclinacion::dInclinacionActual);
    actual.alCambiar = [this] { m_bTecleada = true; };
    actual.alSalir = [this] { AlSalirDeActual(); };
    m_total1 = &Anadir<ui::TextoFijo>("dTotal1", L"");
    m_total1->colocacion = ui::JuntoA(actual);
    m_total1->color = kColorActual;
    Anadir(kOptima);
    auto& optima = De(&DatosInclinacion::dInclinacionOptima);
    optima.bSoloLectura = true;
    optima.intercambio = ui::Intercambio::soloMuestra;
    m_mes = &Anadir<ui::Seleccion>("iMes", L"", ui::Seleccion::Forma::combo);
    m_mes->colocacion = ui::JuntoA(optima);
    m_mes->acsEntradas = Meses();
    m_mes->csIndicacion = L"El mes, o el año, en que esa inclinación recibe más radiación";
    m_mes->destino = &datos.iMes;
    m_mes->bHabilitado = false;
    m_mes->alElegir = [this] { AlElegirMes(); };
    m_total2 = &Anadir<ui::TextoFijo>("dTotal2", L"");
    m_total2->colocacion = ui::JuntoA(optima);
    m_total2->color = ui::kRojo;
    m_simulacion = &Anadir<ui::TextoFijo>("csSimulacion", L"");
    m_simulacion->csTexto = kSimulacion;
    m_progreso = &Anadir<ui::Progreso>("progreso", L"");
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.bEstirar = true;
}

void CDlgCalculoInclinacionPanel::AlElegirOpcion()
{
    datos.iOpcion = m_opcion->iSeleccion;
    m_mes->bHabilitado = datos.iOpcion == 1;
    De(&DatosInclinacion::dInclinacionActual).bSoloLectura = datos.iOpcion == 1;
    if (datos.iOpcion == 1)
        MostrarOptima(m_mes->iSeleccion);
    CalcularCurvas();
}

void CDlgCalculoInclinacionPanel::AlElegirMes()
{
    MostrarOptima(m_mes->iSeleccion);
    CalcularCurvas();
}

void CDlgCalculoInclinacionPanel::AlSalirDeActual()
{
    if (std::exchange(m_bTecleada, false) && RecogerAvisando())
        CalcularCurvas();
}

void CDlgCalculoInclinacionPanel::AlVencerTemporizador()
{
    iTemporizador = 0;
    Simular();
}

void CDlgCalculoInclinacionPanel::Simular()
{
    const CString csAntes = m_simulacion->csTexto;
    m_simulacion->csTexto = csAntes + L" - [Realizando simulación diaria]";
    // One step more than there are tilts, and more for the degrees that aren't whole: the end is set.
    const int iPasos =
        efv::numero::Entero(std::max(std::abs(m_plano.dLatitud), 10.0) / efv::solar::kPasoEstudio + 1.0);
    const efv::clima::SitioCielo sitio{m_plano.dDatoSitio, m_plano.dLatitud, efv::solar::kHumedadNormal,
                                       efv::solar::TemperaturasNormales()};
    const auto optimos = efv::solar::BuscarOptimos(efv::clima::BibliotecaActual(), sitio, m_plano.dOrientacion,
                                                   efv::solar::kPasoEstudio, [&](std::size_t nRondas) {
                                                       m_progreso->dFraccion =
                                                           static_cast<double>(nRondas) / iPasos;
                                                       ui::PresentadorActual().Refrescar(*this);
                                                   });
    std::ranges::transform(optimos, aInclinacionOptima.begin(), &efv::solar::Optimo::dInclinacion);
    MostrarOptima(kAnual);
    CalcularCurvas();
    m_simulacion->csTexto = csAntes;
    m_progreso->dFraccion = 1.0;
}

void CDlgCalculoInclinacionPanel::MostrarOptima(int iMes)
{
    datos.dInclinacionOptima = aInclinacionOptima.at(static_cast<std::size_t>(iMes));
    De(&DatosInclinacion::dInclinacionOptima).csTexto = nuConvertFltToIntlStr(datos.dInclinacionOptima, 2);
}

void CDlgCalculoInclinacionPanel::CalcularCurvas()
{
    const auto calcular = [this](double dInclinacion) {
        efv::solar::RadiarPlano(efv::clima::BibliotecaActual(), m_plano, dInclinacion,
                                efv::solar::BloqueHoras(radInclinada), efv::solar::BloqueHoras(radHorizontal));
        return efv::solar::SumarDias(std::span<const double, efv::solar::kHorasBloque>(radInclinada));
    };
    const auto actual = calcular(datos.dInclinacionActual);
    const auto optima = calcular(datos.dInclinacionOptima);
    dTotal1 = actual.dTotal;
    dTotal2 = optima.dTotal;
    m_total1->csTexto = Total(datos.dInclinacionActual, dTotal1);
    m_total2->csTexto = Total(datos.dInclinacionOptima, dTotal2);
    m_grafica->datos = efv::solar::GraficaRadiacion(efv::solar::TituloRadiacion(m_plano),
                                                    {Serie(actual, kColorActual, datos.iOpcion == 0, L"Actual"),
                                                     Serie(optima, ui::kRojo, datos.iOpcion == 1, L"Óptima")});
}

namespace efv::solar {

bool EstudiarInclinacion(EstudioInclinacion& estudio)
{
    CDlgCalculoInclinacionPanel dialogo(estudio);
    if (dialogo.Mostrar() != ui::Dialogo::ok || !estudio.bEditable)
        return false;
    estudio.dInclinacionActual = dialogo.datos.Elegida();
    return true;
}

}  // namespace efv::solar

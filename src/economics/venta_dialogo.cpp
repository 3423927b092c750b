#include "economics/venta_dialogo.h"

#include <cmath>
#include <memory>
#include <utility>

namespace {

namespace ui = efv::ui;
namespace ec = efv::economics;
using R = CSFVCalculoEconomico;

constexpr ui::Colocacion kEnergia{.grupo = L"Energía"};
constexpr ui::Colocacion kCoste{.grupo = L"Coste (€)"};
constexpr ui::Colocacion kFinanciacion{.grupo = L"Financiación", .iColumna = 1};
constexpr ui::Colocacion kPrima{.grupo = L"Precio de venta (€/kWh)", .iColumna = 2};
constexpr ui::Colocacion kEstudio{.grupo = L"Estudio", .iColumna = 2};

constexpr int kDecimalesFija = 5;
constexpr int kDecimalesVariable = 6;
constexpr auto kMetodos = std::to_array<std::wstring_view>({L"Método Frances", L"Método Alemán"});

constexpr auto kPotencia =
    ui::Campos<R>({{.miembro = &R::bPotenciaGenerador, .rotulo = L"Potencia del Generador:", .casilla = true}});
constexpr auto kPotenciaW = ui::Campos<R>(
    {{.miembro = &R::dPotenciaGenerador, .rotulo = L"", .limites = {0, 1e8}, .junto = &R::bPotenciaGenerador}});
constexpr auto kRatio = ui::Campos<R>(
    {{.miembro = &R::bPerformanceRatio, .rotulo = L"Performance Ratio de la instalación:", .casilla = true}});
constexpr auto kRatioPorCien = ui::Campos<R>(
    {{.miembro = &R::dPerformanceRatio, .rotulo = L"", .limites = {1, 100}, .junto = &R::bPerformanceRatio}});
constexpr auto kEnergias = ui::Campos<R>({
    {&R::dEnergiaInstalacion, L"Energía de la instalación:"},
    {&R::dFactorMejora, L"Factor de mejora energética:"},
});
constexpr auto kEnergiaResultante = ui::Campos<R>({{&R::dEnergiaResultante, L"Energía resultante anual:"}});

constexpr auto kPrimas = ui::Campos<R>({
    {.miembro = &R::dPrimaFija, .rotulo = L"Fija:", .decimales = kDecimalesFija},
    {.miembro = &R::dPrimaVariableA, .rotulo = L"Variable:", .decimales = kDecimalesVariable},
    {.miembro = &R::dPrimaVariableB,
     .rotulo = L"",
     .decimales = kDecimalesVariable,
     .junto = &R::dPrimaVariableA},
});
constexpr auto kPrimaSumada =
    ui::Campos<R>({{.miembro = &R::dPrimaVariable, .rotulo = L"", .decimales = kDecimalesVariable}});
constexpr auto kRendimiento = ui::Campos<R>({{&R::dRendimientoInicial, L"Rendimiento inicial:"}});

constexpr auto kCostes = ui::Campos<R>({
    {&R::dRepercusion, L"Repercusión:"},
    {&R::dCosteInstalacion, L"Coste de la instalación:"},
});
constexpr auto kCosteElegible = ui::Campos<R>({{&R::dCosteElegible, L"Coste elegible:"}});

// What is typed and what it comes to share a line.
constexpr auto kSubvenciones = ui::Campos<R>({
    {&R::dSubvencionCCAA, L"Subvencion CCAA :"},
    {&R::dAmortizacionIDAE, L"Amortización IDAE: "},
    {&R::dBonificacionICO, L"Bonificación int. ICO:"},
    {&R::dAportacionInicial, L"Aportación inicial:"},
});
constexpr auto kImportes = ui::Campos<R>({
    {.miembro = &R::dImporteSubvencion, .rotulo = L""},
    {.miembro = &R::dImporteIDAE, .rotulo = L""},
    {.miembro = &R::dImporteICO, .rotulo = L""},
    {&R::dTotalPrestamos, L"Total prestamos:"},
});
constexpr auto kPrestamo = ui::Campos<R>({
    {&R::dTipoInteres, L"Tipo de interés:"},
    {&R::dAniosPrestamo, L"Nº de años del prestamo solicitado:"},
});
constexpr auto kMetodo = ui::Campos<R>(
    {{.miembro = &R::iTipoAmortizacion,
      .rotulo = L"Tipo de amortización: ",
      .entradas = kMetodos,
      .indicacion =
          L"Con cuotas iguales (francés), o devolviendo cada año lo mismo más sus intereses (alemán)"}});
constexpr auto kPagos = ui::Campos<R>({
    {&R::dTotalPagar, L"Total a pagar en el prestamos:"},
    {&R::dCuotaAnual, L"Cuota anual:"},
});
// After the loan's years, which it is compared with as they were typed.
constexpr auto kAnos = ui::Campos<R>({
    {&R::dAniosEstudio, L"Número de años a estudiar:", {&R::dAniosPrestamo, 200}},
    {&R::dVariacionCoste, L"Variación anual del coste electrico:"},
    {&R::dEnvejecimiento, L"Indice de envejecimiento anual:"},
    {&R::dCosteMantenimiento, L"Coste mantenimiento (% ingresos):"},
});
constexpr auto kTasa = ui::Campos<R>({{&R::dTIR, L"Tasa Interna de Retorno (TIR):"}});

/// The table's texts.
class FilasDeAnos final : public ui::ModeloFilas {
public:
    explicit FilasDeAnos(std::vector<ec::FilaVenta> filas) : m_filas(std::move(filas)) {}

    int Filas() const override { return static_cast<int>(m_filas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return m_filas.at(static_cast<std::size_t>(iFila)).at(static_cast<std::size_t>(iColumna));
    }

private:
    std::vector<ec::FilaVenta> m_filas;
};

}  // namespace

CDlgCalculoEconomicoRed::CDlgCalculoEconomicoRed(const R& inicial)
    : DialogoFicha("CDlgCalculoEconomicoRed", L"Datos económicos", inicial, {})
{
    bMaximizable = true;
    datos.Reset();
    AnadirEnergia();
    AnadirCoste();
    AnadirFinanciacion();
    AnadirPrima();
    AnadirEstudio();
    Volcar();
    Recalcular();
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

// A change calls for a calculation when the field is left.
template <std::size_t N>
void CDlgCalculoEconomicoRed::AnadirTecleados(const std::array<ui::Campo<R>, N>& campos,
                                              const ui::Colocacion& colocacion)
{
    Anadir(campos, colocacion);
    for (const auto& campo : campos) {
        auto& edicion = De<ui::Edicion>(campo.miembro);
        edicion.alCambiar = [this] { m_bModificado = true; };
        edicion.alSalir = [this] {
            if (m_bModificado)
                Recalcular();
        };
    }
}

template <std::size_t N>
void CDlgCalculoEconomicoRed::AnadirCalculados(const std::array<ui::Campo<R>, N>& campos,
                                               const ui::Colocacion& colocacion)
{
    Anadir(campos, colocacion);
    for (const auto& campo : campos) {
        auto& edicion = De<ui::Edicion>(campo.miembro);
        edicion.bSoloLectura = true;
        m_calculados.push_back(&edicion);
    }
}

ui::Seleccion& CDlgCalculoEconomicoRed::AnadirEleccion(int R::*miembro, std::wstring_view rotulo,
                                                       std::vector<CString> acsEntradas,
                                                       const ui::Colocacion& colocacion)
{
    auto& combo = Anadir<ui::Seleccion>(ui::NombreDeCampo(miembro), rotulo, ui::Seleccion::Forma::combo);
    combo.acsEntradas = std::move(acsEntradas);
    combo.destino = &(datos.*miembro);
    combo.colocacion = colocacion;
    combo.alElegir = [this] { Recalcular(); };
    return combo;
}

// A tick only opens its field.
void CDlgCalculoEconomicoRed::Abrir(int R::*marca, double R::*campo)
{
    auto& casilla = De<ui::Casilla>(marca);
    casilla.alCambiar = [this, &casilla, campo] { De(campo).bSoloLectura = !casilla.bMarcada; };
}

void CDlgCalculoEconomicoRed::AnadirEnergia()
{
    Anadir(kPotencia, kEnergia);
    AnadirTecleados(kPotenciaW, kEnergia);
    Anadir(kRatio, kEnergia);
    AnadirTecleados(kRatioPorCien, kEnergia);
    Abrir(&R::bPotenciaGenerador, &R::dPotenciaGenerador);
    Abrir(&R::bPerformanceRatio, &R::dPerformanceRatio);
    for (const auto miembro : {&R::bPotenciaGenerador, &R::bPerformanceRatio})
        De(miembro).csIndicacion = L"Permite escribir otro valor";
    AnadirTecleados(kEnergias, kEnergia);
    AnadirCalculados(kEnergiaResultante, kEnergia);
}

void CDlgCalculoEconomicoRed::AnadirPrima()
{
    m_tipoPrima = &AnadirEleccion(&R::iTipoPrima, L"Prima:", {L"Fija", L"Variable"}, kPrima);
    m_tipoPrima->csIndicacion = L"El precio de venta que se usa";
    AnadirTecleados(kPrimas, kPrima);
    AnadirCalculados(kPrimaSumada, ui::JuntoA(De(&R::dPrimaVariableA)));
    AnadirCalculados(kRendimiento, kPrima);
}

void CDlgCalculoEconomicoRed::AnadirCoste()
{
    m_tipoCoste =
        &AnadirEleccion(&R::iTipoCoste, L"Coste:", {L"Según la repercusión", L"Según el coste"}, kCoste);
    m_tipoCoste->csIndicacion = L"Se escribe uno de los dos y el otro se calcula";
    AnadirTecleados(kCostes, kCoste);
    AnadirCalculados(kCosteElegible, kCoste);
}

void CDlgCalculoEconomicoRed::AnadirFinanciacion()
{
    AnadirTecleados(kSubvenciones, kFinanciacion);
    AnadirCalculados(kImportes, kFinanciacion);
    De(&R::dImporteSubvencion).colocacion = ui::JuntoA(De(&R::dSubvencionCCAA));
    De(&R::dImporteIDAE).colocacion = ui::JuntoA(De(&R::dAmortizacionIDAE));
    De(&R::dImporteICO).colocacion = ui::JuntoA(De(&R::dBonificacionICO));
    AnadirTecleados(kPrestamo, kFinanciacion);
    Anadir(kMetodo, kFinanciacion);
    De<ui::Seleccion>(&R::iTipoAmortizacion).alElegir = [this] { Recalcular(); };
    AnadirCalculados(kPagos, kFinanciacion);
}

void CDlgCalculoEconomicoRed::AnadirEstudio()
{
    AnadirTecleados(kAnos, kEstudio);
    AnadirCalculados(kTasa, kEstudio);
    m_serie = &Anadir<ui::Seleccion>("iSerie", L"Gráfica:", ui::Seleccion::Forma::combo);
    m_serie->acsEntradas.assign(ec::NombresSeriesVenta().begin(), ec::NombresSeriesVenta().end());
    m_serie->iSeleccion = static_cast<int>(ec::SerieVenta::cashFlow);
    m_serie->colocacion = kEstudio;
    m_serie->alElegir = [this] { Recalcular(); };
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.bEstirar = true;
    m_lista = &Anadir<ui::Lista>("lista", L"", ui::Lista::Forma::tabla);
    m_lista->acsColumnas.assign(ec::TitulosVenta().begin(), ec::TitulosVenta().end());
    m_lista->otras = ui::Alineacion::derecha;
    m_lista->bColumnasIguales = true;
    m_lista->colocacion.bEstirar = true;
}

// ---------------------------------------------------------------------------------------------------
// Calculation
// ---------------------------------------------------------------------------------------------------

void CDlgCalculoEconomicoRed::Recalcular()
{
    m_bModificado = false;
    MostrarEstados();
    if (!RecogerAvisando())
        return;
    ec::CalcularImportes(datos);
    auto filas = ec::CalcularAnosPorTexto(datos);
    ec::CalcularTIR(datos);
    m_lista->modelo = std::make_shared<FilasDeAnos>(std::move(filas));
    m_lista->iSeleccion = -1;
    ++m_lista->uVersion;
    m_grafica->datos = ec::GraficaVenta(datos, static_cast<ec::SerieVenta>(m_serie->iSeleccion));
    Volcar();
    MarcarRecogidos();
}

// What the choices open, also when a field's fault keeps them from being calculated.
void CDlgCalculoEconomicoRed::MostrarEstados()
{
    const bool bFija = m_tipoPrima->iSeleccion == 0;
    const bool bRepercusion = m_tipoCoste->iSeleccion == 0;
    De(&R::dPotenciaGenerador).bSoloLectura = !De<ui::Casilla>(&R::bPotenciaGenerador).bMarcada;
    De(&R::dPerformanceRatio).bSoloLectura = !De<ui::Casilla>(&R::bPerformanceRatio).bMarcada;
    De(&R::dPrimaFija).bHabilitado = bFija;
    De(&R::dPrimaVariableA).bHabilitado = De(&R::dPrimaVariableB).bHabilitado = !bFija;
    De(&R::dRepercusion).bHabilitado = bRepercusion;
    De(&R::dCosteInstalacion).bHabilitado = !bRepercusion;
    De(&R::dCuotaAnual).csRotulo =
        De<ui::Seleccion>(&R::iTipoAmortizacion).iSeleccion == 1 ? L"Cuota anual media:" : L"Cuota anual:";
}

// A result that isn't finite has no text that could be taken back; the next calculation replaces it.
void CDlgCalculoEconomicoRed::MarcarRecogidos()
{
    const auto marcar = [](ui::Edicion& edicion, bool bCalculado) {
        const double d = **std::get_if<double*>(&edicion.destino);
        edicion.intercambio =
            bCalculado && !std::isfinite(d) ? ui::Intercambio::soloMuestra : ui::Intercambio::automatico;
    };
    for (ui::Edicion* edicion : m_calculados)
        marcar(*edicion, true);
    marcar(De(&R::dEnergiaInstalacion), true);
    marcar(De(&R::dRepercusion), datos.iTipoCoste != 0);
    marcar(De(&R::dCosteInstalacion), datos.iTipoCoste == 0);
}

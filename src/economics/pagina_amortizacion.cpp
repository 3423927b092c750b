#include "economics/pagina_amortizacion.h"

#include <cmath>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/ui/presentador.h>

#include "platform/numero/conversion.h"
#include "solar/calendario.h"
#include "ui/intercambio.h"

namespace efv::economics {

namespace {

using R = CSFVCalculoEconomicoAuto;
using numero::nuConvertFltToIntlStr;

constexpr ui::Colocacion kInstalacion{.grupo = L"Instalación"};
constexpr ui::Colocacion kFinanciacion{.grupo = L"Financiación", .iColumna = 1};
constexpr ui::Colocacion kBateria{.grupo = L"Resumen anual de batería"};

constexpr auto kElemento = ui::Campos<R>({
    {&R::dPotenciaPaneles, L"Potencia en campo de paneles (kWp):"},
    {&R::dPotenciaInversores, L"Potencia en inversores (kW):"},
    {&R::dEnergiaProducida, L"Energía anual producida (kWh):"},
    {&R::dEnergiaConsumida, L"Energía anual consumida (kWh):"},
    {&R::dPerformanceRatio, L"Performance Ratio de la instalación:"},
});
constexpr auto kVariacion = ui::Campos<R>({
    {&R::dEnvejecimiento, L"Índice anual de envejecimiento (%):"},
    {&R::dVariacionPrecio, L"Variación anual del precio eléctrico (%):"},
});
// The cost before the capital, which it limits.
constexpr auto kCapital = ui::Campos<R>({
    {&R::dCosteInstalacion, L"Coste de la instalación (€):"},
    {&R::dCapitalInicial, L"Capital inicial aportado (€):", {0, &R::dCosteInstalacion}},
    {&R::dTipoInteres, L"Tipo de interés de la financiación (%):"},
    {&R::dMesesFinanciacion, L"Número de meses de la financiación:"},
});
constexpr auto kResultados = ui::Campos<R>({
    {&R::dCapitalFinanciado, L"Capital sujeto a financiación (€):"},
    {&R::dIntereses, L"Intereses generados en el período (€):"},
    {&R::dCosteFinanciacion, L"Coste total de la financiación (€):"},
    {&R::dCosteTotal, L"Coste total de la instalación (€):"},
    {&R::dAniosRecuperacion, L"Número de años en recuperar la inversión:"},
});
constexpr auto kEditores =
    std::to_array<double R::*>({&R::dEnvejecimiento, &R::dVariacionPrecio, &R::dCosteInstalacion,
                                &R::dCapitalInicial, &R::dTipoInteres, &R::dMesesFinanciacion});

constexpr auto kColumnas = std::to_array<std::wstring_view>(
    {L"Mes", L"Autoconsumo (€)", L"Vertido (€)", L"Ahorro (€)", L"Acumulado (€)", L"Capital (€)"});
constexpr auto kLineasBateria = std::to_array<std::string_view>(
    {"Carga FV", "Carga red", "Descarga", "Coste degradación", "Ahorro neto batería"});

class FilasDeMeses final : public ui::ModeloFilas {
public:
    explicit FilasDeMeses(std::vector<FilaAmortizacion> filas) : m_filas(std::move(filas)) {}

    int Filas() const override { return static_cast<int>(m_filas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        const FilaAmortizacion& fila = m_filas.at(static_cast<std::size_t>(iFila));
        if (iColumna == 0)
            return fmt::format(
                L"{}-{}", fila.iMes,
                fila.iMes == 0 ? std::wstring_view(L"INIT") : solar::NombreMesCorto((fila.iMes - 1) % 12));
        const std::array<double, 5> adImportes{fila.dAutoconsumo, fila.dVertido, fila.dAhorro, fila.dAcumulado,
                                               fila.dCapital};
        return nuConvertFltToIntlStr(adImportes.at(static_cast<std::size_t>(iColumna - 1)), 2);
    }

private:
    std::vector<FilaAmortizacion> m_filas;
};

// What is left to be paid, month by month.
CCtrlCurva2D GraficaDeCapital(const std::vector<FilaAmortizacion>& filas)
{
    CCtrlCurva2D grafica;
    grafica.csTitulo = L"Desarrollo mensual del capital (€)";
    grafica.csTituloX = L"Mes";
    grafica.csTituloY = L"Capital (€)";
    ui::SerieCurva& serie = grafica.aSeries.emplace_back();
    serie.csNombre = L"Capital";
    serie.color = ui::kRojo;
    serie.iAncho = 2;
    for (const FilaAmortizacion& fila : filas) {
        serie.adX.push_back(fila.iMes);
        serie.adY.push_back(fila.dCapital);
    }
    return grafica;
}

// Two decimals with a point.
CString ConPunto(double d)
{
    return std::isnan(d) ? CString(L"nan") : fmt::format(L"{:.2f}", d);
}

}  // namespace

PaginaAmortizacion::PaginaAmortizacion(ui::Dialogo& dialogo, CCalculoEconomicoAutoSheet& hoja)
    : Pagina(dialogo, L"Amortización"), m_hoja(hoja)
{
    m_elemento = &Anadir<ui::Seleccion>("iSeleccion", L"Generador:", ui::Seleccion::Forma::combo);
    m_elemento->alElegir = [this] { AlElegirElemento(); };
    AnadirCampos();
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.iColumna = 1;
    m_lista = &Anadir<ui::Lista>("lista", L"", ui::Lista::Forma::tabla);
    m_lista->acsColumnas.assign(kColumnas.begin(), kColumnas.end());
    m_lista->alineaciones = {ui::Alineacion::izquierda};
    m_lista->otras = ui::Alineacion::derecha;
    m_lista->bColumnasIguales = true;
    m_lista->colocacion.bEstirar = true;
    alAbrir = [this] { AlAbrir(); };
    alFrente = [this] { AlFrente(); };
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

void PaginaAmortizacion::AnadirCampos()
{
    m_campos.Anadir(*this, kElemento, kInstalacion);
    m_campos.Anadir(*this, kVariacion, kInstalacion);
    AnadirBateria();
    m_campos.Anadir(*this, kCapital, kFinanciacion);
    m_campos.Anadir(*this, kResultados, kFinanciacion);
    const auto soloMostrar = [this](const auto& campos) {
        for (const auto& campo : campos) {
            auto& edicion = m_campos.De<ui::Edicion>(campo.miembro);
            edicion.bSoloLectura = true;
            edicion.intercambio = ui::Intercambio::soloMuestra;
        }
    };
    soloMostrar(kElemento);
    soloMostrar(kResultados);
    for (double R::*campo : kEditores) {
        ui::Edicion& edicion = m_campos.De(campo);
        ui::Volcar(edicion);  // a page that was never opened must not keep OK from closing the sheet
        edicion.alCambiar = [this] { m_bModificado = true; };
        edicion.alSalir = [this] { AlSalirDeCampo(); };
    }
}

void PaginaAmortizacion::AnadirBateria()
{
    for (std::size_t i = 0; i < m_bateria.size(); ++i) {
        m_bateria[i] = &Anadir<ui::TextoFijo>(kLineasBateria[i], L"");
        m_bateria[i]->bVisible = false;
        m_bateria[i]->colocacion = kBateria;
    }
}

// ---------------------------------------------------------------------------------------------------
// What happens
// ---------------------------------------------------------------------------------------------------

// It begins with the first element; that on view follows when the page comes to the front.
void PaginaAmortizacion::AlAbrir()
{
    m_elemento->acsEntradas = m_hoja.Referencias();
    m_elemento->acsEntradas.emplace_back(L"Global");
    MostrarElemento(0, false);
}

void PaginaAmortizacion::AlFrente()
{
    if (m_iMostrado != m_hoja.Elemento())
        MostrarElemento(m_hoja.Elemento(), false);
}

void PaginaAmortizacion::AlElegirElemento()
{
    m_hoja.Elegir(m_elemento->iSeleccion);
    MostrarElemento(m_elemento->iSeleccion, true);
}

void PaginaAmortizacion::AlSalirDeCampo()
{
    if (!std::exchange(m_bModificado, false) || !m_hoja.RecogerAvisando())
        return;
    Calcular(true);
    LlenarTabla();
}

void PaginaAmortizacion::MostrarElemento(int iElemento, bool bAvisar)
{
    m_iMostrado = iElemento;
    m_elemento->iSeleccion = iElemento;
    m_hoja.CopiarEnergias(iElemento);
    Cargar(iElemento);
    Calcular(bAvisar);
    LlenarTabla();
}

// ---------------------------------------------------------------------------------------------------
// Calculation
// ---------------------------------------------------------------------------------------------------

void PaginaAmortizacion::Cargar(int iElemento)
{
    const bool bGlobal = iElemento == m_hoja.Elementos();
    if (bGlobal) {
        std::vector<const R*> estudios;
        estudios.reserve(static_cast<std::size_t>(m_hoja.Elementos()));
        for (int i = 0; i < m_hoja.Elementos(); ++i)
            estudios.push_back(&m_hoja.Estudio(i));
        m_datos = EstudioGlobal(estudios);
    } else {
        m_datos = m_hoja.Estudio(iElemento);
    }
    for (double R::*campo : kEditores) {
        ui::Edicion& edicion = m_campos.De(campo);
        edicion.bSoloLectura = bGlobal;
        edicion.intercambio = bGlobal ? ui::Intercambio::soloMuestra : ui::Intercambio::automatico;
    }
}

void PaginaAmortizacion::Calcular(bool bAvisar)
{
    if (std::exchange(m_bOcupado, true))
        return;
    CalcularFinanciacion(m_datos);
    m_dinero = CalcularDinero(m_hoja.Horas(), m_hoja.Bateria(m_iMostrado));
    const Recuperacion recuperacion =
        CalcularRecuperacion(m_datos.dCosteTotal, m_dinero.dAhorro, FactorAnual(m_datos));
    m_datos.dAniosRecuperacion = recuperacion.dAnos;
    if (!recuperacion.bViable && bAvisar) {
        ui::PresentadorActual().MostrarMensaje(
            {L"Amortización no válida",
             L"Las condiciones de diseño, no ofrecen una solución viable. No se puede establecer un tiempo de "
             L"amortización valido.",
             ui::Icono::advertencia, ui::Botones::aceptar});
    }
    if (m_iMostrado < m_hoja.Elementos())
        m_hoja.Estudio(m_iMostrado) = m_datos;
    ResumirBateria();
    m_bOcupado = false;
}

void PaginaAmortizacion::LlenarTabla()
{
    for (const auto& campos : {&kElemento, &kResultados})
        for (const auto& campo : *campos)
            ui::Volcar(m_campos.De(campo.miembro));
    for (double R::*campo : kEditores)
        ui::Volcar(m_campos.De(campo));
    auto filas = TablaAmortizacion(m_datos, m_dinero, m_hoja.Horas(), m_hoja.Bateria(m_iMostrado));
    m_grafica->datos = GraficaDeCapital(filas);
    m_lista->modelo = std::make_shared<FilasDeMeses>(std::move(filas));
    m_lista->iSeleccion = -1;
    ++m_lista->uVersion;
}

void PaginaAmortizacion::ResumirBateria()
{
    const HorasBateria bateria = m_hoja.Bateria(m_iMostrado);
    const ResumenBateria resumen =
        bateria.HayResumen() ? economics::ResumirBateria(m_hoja.Horas(), bateria) : ResumenBateria{};
    const std::array<CString, 5> acsLineas{
        L"Carga FV: " + ConPunto(resumen.dCargaFV) + L" kWh",
        L"Carga red: " + ConPunto(resumen.dCargaRed) + L" kWh",
        L"Descarga: " + ConPunto(resumen.dDescarga) + L" kWh",
        L"Coste degradación: " + ConPunto(resumen.dCosteDegradacion) + L" €",
        L"Ahorro neto batería: " + ConPunto(resumen.dAhorroNeto) + L" €",
    };
    for (std::size_t i = 0; i < m_bateria.size(); ++i) {
        m_bateria[i]->bVisible = bateria.HayResumen() && !resumen.Vacio();
        m_bateria[i]->csTexto = acsLineas[i];
    }
}

}  // namespace efv::economics

#include "consumption/receptor_dialogo.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "consumption/franjas.h"
#include "consumption/horas_texto.h"
#include "consumption/mes_ano_dialogo.h"
#include "consumption/nombres.h"
#include "consumption/receptor_catalogo.h"
#include "platform/numero/conversion.h"
#include "solar/calendario.h"

namespace {

namespace ui = efv::ui;
using R = CSFVDataReceptor;

constexpr int kMinutosDia = 1440;
constexpr std::wstring_view kGrupoPlanificacion = L"Planificación";

// Decimal data of the catalogue, shown and never changed here.
struct DatoCatalogo {
    const char* nombre;
    double R::*campo;
    std::wstring_view rotulo;
};
constexpr auto kDatos = std::to_array<DatoCatalogo>({
    {"dPotencia", &R::dPotencia, L"Potencia de consumo (W):"},
    {"dVoltaje", &R::dVoltaje, L"Voltaje de servicio (V):"},
    {"dVoltajeMinimo", &R::dVoltajeMinimo, L"Voltaje mínimo de servicio (V):"},
    {"dRendimiento", &R::dRendimiento, L"Rendimiento (%):"},
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

CDlgDatosReceptor::CDlgDatosReceptor(efv::consumption::DatosReceptor inicial,
                                     const efv::catalogues::Bases& bases)
    : Dialogo("CDlgDatosReceptor", L"Datos del receptor eléctrico"), datos(std::move(inicial)), m_bases(bases)
{
    efv::ComprobarIndice(datos.iMes, 12);
    if (datos.bPedirCantidad != 0)
        datos.bModelo = 1;
    auto& referencia = Anadir<ui::Edicion>("csReferencia", L"Referencia:");
    referencia.destino = &datos.csReferencia;
    AnadirModelo();
    AnadirDatosCatalogo();
    AnadirPlanificacion();
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
    auto& modelo = Anadir<ui::Edicion>("csModelo", L"Modelo:");
    modelo.destino = &datos.receptor.csModelo;
    modelo.bSoloLectura = true;
    auto& conModelo = Anadir<ui::Casilla>("bModelo", L"");
    conModelo.destino = &datos.bModelo;
    conModelo.bHabilitado = datos.bPedirCantidad == 0;
    conModelo.alCambiar = [this, &conModelo] { m_elegir->bHabilitado = conModelo.bMarcada; };
    m_elegir = &Anadir<ui::Boton>("", L"...");
    m_elegir->bHabilitado = datos.bModelo != 0;
    m_elegir->alPulsar = [this] { AlElegirModelo(); };
    auto& cantidad = Anadir<ui::Edicion>("iCantidad", L"Cantidad:");
    cantidad.destino = &datos.receptor.iCantidad;
    cantidad.limites = ui::Intervalo{0, 10000};
    cantidad.bVisible = datos.bPedirCantidad != 0;
    auto& fabricante = Anadir<ui::Edicion>("csFabricante", L"Fabricante:");
    fabricante.destino = &datos.receptor.csFabricante;
    fabricante.bSoloLectura = true;
    fabricante.bVisible = datos.bPedirCantidad == 0;
    auto& excluir = Anadir<ui::Casilla>("bExcluir", L"Excluir del cálculo");
    excluir.destino = &datos.receptor.bNoCalcular;
}

void CDlgDatosReceptor::AnadirDatosCatalogo()
{
    for (const DatoCatalogo& dato : kDatos) {
        auto& campo = Anadir<ui::Edicion>(dato.nombre, dato.rotulo);
        campo.destino = &(datos.receptor.*dato.campo);
        // Shown to two decimals; taking them back would lose the others.
        campo.intercambio = ui::Intercambio::aMano;
        campo.bSoloLectura = true;
    }
    Anadir<ui::TextoFijo>("iTipoRed", L"Tipo de red:");
    Anadir<ui::TextoFijo>("iLuminaria", L"Luminaria: ");
}

void CDlgDatosReceptor::AnadirPlanificacion()
{
    const auto combo = [&](const char* nombre, std::wstring_view rotulo, std::vector<CString> acsEntradas,
                           int& iDestino, void (CDlgDatosReceptor::*alElegir)()) {
        auto& seleccion = Anadir<ui::Seleccion>(nombre, rotulo, ui::Seleccion::Forma::combo);
        seleccion.acsEntradas = std::move(acsEntradas);
        seleccion.destino = &iDestino;
        seleccion.alElegir = [this, alElegir] { (this->*alElegir)(); };
        seleccion.lugar.grupo = kGrupoPlanificacion;
    };
    combo("iMes", L"Mes:", efv::consumption::NombresDeMeses(), datos.iMes, &CDlgDatosReceptor::AlElegirMes);
    combo("iDiaTipo", L"Tipo de día:", efv::consumption::NombresDeDias(), datos.iDiaTipo,
          &CDlgDatosReceptor::AlElegirDiaTipo);
    m_unificar = &Anadir<ui::Seleccion>("", L"Unificar planificación", ui::Seleccion::Forma::menu);
    m_unificar->acsEntradas.assign(kUnificar.begin(), kUnificar.end());
    m_unificar->alElegir = [this] { AlUnificar(); };
    m_unificar->lugar.grupo = kGrupoPlanificacion;
    auto& horas = Anadir<ui::Edicion>("dHorasDia", L"Nº horas uso diario:");
    horas.destino = &datos.receptor.dHorasDia;
    horas.limites = ui::Intervalo{0, 24};
    horas.lugar.grupo = kGrupoPlanificacion;
}

void CDlgDatosReceptor::AnadirLimites()
{
    for (std::size_t i = 0; i < m_limites.size(); ++i) {
        auto& deslizador = Anadir<ui::Deslizador>("", kLimites[i]);
        deslizador.iMaximo = kMinutosDia;
        deslizador.iPasoGrande = 60;
        deslizador.leer = LeerMinutos;
        deslizador.alMover = [this, i] { AlMover(i); };
        deslizador.lugar.grupo = kGrupoPlanificacion;
        auto& lectura = Anadir<ui::TextoFijo>(fmt::format("csLectura[{}]", i), L"");
        lectura.lugar.grupo = kGrupoPlanificacion;
        m_limites[i] = {&deslizador, &lectura};
    }
    Anadir<ui::Grafica>("grafica", L"").lugar.bEstirar = true;
}

// ---------------------------------------------------------------------------------------------------
// What they show
// ---------------------------------------------------------------------------------------------------

void CDlgDatosReceptor::MostrarCatalogo()
{
    efv::consumption::RefrescarDeCatalogo(datos.receptor, m_bases.receptores);
    const R& receptor = datos.receptor;
    ControlDe<ui::Edicion>("csModelo").csTexto = receptor.csModelo;
    ControlDe<ui::Edicion>("csFabricante").csTexto = receptor.csFabricante;
    for (const DatoCatalogo& dato : kDatos)
        ControlDe<ui::Edicion>(dato.nombre).csTexto =
            efv::numero::nuConvertFltToIntlStr(receptor.*dato.campo, 2);
    ControlDe<ui::TextoFijo>("iTipoRed").csTexto = receptor.iTipoRed == 0 ? L"CC" : L"CA";
    ControlDe<ui::TextoFijo>("iLuminaria").csTexto = receptor.iLuminaria == 0 ? L"NO" : L"SI";
}

void CDlgDatosReceptor::MostrarFranjas()
{
    for (std::size_t i = 0; i < m_limites.size(); ++i)
        m_limites[i].deslizador->iValor = std::clamp(efv::numero::Entero(FranjasVisibles()[i]), 0, kMinutosDia);
    MostrarHoras();
}

void CDlgDatosReceptor::MostrarHoras()
{
    for (const Limite& limite : m_limites)
        limite.lectura->csTexto = limite.deslizador->Texto();
    datos.receptor.dHorasDia = efv::consumption::HorasMostradas(FranjasVisibles());
    ControlDe<ui::Edicion>("dHorasDia").csTexto =
        efv::numero::nuConvertFltToIntlStr(datos.receptor.dHorasDia, 2);
    CObArrayPropio<R> solo;
    R& receptor = solo.Add(std::make_unique<R>(datos.receptor));
    receptor.bNoCalcular = 0;
    if (datos.bPedirCantidad == 0)
        receptor.iCantidad = 1;
    ControlDe<ui::Grafica>("grafica").datos = efv::GraficaDiaDeReceptores(solo, datos.iMes, datos.iDiaTipo);
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
    datos.iMes = ControlDe<ui::Seleccion>("iMes").iSeleccion;
    datos.iDiaTipo = 0;
    ControlDe<ui::Seleccion>("iDiaTipo").iSeleccion = 0;
    MostrarFranjas();
}

void CDlgDatosReceptor::AlElegirDiaTipo()
{
    datos.iDiaTipo = ControlDe<ui::Seleccion>("iDiaTipo").iSeleccion;
    MostrarFranjas();
}

void CDlgDatosReceptor::AlMover(std::size_t i)
{
    FranjasVisibles()[i] = m_limites[i].deslizador->iValor;
    MostrarHoras();
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
    if (datos.csReferencia.empty()) {
        ui::MostrarAviso(L"El receptor no tiene una referencia válida.", ui::Icono::advertencia);
        return false;
    }
    if (datos.receptor.csModelo.empty()) {
        ui::MostrarAviso(L"El receptor no tiene seleccionado un modelo válido.", ui::Icono::advertencia);
        return false;
    }
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

#include "assistants/aislada_dialogo.h"

#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "assistants/perdidas_dialogo.h"
#include "assistants/regulacion_dialogo.h"
#include "consumption/receptor_dialogo.h"
#include "platform/numero/conversion.h"
#include "solar/calendario.h"
#include "solar/coordenadas_dialogo.h"
#include "solar/energia.h"

namespace {

namespace ui = efv::ui;
namespace as = efv::assistants;
namespace numero = efv::numero;
using V = as::ValoresAislada;

constexpr int kCategoriaPanel = 20413;
constexpr int kCategoriaRegulador = 20415;
constexpr int kCategoriaAcumulador = 20416;
constexpr std::wstring_view kRadiacion = L"Radiación solar";

constexpr ui::Lugar kAcumuladores{.iPagina = 0};
constexpr ui::Lugar kPaneles{.iPagina = 1};
constexpr ui::Lugar kPanelesDerecha{.iPagina = 1, .iColumna = 1};
constexpr ui::Lugar kRegulacion{.iPagina = 2};
constexpr ui::Lugar kPerdidas{.iPagina = 3};
constexpr ui::Lugar kSolucion{.iPagina = 4};

constexpr auto kTensiones = std::to_array<double>({12, 24, 36, 48, 60, 72});
constexpr auto kTiposSalida = std::to_array<std::wstring_view>({L"Monofasico", L"Trifasico"});

constexpr auto kCamposAcumulador = std::to_array<ui::Fila<V>>({
    {"dDiasAutonomia", &V::dDiasAutonomia, L"Días de autonomía:", {0.01, 365}, 0},
    {"dProfundidadDescarga", &V::dProfundidadDescarga, L"Profundidad de descarga ", {1, 100}, 0},
    {"iAcumuladoresSerie", &V::iAcumuladoresSerie, L"Nº de acumuladores por ramal:", {0, 100000}},
    {"iAcumuladoresParalelo", &V::iAcumuladoresParalelo, L"Nº de ramales en paralelo:", {0, 100000}},
});
constexpr auto kAcumuladorP = std::to_array<ui::Fila<V>>({
    {"iAcumuladoresSerieP", &V::iAcumuladoresSerieP, L""},
    {"iAcumuladoresParaleloP", &V::iAcumuladoresParaleloP, L""},
    {"dCapacidadResultanteP", &V::dCapacidadResultanteP, L""},
});
constexpr auto kCapacidades = std::to_array<ui::Fila<V>>({
    {"dCapacidadNecesaria", &V::dCapacidadNecesaria, L"Capacidad Nominal (Ah):"},
    {"dCapacidadResultante", &V::dCapacidadResultante, L"Capacidad Resultante (Ah):"},
});

constexpr auto kRamales = std::to_array<ui::Fila<V>>({
    {"iPanelesSerie", &V::iPanelesSerie, L"Nº de paneles por ramal:", {0, 100000}},
    {"iPanelesParalelo", &V::iPanelesParalelo, L"Nº de ramales en paralelo:", {0, 100000}},
});
constexpr auto kPanelP = std::to_array<ui::Fila<V>>({
    {"iPanelesSerieP", &V::iPanelesSerieP, L""},
    {"iPanelesParaleloP", &V::iPanelesParaleloP, L""},
    {"dPotenciaMinimaP", &V::dPotenciaMinimaP, L""},
    {"dPotenciaInstaladaP", &V::dPotenciaInstaladaP, L""},
    {"dHSPP", &V::dHSPP, L""},
});
constexpr auto kPotencias = std::to_array<ui::Fila<V>>({
    {"dPotenciaMinima", &V::dPotenciaMinima, L"Potencia mínima necesaria (Wp):"},
    {"dPotenciaInstalada", &V::dPotenciaInstalada, L"Potencia instalada (Wp):"},
    {"dHSP", &V::dHSP, L"Hora solar pico (H.S.P.):"},
});
constexpr auto kFilasDePaneles = std::to_array<ui::Fila<V>>({
    {"iPanelesPorFila", &V::dPanelesPorFila, L"Nº máximo de paneles por fila:", {0, 100000}, 0},
    {"dDistanciaPaneles", &V::dDistanciaPaneles, L"Distancia panel - panel (mm):", {0, 25000}, 0},
    {"dDistanciaFilas", &V::dDistanciaFilas, L"Distancia fila - fila (mm):", {0, 25000}, 0},
});

constexpr auto kTensionesFV = std::to_array<ui::Fila<V>>({
    {"dTensionMaxFV", &V::dTensionMaxFV, L"Tensión FV [máx, mín] (V):"},
    {"dTensionMinFV", &V::dTensionMinFV, L""},
});
constexpr auto kPotenciaFV =
    std::to_array<ui::Fila<V>>({{"dPotenciaMaxFV", &V::dPotenciaMaxFV, L"Potencia fotovoltaica máxima (W):"}});
constexpr auto kSalida = std::to_array<ui::Fila<V>>({
    {.nombre = "bSalidaCA",
     .campo = &V::bSalidaCA,
     .rotulo = L"Inversor con salida en CA (V):",
     .casilla = true},
    {"dTensionSalidaCA", &V::dTensionSalidaCA, L"", {0, 10000}},
    {.nombre = "iTipoSalidaCA",
     .campo = &V::iTipoSalidaCA,
     .rotulo = L"Tipo de salida (ca):",
     .entradas = kTiposSalida},
});

constexpr auto kEnergias = std::to_array<ui::Fila<V>>({
    {"dEnergiaCableado", &V::dEnergiaCableado, L"Energía perdida en el cableado (Wh):"},
    {"dEnergiaAcumulador", &V::dEnergiaAcumulador, L"Energía perdida en el acumulador (Wh):"},
    {"dEnergiaAcoplamiento", &V::dEnergiaAcoplamiento, L"Energía perdida por acoplamiento (Wh):"},
    {"dEnergiaNecesaria", &V::dEnergiaNecesaria, L"Energía necesaria (Wh):"},
});

constexpr auto kTotales = std::to_array<ui::Fila<V>>({
    {"iTotalAcumuladores", &V::iTotalAcumuladores, L"Nº de acumuladores en total:"},
    {"dPesoAcumuladores", &V::dPesoAcumuladores, L"Peso del campo de acumuladores (kg):"},
    {"iTotalPaneles", &V::iTotalPaneles, L"Nº de paneles en total:"},
    {"dPesoPaneles", &V::dPesoPaneles, L"Peso del campo de paneles (kg):"},
    {.nombre = "dSuperficieTotal",
     .campo = &V::dSuperficieTotal,
     .rotulo = L"Superficie solar total (~SUP~):",
     .magnitud = L"Superficie"},
    {.nombre = "dSuperficieProyectada",
     .campo = &V::dSuperficieProyectada,
     .rotulo = L"Superficie solar proyectada (~SUP~):",
     .magnitud = L"Superficie"},
});

std::array<double, 12> FactoresK(const CBaseFactorK& base, const V& v, double dInclinacion)
{
    return efv::solar::FactoresK(base, v.dLatitud, v.iHemisferio, dInclinacion)
        .value_or(std::array<double, 12>{});
}

void AnadirFilaRadiacion(CListCtrl& lista, double dInclinacion, const std::array<double, 12>& adRadiacion)
{
    const int iFila = lista.InsertItem(lista.GetItemCount(), numero::nuConvertFltToIntlStr(dInclinacion, 2));
    for (int m = 0; m < 12; ++m)
        lista.SetItemText(iFila, m + 1,
                          efv::unidades::cuCadena(kRadiacion, adRadiacion[static_cast<std::size_t>(m)], 2));
}

}  // namespace

CDlgAsistenteSFVAislada::CDlgAsistenteSFVAislada(const V& inicial, const as::TextoLugar& lugar,
                                                 CSFVAsistenteAislada& registro,
                                                 const efv::catalogues::Bases& bases, int& iUltimaPagina)
    : DialogoAsistente("CDlgAsistenteSFVAislada", L"Asistente de SFV aislada", inicial, bases),
      m_registro(registro),
      m_iUltimaPagina(iUltimaPagina),
      m_cargas(as::LeerCargas(registro, bases.receptores))
{
    AnadirTexto("csLocalidad", L"Localidad:", lugar.csLocalidad);
    AnadirTexto("csLocalidad2", L"", lugar.csLocalidad2);
    AnadirTexto("csHemisferio", L"Hemisferio:", datos.iHemisferio == 1 ? L"Norte" : L"Sur");
    AnadirCargas();
    m_paginas = &AnadirPaginas(
        {L"Acumuladores", L"Paneles fotovoltaicos", L"Regulación", L"Perdidas", L"Solución del sistema"});
    m_paginas->iSeleccion = m_iUltimaPagina > 4 ? 0 : m_iUltimaPagina;
    AnadirPaginaAcumuladores();
    AnadirPaginaPaneles();
    AnadirPaginaRegulacion();
    AnadirPaginaPerdidas();
    AnadirPaginaSolucion();
    AnadirNotas();
    for (const char* campo :
         {"dProfundidadDescarga", "iAcumuladoresSerie", "iAcumuladoresParalelo", "iPanelesSerie",
          "iPanelesParalelo", "dInclinacion", "dDiasAutonomia", "dTensionMaxFV", "dTensionMinFV",
          "dPerdidaCableado", "dPerdidaAcumulador", "dPerdidaAcoplamiento"})
        Vigilar(campo);

    AbrirRadiacion();
    MostrarValores();
    EscribirCargas();
    Recalcular(false);
    Recalcular(true);
    m_bAbierto = true;
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

void CDlgAsistenteSFVAislada::AnadirCargas()
{
    m_lista = &Anadir<ui::Lista>("lReceptores", L"", ui::Lista::Forma::tabla);
    m_lista->acsColumnas = {L"Cant.", L"Modelo", L"Red", L"Potencia (W)", L"h/día", L"Consumo (Wh)"};
    m_lista->modelo = std::make_shared<ui::FilasDeLista>(m_filasCargas, ui::FilasDeLista::conCasillas);
    m_lista->lugar.bEstirar = true;
    m_lista->alElegir = [this] { m_filasCargas.SetSelectionMark(m_lista->iSeleccion); };
    m_lista->alAbrir = [this](int iFila, int /*iColumna*/) {
        m_filasCargas.SetSelectionMark(iFila);
        EditarCarga();
    };
    AnadirBoton("Anadir", L"Añadir ...", {}, [this] { NuevaCarga(); });
    AnadirBoton("Editar", L"Editar ...", {}, [this] { EditarCarga(); });
    AnadirBoton("Eliminar", L"Eliminar", {}, [this] { EliminarCarga(); });
}

void CDlgAsistenteSFVAislada::AnadirPaginaAcumuladores()
{
    m_acumulador = &AnadirBoton("csAcumulador", L"", kAcumuladores, [this] { ElegirAcumulador(); });
    AnadirSimbolo("iSimboloAcumulador", datos.iSimboloAcumulador, kCategoriaAcumulador, kAcumuladores);
    Anadir(kCamposAcumulador, kAcumuladores);
    AnadirResultados(kCapacidades, ui::kNegro, kAcumuladores);
    AnadirResultados(kAcumuladorP, as::kColorPropuesta, kAcumuladores);
}

void CDlgAsistenteSFVAislada::AnadirPaginaPaneles()
{
    m_panel = &AnadirBoton("csPanel", L"", kPaneles, [this] { ElegirPanel(); });
    AnadirSimbolo("iSimboloPanel", datos.iSimboloPanel, kCategoriaPanel, kPaneles);
    auto& mes =
        Anadir<ui::Seleccion>("iMesCalculo", L"Mes a considerar en el cálculo:", ui::Seleccion::Forma::combo);
    for (int m = 0; m < 15; ++m)
        mes.acsEntradas.emplace_back(efv::solar::NombreMes(m));
    mes.destino = &datos.iMesCalculo;
    mes.lugar = kPaneles;
    mes.alElegir = [this] { Recalcular(false); };
    m_mesReferencia = &Anadir<ui::TextoFijo>("csMesReferencia", L"Mes de referencia para el dimensionado:");
    m_mesReferencia->lugar = kPaneles;
    Anadir(kRamales, kPaneles);
    AnadirResultados(kPotencias, ui::kNegro, kPaneles);
    AnadirResultados(kPanelP, as::kColorPropuesta, kPaneles);

    Anadir(as::kAngulos<V>, kPanelesDerecha);
    AnadirResultados(as::kAngulosP<V>, as::kColorPropuesta, kPanelesDerecha);
    AnadirBoton("CDlgImgCoordenadas", L"...", kPanelesDerecha, [] { CDlgImgCoordenadas().Mostrar(); });
    Anadir(kFilasDePaneles, kPanelesDerecha);
    AnadirResultados(as::kDistanciaP<V>, ui::kNegro, kPanelesDerecha);
    AnadirBoton("EspaciarFilas", L"...", kPanelesDerecha, [this] { AlEspaciar(); }).bVisible = false;
    AnadirDisposicion(kPanelesDerecha, [this] { AlElegirDisposicion(); });

    m_radiacion = &Anadir<ui::Lista>(
        "listaRadiacion",
        fmt::format(L"Radiacion solar diaria media {}/m² en función de la inclinación de la superficie de "
                    L"paneles y para una orientación {}",
                    efv::unidades::cuSimbolo(kRadiacion), datos.iHemisferio == 1 ? L"Sur" : L"Norte"),
        ui::Lista::Forma::tabla);
    m_radiacion->acsColumnas = {L"Ángulo/Rad."};
    for (int m = 0; m < 12; ++m)
        m_radiacion->acsColumnas.emplace_back(efv::solar::NombreMesCorto(m));
    m_radiacion->modelo = std::make_shared<ui::FilasDeLista>(m_filasRadiacion);
    m_radiacion->lugar = kPaneles;
}

void CDlgAsistenteSFVAislada::AnadirPaginaRegulacion()
{
    m_tension =
        &Anadir<ui::Seleccion>("dTensionSistema", L"Tensión del sistema (V):", ui::Seleccion::Forma::combo);
    m_tension->lugar = kRegulacion;
    m_tension->intercambio = ui::Intercambio::aMano;
    m_tension->iSeleccion = 0;
    for (std::size_t i = 0; i < kTensiones.size(); ++i) {
        m_tension->acsEntradas.push_back(numero::nuConvertFltToIntlStr(kTensiones[i], 0));
        if (numero::Igual(kTensiones[i], datos.dTensionSistema))
            m_tension->iSeleccion = static_cast<int>(i);
    }
    m_tension->alElegir = [this] { AlElegirTension(); };
    AnadirResultados(kPotenciaFV, ui::kNegro, kRegulacion);
    Anadir(kTensionesFV, kRegulacion);
    Anadir(kSalida, kRegulacion);
    ControlDe<ui::Casilla>("bSalidaCA").alCambiar = [this] { AlMarcarSalida(); };
    AnadirSimbolo("iSimboloRegulador", datos.iSimboloRegulador, kCategoriaRegulador, kRegulacion);
    // The old way of sizing: its coefficients are kept, nothing depends on them.
    AnadirTexto("", L"", L"Parámetros de regulación (OBSOLETO):", kRegulacion);
    Controles().back()->bVisible = false;
    AnadirBoton("Regulacion", L"Regulación ...", kRegulacion, [this] { AlPulsarRegulacion(); }).bVisible =
        false;
}

void CDlgAsistenteSFVAislada::AnadirPaginaPerdidas()
{
    Anadir(as::kFilasPerdidas<V>, kPerdidas);
    AnadirResultados(kEnergias, ui::kNegro, kPerdidas);
}

void CDlgAsistenteSFVAislada::AnadirPaginaSolucion()
{
    AnadirResultados(kTotales, ui::kNegro, kSolucion);
}

// ---------------------------------------------------------------------------------------------------
// Loads
// ---------------------------------------------------------------------------------------------------

CSFVDataReceptor* CDlgAsistenteSFVAislada::CargaElegida()
{
    const int i = m_filasCargas.GetSelectionMark();
    return i >= 0 ? &m_cargas[i] : nullptr;
}

void CDlgAsistenteSFVAislada::EscribirCargas()
{
    m_filasCargas.DeleteAllItems();
    for (const auto& carga : m_cargas)
        carga->InsertarEnLista(m_filasCargas, 0, 0);
    m_lista->iSeleccion = -1;
    ++m_lista->uVersion;
}

void CDlgAsistenteSFVAislada::NuevaCarga()
{
    auto carga = std::make_unique<CSFVDataReceptor>();
    carga->iReservadoB = 1;
    if (efv::consumption::EditarReceptor(*carga, 0, m_bases) != ok)
        return;
    carga->InsertarEnLista(m_filasCargas, 0, 0);
    ++m_lista->uVersion;
    m_cargas.Add(std::move(carga));
    Recalcular(true);
    bModificado = 0;
}

void CDlgAsistenteSFVAislada::EditarCarga()
{
    CSFVDataReceptor* carga = CargaElegida();
    if (carga == nullptr)
        return;
    if (efv::consumption::EditarReceptor(*carga, 0, m_bases) == ok) {
        carga->ActualizarEnLista(m_filasCargas, 0, 0);
        ++m_lista->uVersion;
    }
    Recalcular(true);
}

void CDlgAsistenteSFVAislada::EliminarCarga()
{
    const CSFVDataReceptor* carga = CargaElegida();
    if (carga == nullptr || !ui::Preguntar(L"¿Desea eliminar el receptor " + carga->csModelo + L"?"))
        return;
    m_cargas.RemoveAt(m_filasCargas.GetSelectionMark());
    EscribirCargas();
    Recalcular(true);
    bModificado = 0;
}

// ---------------------------------------------------------------------------------------------------
// Choices
// ---------------------------------------------------------------------------------------------------

void CDlgAsistenteSFVAislada::ElegirAcumulador()
{
    if (m_bases.elegirAcumulador(datos.csAcumulador) == 1)
        Recalcular(false);
}

void CDlgAsistenteSFVAislada::ElegirPanel()
{
    if (m_bases.elegirPanelFoto(datos.csPanel) == 1)
        Recalcular(false);
}

void CDlgAsistenteSFVAislada::AlElegirTension()
{
    datos.dTensionSistema = kTensiones[static_cast<std::size_t>(m_tension->iSeleccion)];
    Recalcular(true);
}

void CDlgAsistenteSFVAislada::AlElegirDisposicion()
{
    const int iElegida = ControlDe<ui::Seleccion>("iDisposicion").iSeleccion;
    if (iElegida == datos.iDisposicion)
        return;
    bModificado = 1;
    std::swap(datos.panel.dLargoPanel, datos.panel.dAnchoPanel);
    datos.iDisposicion = iElegida;
    Recalcular(false);
    bModificado = 0;
}

void CDlgAsistenteSFVAislada::AlMarcarSalida()
{
    bModificado = 1;
    datos.bSalidaCA = ControlDe<ui::Casilla>("bSalidaCA").bMarcada ? 1 : 0;
    auto& tipo = ControlDe<ui::Seleccion>("iTipoSalidaCA");
    if (datos.bSalidaCA == 0)
        datos.iTipoSalidaCA = tipo.iSeleccion = 0;
    tipo.bHabilitado = ControlDe<ui::Edicion>("dTensionSalidaCA").bHabilitado = datos.bSalidaCA != 0;
}

void CDlgAsistenteSFVAislada::AlEspaciar()
{
    const CBasePanelFotoModelo* panel = m_bases.panelesFoto.BuscarModelo(datos.csPanel);
    if (panel == nullptr)
        return;
    as::EspaciarFilas(datos, *panel);
    MostrarValores();
}

void CDlgAsistenteSFVAislada::AlPulsarRegulacion()
{
    CDlgDatosRegulacion dialogo(datos);
    if (dialogo.Mostrar() != ok)
        return;
    dialogo.Devolver(datos);
    MostrarValores();
    Recalcular(true);
    bModificado = 0;
}

// ---------------------------------------------------------------------------------------------------
// Calculation
// ---------------------------------------------------------------------------------------------------

void CDlgAsistenteSFVAislada::AbrirRadiacion()
{
    for (int iInclinacion = 0; iInclinacion <= 90; iInclinacion += 5) {
        std::array<double, 12> adRadiacion = FactoresK(m_bases.factoresK, datos, iInclinacion);
        for (std::size_t m = 0; m < 12; ++m)
            adRadiacion[m] *= datos.adRadiacion[m];
        AnadirFilaRadiacion(m_filasRadiacion, iInclinacion, adRadiacion);
    }
}

void CDlgAsistenteSFVAislada::EscribirRadiacion()
{
    m_filasRadiacion.DeleteAllItems();
    AnadirFilaRadiacion(m_filasRadiacion, datos.dInclinacion, datos.adRadiacionInclinada);
    ++m_radiacion->uVersion;
}

void CDlgAsistenteSFVAislada::MostrarValores()
{
    m_acumulador->csRotulo = datos.csAcumulador.empty() ? CString(L"Acumulador...") : datos.csAcumulador;
    m_panel->csRotulo = datos.csPanel.empty() ? CString(L"Panel ...") : datos.csPanel;
    m_mesReferencia->csTexto = datos.csMesReferencia;
    ControlDe<ui::Control>("iTipoSalidaCA").bHabilitado = datos.bSalidaCA != 0;
    ControlDe<ui::Control>("dTensionSalidaCA").bHabilitado = datos.bSalidaCA != 0;
    const auto avisar = [this](const char* campo, double dNecesario, double dResultante) {
        ControlDe<ui::Control>(campo).color =
            numero::Mayor(dNecesario, dResultante) ? as::kColorInsuficiente : ui::kNegro;
    };
    avisar("dCapacidadResultante", datos.dCapacidadNecesaria, datos.dCapacidadResultante);
    avisar("dPotenciaInstalada", datos.dPotenciaMinima, datos.dPotenciaInstalada);
    Volcar();
}

void CDlgAsistenteSFVAislada::Recalcular(bool bForzar)
{
    // Nobody sees the fields yet while the dialog is being set up.
    if (m_bAbierto ? !RecogerAvisando() : Recoger().has_value())
        return;
    const std::vector<as::Carga> cargas = as::CargasParaCalculo(m_cargas);
    as::Recalcular(datos,
                   {m_bases.acumuladores.BuscarModelo(datos.csAcumulador),
                    m_bases.panelesFoto.BuscarModelo(datos.csPanel), cargas,
                    [&base = m_bases.factoresK](double dLatitud, int iHemisferio, double dAlpha) {
                        return efv::solar::FactoresK(base, dLatitud, iHemisferio, dAlpha);
                    }},
                   bForzar);
    EscribirRadiacion();
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
    as::GuardarCargas(m_cargas, m_registro);
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
    m_iUltimaPagina = m_paginas->iSeleccion;
    return true;
}

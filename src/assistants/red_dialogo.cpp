#include "assistants/red_dialogo.h"

#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "platform/numero/conversion.h"
#include "solar/coordenadas_dialogo.h"

namespace {

namespace ui = efv::ui;
namespace as = efv::assistants;
using V = as::ValoresRed;

constexpr ui::Colocacion kGrupoObjetivo{.grupo = L"Instalación"};
constexpr ui::Colocacion kGrupoInversor{.grupo = L"Inversor"};
constexpr ui::Colocacion kGrupoPanel{.grupo = L"Paneles fotovoltaicos"};
constexpr ui::Colocacion kGrupoGeometria{.grupo = L"Disposición", .iColumna = 1};
constexpr ui::Colocacion kGrupoResultado{.grupo = L"Solución del sistema", .iColumna = 1};

constexpr auto kObjetivo = ui::Campos<V>({
    {&V::dPotenciaObjetivo, L"Potencia mínima instalada (kW):"},
    {&V::dLongitudL1, L"Longitud cableado Generador - Inversor [L1]: "},
    {&V::dLongitudL2, L"Longitud cableado Inversor - Caja conexión [L2]:"},
    {&V::dLongitudL3, L"Longitud cableado Caja Conexión - Red [L3]:"},
});

constexpr auto kInversores = ui::Campos<V>({{&V::iInversores, L"Nº de inversores:"}});
constexpr auto kInversoresP =
    ui::Campos<V>({{.miembro = &V::iInversoresP, .rotulo = L"", .junto = &V::iInversores}});

constexpr auto kRamales = ui::Campos<V>({
    {&V::iPanelesSerie, L"Nº de paneles por ramal:"},
    {&V::iPanelesParalelo, L"Nº de ramales en paralelo:"},
});
constexpr auto kRamalesP =
    ui::Campos<V>({{.miembro = &V::iPanelesSerieP, .rotulo = L"", .junto = &V::iPanelesSerie},
                   {.miembro = &V::iPanelesParaleloP, .rotulo = L"", .junto = &V::iPanelesParalelo}});

constexpr auto kFilasDePaneles = ui::Campos<V>({
    {.miembro = &V::dPanelesPorFila, .rotulo = L"Nº máximo de paneles por fila:", .decimales = 0},
    {.miembro = &V::dDistanciaPaneles, .rotulo = L"Distancia panel - panel (mm):", .decimales = 0},
    {.miembro = &V::dDistanciaFilas, .rotulo = L"Distancia fila - fila (mm):", .decimales = 0},
});

constexpr auto kTotales = ui::Campos<V>({
    {&V::dPotenciaInversorCampo, L"Potencia (Wp):"},
    {&V::dTensionRamal, L"Tensión del ramal (V):"},
    {&V::iPanelesInversor, L"Nº de paneles por inversor:"},
    {&V::iTotalPaneles, L"Nº de paneles en total:"},
    {&V::dPotenciaTotal, L"Potencia total instalada (kW):"},
    {&V::dPotenciaInversores, L"Potencia total de inversores (kW):"},
    {.miembro = &V::dSuperficieTotal, .rotulo = L"Superficie solar total (~SUP~):", .magnitud = L"Superficie"},
    {.miembro = &V::dSuperficieProyectada,
     .rotulo = L"Superficie solar proyectada (~SUP~):",
     .magnitud = L"Superficie"},
});
constexpr auto kTotalesP = ui::Campos<V>({
    {.miembro = &V::dPotenciaInversorCampoP, .rotulo = L"", .junto = &V::dPotenciaInversorCampo},
    {.miembro = &V::dTensionRamalP, .rotulo = L"", .junto = &V::dTensionRamal},
    {.miembro = &V::iPanelesInversorP, .rotulo = L"", .junto = &V::iPanelesInversor},
    {.miembro = &V::iTotalPanelesP, .rotulo = L"", .junto = &V::iTotalPaneles},
    {.miembro = &V::dPotenciaTotalP, .rotulo = L"", .junto = &V::dPotenciaTotal},
    {.miembro = &V::dPotenciaInversoresP, .rotulo = L"", .junto = &V::dPotenciaInversores},
    {.miembro = &V::dSuperficieTotalP, .rotulo = L"", .magnitud = L"Superficie", .junto = &V::dSuperficieTotal},
    {.miembro = &V::dSuperficieProyectadaP,
     .rotulo = L"",
     .magnitud = L"Superficie",
     .junto = &V::dSuperficieProyectada},
});

CString RotuloDe(const CString& csId)
{
    return csId.empty() ? CString(L"...") : csId;
}

}  // namespace

CDlgAsistenteSFVRed::CDlgAsistenteSFVRed(const V& inicial, const as::TextoLugar& lugar,
                                         const efv::catalogues::Bases& bases)
    : DialogoAsistente("CDlgAsistenteSFVRed", L"Asistente de SFV conectada a Red", inicial, bases)
{
    AnadirTexto("csLocalidad", L"Localidad:", lugar.csLocalidad);
    AnadirTexto("csLocalidad2", L"", lugar.csLocalidad2);
    Anadir(kObjetivo, kGrupoObjetivo);
    AnadirEquipos();
    AnadirCampo();
    AnadirResultadosTotales();
    AnadirNotas();

    Vigilar(&V::dPotenciaObjetivo, true);
    for (const ui::Miembro<V>& miembro : {ui::Miembro<V>(&V::iInversores), ui::Miembro<V>(&V::iPanelesSerie),
                                          ui::Miembro<V>(&V::iPanelesParalelo),
                                          ui::Miembro<V>(&V::dInclinacion), ui::Miembro<V>(&V::dOrientacion)})
        Vigilar(miembro);
    LeerInversor();
    LeerPanel();
    MostrarValores();
    Recalcular(true);
}

void CDlgAsistenteSFVRed::AnadirEquipos()
{
    const auto elegible = [this](CString V::*modelo, const ui::Colocacion& colocacion,
                                 void (CDlgAsistenteSFVRed::*elegir)()) {
        return &AnadirBoton(*this, ui::NombreDeCampo(modelo), L"", colocacion,
                            [this, elegir] { (this->*elegir)(); });
    };
    m_inversor = elegible(&V::csInversor, kGrupoInversor, &CDlgAsistenteSFVRed::ElegirInversor);
    m_inversor->csIndicacion = L"Elegir el inversor en el catálogo";
    AnadirSimbolo(*this, &V::iSimboloInversor, as::kCategoriaInversor, ui::JuntoA(*m_inversor));
    m_nominal = &AnadirNominal("dPCANom", L"Potencia Nominal (W):", ui::kNegro);
    m_nominalP = &AnadirNominal("dPCANomP", L"", as::kColorPropuesta);
    m_nominalP->colocacion = ui::JuntoA(*m_nominal);
    m_rango = &Anadir<ui::TextoFijo>("csRangoMPPT", L"Rango tensiones MPPT (máx./min.):");
    m_rango->colocacion = kGrupoInversor;
    Anadir(kInversores, kGrupoInversor);
    AnadirResultados(*this, kInversoresP, as::kColorPropuesta, kGrupoInversor);

    m_panel = elegible(&V::csPanel, kGrupoPanel, &CDlgAsistenteSFVRed::ElegirPanel);
    m_panel->csIndicacion = L"Elegir el panel en el catálogo";
    AnadirSimbolo(*this, &V::iSimboloPanel, as::kCategoriaPanel, ui::JuntoA(*m_panel));
    Anadir(kRamales, kGrupoPanel);
    AnadirResultados(*this, kRamalesP, as::kColorPropuesta, kGrupoPanel);
}

// The inverter's nominal output, which stands there twice.
ui::Edicion& CDlgAsistenteSFVRed::AnadirNominal(std::string_view nombre, std::wstring_view rotulo,
                                                ui::Color color)
{
    auto& nominal = Anadir<ui::Edicion>(nombre, rotulo);
    nominal.destino = &datos.inversor.dPCANom;
    nominal.colocacion = kGrupoInversor;
    SoloMostrar(nominal, color);
    return nominal;
}

void CDlgAsistenteSFVRed::AnadirCampo()
{
    Anadir(as::kAngulos<V>, kGrupoGeometria);
    AnadirResultados(*this, as::kAngulosP<V>, as::kColorPropuesta, kGrupoGeometria);
    AnadirBoton(*this, "CDlgImgCoordenadas", L"...", ui::JuntoA(De(&V::dOrientacion)), [] {
        CDlgImgCoordenadas().Mostrar();
    }).csIndicacion = as::kIndicacionOrientacion;
    Anadir(kFilasDePaneles, kGrupoGeometria);
    AnadirResultados(*this, as::kDistanciaP<V>, as::kColorPropuesta, kGrupoGeometria);
    AnadirBoton(*this, "EspaciarFilas", L"...", ui::JuntoA(De(&V::dDistanciaFilas)), [this] {
        AlEspaciar();
    }).csIndicacion = L"Distancia para que las filas no se den sombra";
    m_disposicion = &AnadirDisposicion(*this, kGrupoGeometria, [this] { AlElegirDisposicion(); });
}

void CDlgAsistenteSFVRed::AnadirResultadosTotales()
{
    AnadirResultados(*this, kTotales, ui::kNegro, kGrupoResultado);
    AnadirResultados(*this, kTotalesP, as::kColorPropuesta, kGrupoResultado);
}

bool CDlgAsistenteSFVRed::LeerInversor()
{
    const CBaseInversorModelo* modelo = m_bases.inversores.BuscarModelo(datos.csInversor);
    if (modelo != nullptr)
        datos.inversor = as::LeerInversor(*modelo);
    return modelo != nullptr;
}

bool CDlgAsistenteSFVRed::LeerPanel()
{
    const CBasePanelFotoModelo* modelo = m_bases.panelesFoto.BuscarModelo(datos.csPanel);
    if (modelo != nullptr)
        datos.panel = as::Disponer(*modelo, datos.iDisposicion);
    return modelo != nullptr;
}

void CDlgAsistenteSFVRed::ElegirInversor()
{
    if (m_bases.elegirInversor(datos.csInversor) != 1)
        return;
    const bool bHallado = LeerInversor();
    MostrarModelos();
    if (bHallado)
        Recalcular(true);
}

void CDlgAsistenteSFVRed::ElegirPanel()
{
    if (m_bases.elegirPanelFoto(datos.csPanel) != 1)
        return;
    const bool bHallado = LeerPanel();
    MostrarModelos();
    if (bHallado)
        Recalcular(true);
}

// The mark stays set when the disposition is the one already in force.
void CDlgAsistenteSFVRed::AlElegirDisposicion()
{
    bModificado = 1;
    if (m_disposicion->iSeleccion == datos.iDisposicion)
        return;
    std::swap(datos.panel.dLargoPanel, datos.panel.dAnchoPanel);
    datos.iDisposicion = m_disposicion->iSeleccion;
    Recalcular(false);
    bModificado = 0;
}

void CDlgAsistenteSFVRed::AlEspaciar()
{
    if (as::EspaciarFilas(datos))
        De(&V::dDistanciaFilas).csTexto = efv::numero::nuConvertFltToIntlStr(datos.dDistanciaFilas, 2);
}

// Captions and figures of the two models, which no typed field touches.
void CDlgAsistenteSFVRed::MostrarModelos()
{
    m_inversor->csRotulo = RotuloDe(datos.csInversor);
    m_panel->csRotulo = RotuloDe(datos.csPanel);
    m_rango->csTexto = efv::numero::nuConvertFltToIntlStr(datos.inversor.dVMPPMax, 0) + L"/" +
                       efv::numero::nuConvertFltToIntlStr(datos.inversor.dVMPPMin, 0);
    ui::Volcar(*m_nominal);
    ui::Volcar(*m_nominalP);
}

void CDlgAsistenteSFVRed::MostrarValores()
{
    MostrarModelos();
    Volcar();
}

void CDlgAsistenteSFVRed::Calcular(bool bForzar)
{
    as::RecalcularRed(datos, bForzar);
    MostrarValores();
}

// On the values as last calculated: the fields are taken over after this.
bool CDlgAsistenteSFVRed::AntesDeAceptar()
{
    if (!AbiertoDelTodo())
        return true;
    const auto error = [](const CString& csTexto) {
        ui::MostrarAviso(csTexto, ui::Icono::error);
        return false;
    };
    if (ui::EsNulo(datos.dPotenciaObjetivo)) {
        return error(fmt::format(L"Potencia mínima instalada ({} Kw), no válida.",
                                 efv::numero::nuConvertFltToIntlStr(datos.dPotenciaObjetivo, 2)));
    }
    if (datos.inversor.iUsoPrincipal != 0)
        return error(L"Inversor no indicado para uso en conexión a red. Elija otro modelo.");
    if (datos.iTotalPaneles >= 2000 &&
        !ui::Preguntar(fmt::format(
            L"El número de paneles de la intalación ({}) es una cantidad muy elevada. ¿Desea continuar?.",
            datos.iTotalPaneles)))
        return false;
    if (datos.iPanelesParalelo > datos.inversor.iNumEntradas) {
        return error(fmt::format(
            L"El número de ramales en paralelo ({}), supera al número de entradas del inversor ({}). "
            L"Modifique la configuración o seleccione otro modelo de inversor.",
            datos.iPanelesParalelo, datos.inversor.iNumEntradas));
    }
    return true;
}

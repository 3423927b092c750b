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

constexpr int kCategoriaPanel = 20413;
constexpr int kCategoriaInversor = 20417;

constexpr ui::Lugar kGrupoObjetivo{.grupo = L"Instalación"};
constexpr ui::Lugar kGrupoInversor{.grupo = L"Inversor"};
constexpr ui::Lugar kGrupoPanel{.grupo = L"Paneles fotovoltaicos"};
constexpr ui::Lugar kGrupoGeometria{.grupo = L"Disposición", .iColumna = 1};
constexpr ui::Lugar kGrupoResultado{.grupo = L"Solución del sistema", .iColumna = 1};

constexpr auto kObjetivo = std::to_array<ui::Fila<V>>({
    {"dPotenciaObjetivo", &V::dPotenciaObjetivo, L"Potencia mínima instalada (kW):", {0, 1000000}},
    {"dLongitudL1", &V::dLongitudL1, L"Longitud cableado Generador - Inversor [L1]: ", {0, 1000}},
    {"dLongitudL2", &V::dLongitudL2, L"Longitud cableado Inversor - Caja conexión [L2]:", {0, 1000}},
    {"dLongitudL3", &V::dLongitudL3, L"Longitud cableado Caja Conexión - Red [L3]:", {0, 1000}},
});

constexpr auto kInversores =
    std::to_array<ui::Fila<V>>({{"iInversores", &V::iInversores, L"Nº de inversores:", {1, 100000}}});
constexpr auto kInversoresP = std::to_array<ui::Fila<V>>({{"iInversoresP", &V::iInversoresP, L""}});

constexpr auto kRamales = std::to_array<ui::Fila<V>>({
    {"iPanelesSerie", &V::iPanelesSerie, L"Nº de paneles por ramal:", {1, 100000}},
    {"iPanelesParalelo", &V::iPanelesParalelo, L"Nº de ramales en paralelo:", {1, 100000}},
});
constexpr auto kRamalesP = std::to_array<ui::Fila<V>>({
    {"iPanelesSerieP", &V::iPanelesSerieP, L""},
    {"iPanelesParaleloP", &V::iPanelesParaleloP, L""},
});

constexpr auto kFilasDePaneles = std::to_array<ui::Fila<V>>({
    {"dPanelesPorFila", &V::dPanelesPorFila, L"Nº máximo de paneles por fila:", {1, 1000}, 0},
    {"dDistanciaPaneles", &V::dDistanciaPaneles, L"Distancia panel - panel (mm):", {0, 10000}, 0},
    {"dDistanciaFilas", &V::dDistanciaFilas, L"Distancia fila - fila (mm):", {0, 100000}, 0},
});

constexpr auto kTotales = std::to_array<ui::Fila<V>>({
    {"dPotenciaInversorCampo", &V::dPotenciaInversorCampo, L"Potencia (Wp):"},
    {"dTensionRamal", &V::dTensionRamal, L"Tensión del ramal (V):"},
    {"iPanelesInversor", &V::iPanelesInversor, L"Nº de paneles por inversor:"},
    {"iTotalPaneles", &V::iTotalPaneles, L"Nº de paneles en total:"},
    {"dPotenciaTotal", &V::dPotenciaTotal, L"Potencia total instalada (kW):"},
    {"dPotenciaInversores", &V::dPotenciaInversores, L"Potencia total de inversores (kW):"},
    {.nombre = "dSuperficieTotal",
     .campo = &V::dSuperficieTotal,
     .rotulo = L"Superficie solar total (~SUP~):",
     .magnitud = L"Superficie"},
    {.nombre = "dSuperficieProyectada",
     .campo = &V::dSuperficieProyectada,
     .rotulo = L"Superficie solar proyectada (~SUP~):",
     .magnitud = L"Superficie"},
});
constexpr auto kTotalesP = std::to_array<ui::Fila<V>>({
    {"dPotenciaInversorCampoP", &V::dPotenciaInversorCampoP, L""},
    {"dTensionRamalP", &V::dTensionRamalP, L""},
    {"iPanelesInversorP", &V::iPanelesInversorP, L""},
    {"iTotalPanelesP", &V::iTotalPanelesP, L""},
    {"dPotenciaTotalP", &V::dPotenciaTotalP, L""},
    {"dPotenciaInversoresP", &V::dPotenciaInversoresP, L""},
    {.nombre = "dSuperficieTotalP", .campo = &V::dSuperficieTotalP, .rotulo = L"", .magnitud = L"Superficie"},
    {.nombre = "dSuperficieProyectadaP",
     .campo = &V::dSuperficieProyectadaP,
     .rotulo = L"",
     .magnitud = L"Superficie"},
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

    Vigilar("dPotenciaObjetivo", true);
    for (const char* campo :
         {"iInversores", "iPanelesSerie", "iPanelesParalelo", "dInclinacion", "dOrientacion"})
        Vigilar(campo);
    LeerInversor();
    LeerPanel();
    MostrarValores();
    Recalcular(true);
    m_bAbierto = true;
}

void CDlgAsistenteSFVRed::AnadirEquipos()
{
    m_inversor = &AnadirBoton("csInversor", L"", kGrupoInversor, [this] { ElegirInversor(); });
    AnadirSimbolo("iSimboloInversor", datos.iSimboloInversor, kCategoriaInversor, kGrupoInversor);
    auto& nominal = Anadir<ui::Edicion>("dPCANom", L"Potencia Nominal (W):");
    auto& nominalP = Anadir<ui::Edicion>("dPCANomP", L"");
    nominal.destino = nominalP.destino = &datos.inversor.dPCANom;
    nominal.lugar = nominalP.lugar = kGrupoInversor;
    SoloMostrar(nominal, ui::kNegro);
    SoloMostrar(nominalP, as::kColorPropuesta);
    m_rango = &Anadir<ui::TextoFijo>("csRangoMPPT", L"Rango tensiones MPPT (máx./min.):");
    m_rango->lugar = kGrupoInversor;
    Anadir(kInversores, kGrupoInversor);
    AnadirResultados(kInversoresP, as::kColorPropuesta, kGrupoInversor);

    m_panel = &AnadirBoton("csPanel", L"", kGrupoPanel, [this] { ElegirPanel(); });
    AnadirSimbolo("iSimboloPanel", datos.iSimboloPanel, kCategoriaPanel, kGrupoPanel);
    Anadir(kRamales, kGrupoPanel);
    AnadirResultados(kRamalesP, as::kColorPropuesta, kGrupoPanel);
}

void CDlgAsistenteSFVRed::AnadirCampo()
{
    Anadir(as::kAngulos<V>, kGrupoGeometria);
    AnadirResultados(as::kAngulosP<V>, as::kColorPropuesta, kGrupoGeometria);
    AnadirBoton("CDlgImgCoordenadas", L"...", kGrupoGeometria, [] { CDlgImgCoordenadas().Mostrar(); });
    Anadir(kFilasDePaneles, kGrupoGeometria);
    AnadirResultados(as::kDistanciaP<V>, as::kColorPropuesta, kGrupoGeometria);
    AnadirBoton("EspaciarFilas", L"...", kGrupoGeometria, [this] { AlEspaciar(); });
    AnadirDisposicion(kGrupoGeometria, [this] { AlElegirDisposicion(); });
}

void CDlgAsistenteSFVRed::AnadirResultadosTotales()
{
    AnadirResultados(kTotales, ui::kNegro, kGrupoResultado);
    AnadirResultados(kTotalesP, as::kColorPropuesta, kGrupoResultado);
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
    if (m_bases.elegirInversor(datos.csInversor) == 1 && LeerInversor())
        Recalcular(true);
}

void CDlgAsistenteSFVRed::ElegirPanel()
{
    if (m_bases.elegirPanelFoto(datos.csPanel) == 1 && LeerPanel())
        Recalcular(true);
}

// The mark stays set when the disposition is the one already in force.
void CDlgAsistenteSFVRed::AlElegirDisposicion()
{
    bModificado = 1;
    const int iElegida = ControlDe<ui::Seleccion>("iDisposicion").iSeleccion;
    if (iElegida == datos.iDisposicion)
        return;
    std::swap(datos.panel.dLargoPanel, datos.panel.dAnchoPanel);
    datos.iDisposicion = iElegida;
    Recalcular(false);
    bModificado = 0;
}

void CDlgAsistenteSFVRed::AlEspaciar()
{
    if (as::EspaciarFilas(datos))
        ControlDe<ui::Edicion>("dDistanciaFilas").csTexto =
            efv::numero::nuConvertFltToIntlStr(datos.dDistanciaFilas, 2);
}

void CDlgAsistenteSFVRed::MostrarValores()
{
    m_inversor->csRotulo = RotuloDe(datos.csInversor);
    m_panel->csRotulo = RotuloDe(datos.csPanel);
    m_rango->csTexto = efv::numero::nuConvertFltToIntlStr(datos.inversor.dVMPPMax, 0) + L"/" +
                       efv::numero::nuConvertFltToIntlStr(datos.inversor.dVMPPMin, 0);
    Volcar();
}

void CDlgAsistenteSFVRed::Recalcular(bool bForzar)
{
    // Nobody sees the fields yet while the dialog is being set up.
    if (m_bAbierto ? !RecogerAvisando() : Recoger().has_value())
        return;
    as::RecalcularRed(datos, bForzar);
    MostrarValores();
}

// On the values as last calculated: the fields are taken over after this.
bool CDlgAsistenteSFVRed::AntesDeAceptar()
{
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

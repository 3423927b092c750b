#include "paneles/panel_lugar.h"

#include <algorithm>
#include <iterator>

#include <quorvel/solar/energia.h>

namespace efv::estudio {

namespace {

constexpr std::wstring_view kGrupoRadiacion = L"Radiación horizontal (kJ/m²·día)";
constexpr std::wstring_view kGrupoLugar = L"Lugar";

CString NombreDe(const Localidad& localidad)
{
    const CString csDetalle = LugarDe(localidad).csDetalle;
    return csDetalle.empty() || csDetalle == localidad.csNombre ? localidad.csNombre
                                                                : localidad.csNombre + L" (" + csDetalle + L")";
}

}  // namespace

PanelLugar::PanelLugar(Sesion& sesion, std::vector<Localidad> localidades)
    : Dialogo("PanelLugar", L"Lugar"), m_sesion(sesion), m_localidades(std::move(localidades))
{
    bAceptarVisible = false;
    std::ranges::sort(m_localidades, {}, [](const Localidad& l) { return PlegarTexto(l.csNombre); });
    auto& proyecto = Anadir<ui::Edicion>("csProyecto", L"&Proyecto:");
    proyecto.destino = &m_csProyecto;
    proyecto.alCambiar = [this] { AlCambiar(); };
    AnadirLugar();
    AnadirRadiaciones();
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
    m_nota->color = ui::kRojo;
    m_csProyecto = m_sesion.Proyecto().csNombre;
    m_lugar = m_sesion.Proyecto().lugar;
    Mostrar();
}

void PanelLugar::AnadirLugar()
{
    m_seleccion = &Anadir<ui::Seleccion>("iLugar", L"&Lugar:", ui::Seleccion::Forma::combo);
    m_seleccion->colocacion.grupo = kGrupoLugar;
    m_seleccion->destino = &m_iLugar;
    m_seleccion->acsEntradas.emplace_back(L"Datos propios");
    for (const Localidad& localidad : m_localidades)
        m_seleccion->acsEntradas.push_back(NombreDe(localidad));
    m_seleccion->alElegir = [this] { AlElegir(); };
    const auto campo = [this](const char* nombre, const wchar_t* csRotulo,
                              ui::Destino destino) -> ui::Edicion& {
        auto& edicion = Anadir<ui::Edicion>(nombre, csRotulo);
        edicion.colocacion.grupo = kGrupoLugar;
        edicion.destino = destino;
        edicion.alCambiar = [this] { AlCambiar(); };
        m_figuras.push_back(&edicion);
        return edicion;
    };
    campo("csNombre", L"&Nombre:", &m_lugar.csNombre);
    campo("csDetalle", L"P&rovincia o país:", &m_lugar.csDetalle);
    auto& latitud = campo("dLatitud", L"Latit&ud (º):", &m_lugar.dLatitud);
    latitud.limites = ui::Intervalo{-90.0, 90.0};
    latitud.iDecimales = 4;
    // Its entries are the assistants' numbers.
    m_hemisferio = &Anadir<ui::Seleccion>("iHemisferio", L"&Hemisferio:", ui::Seleccion::Forma::combo);
    m_hemisferio->colocacion.grupo = kGrupoLugar;
    m_hemisferio->acsEntradas = {L"Sur", L"Norte"};
    m_hemisferio->destino = &m_lugar.iHemisferio;
    m_hemisferio->alElegir = [this] { AlCambiar(); };
}

void PanelLugar::AnadirRadiaciones()
{
    // The half years side by side.
    for (std::size_t m = 0; m < std::size(m_lugar.adRadHorizontal); ++m) {
        CString csMes;
        phGetNombreMes(static_cast<int>(m), csMes);
        auto& edicion = Anadir<ui::Edicion>("adRadHorizontal" + std::to_string(m), csMes + L":");
        edicion.colocacion.grupo = kGrupoRadiacion;
        edicion.colocacion.iColumna = m < std::size(m_lugar.adRadHorizontal) / 2 ? 0 : 1;
        edicion.destino = &m_lugar.adRadHorizontal[m];
        edicion.limites = ui::Intervalo{0.0, solar::kRadiacionMaxima};
        edicion.iDecimales = 1;
        edicion.alCambiar = [this] { AlCambiar(); };
        m_figuras.push_back(&edicion);
    }
}

void PanelLugar::AlElegir()
{
    if (!m_localidades.empty() && m_seleccion->iSeleccion > 0) {
        m_lugar = LugarDe(m_localidades[static_cast<std::size_t>(m_seleccion->iSeleccion) - 1]);
    } else {
        // The figures of the place that stood there, to be changed.
        m_lugar.bPropio = 1;
    }
    Mostrar();
    AlCambiar();
}

void PanelLugar::AlCambiar()
{
    const auto rechazo = Recoger();
    m_nota->csTexto = rechazo ? rechazo->csTexto : CString();
    if (rechazo)
        return;
    if (m_iLugar == 0)
        m_lugar.bPropio = 1;
    m_sesion.Proyecto().csNombre = m_csProyecto;
    m_sesion.Proyecto().lugar = m_lugar;
    m_sesion.Cambiado();
}

void PanelLugar::Actualizar()
{
    const CProyectoEstudio& proyecto = m_sesion.Proyecto();
    if (proyecto.csNombre == m_csProyecto && proyecto.lugar == m_lugar)
        return;
    m_csProyecto = proyecto.csNombre;
    m_lugar = proyecto.lugar;
    Mostrar();
}

void PanelLugar::Mostrar()
{
    const auto igual = [this](const Localidad& l) { return LugarDe(l) == m_lugar; };
    const auto hallada = std::ranges::find_if(m_localidades, igual);
    // A place that the file no longer has keeps its figures as one's own.
    m_iLugar = m_lugar.bPropio != 0 || hallada == m_localidades.end()
                   ? 0
                   : static_cast<int>(hallada - m_localidades.begin()) + 1;
    for (ui::Edicion* edicion : m_figuras) {
        edicion->bSoloLectura = m_iLugar != 0;
        // A place of the list isn't rounded to what is shown of it.
        edicion->intercambio = m_iLugar != 0 ? ui::Intercambio::soloMuestra : ui::Intercambio::automatico;
    }
    m_hemisferio->bHabilitado = m_iLugar == 0;
    m_nota->csTexto.clear();
    Volcar();
}

}  // namespace efv::estudio

#include "paneles/panel_lugar.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <quorvel/solar/energia.h>
#include <quorvel/ui/campo.h>

#include "clima/pvgis.h"
#include "comun/numeros.h"

namespace efv::estudio {

namespace {

constexpr std::wstring_view kGrupoRadiacion = L"Radiación horizontal";
constexpr std::wstring_view kGrupoLugar = L"Lugar";
constexpr std::wstring_view kGrupoCelulas = L"Temperatura de las células";
constexpr std::wstring_view kLongitud = L"Longitud", kTemperatura = L"Temperatura";

// As many as a person looks through.
constexpr std::size_t kOfrecidas = 200;

// How well a place answers: it is called so, its name begins so, it is somewhere in it; or not at all.
enum class Respuesta { nombre, comienzo, dentro, ninguna };

Respuesta Responde(const Localidad& localidad, const CString& csBuscado)
{
    const auto comparar = [&](const CString& cs) {
        const CString csPlegado = PlegarTexto(cs);
        const std::size_t nDonde = csPlegado.find(csBuscado);
        if (nDonde == CString::npos)
            return Respuesta::ninguna;
        return nDonde > 0                             ? Respuesta::dentro
               : csPlegado.size() == csBuscado.size() ? Respuesta::nombre
                                                      : Respuesta::comienzo;
    };
    Respuesta mejor = std::min(comparar(localidad.csNombre), comparar(NombreConProvincia(localidad)));
    for (const CString& csAlias : localidad.acsAlias)
        mejor = std::min(mejor, comparar(csAlias));
    return mejor;
}

}  // namespace

PanelLugar::PanelLugar(Sesion& sesion, std::vector<Localidad> localidades)
    : Dialogo("PanelLugar", L"Lugar"),
      m_sesion(sesion),
      m_campos([this] { AlCambiar(); }),
      m_localidades(std::move(localidades))
{
    bAceptarVisible = false;
    std::ranges::sort(m_localidades, {}, [](const Localidad& l) { return PlegarTexto(l.csNombre); });
    auto& proyecto = Anadir<ui::Edicion>("csProyecto", L"&Proyecto:");
    proyecto.destino = &m_csProyecto;
    m_campos.Anadir(proyecto);
    AnadirLugar();
    AnadirCelulas();
    AnadirRadiaciones();
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
    m_nota->color = ui::kRojo;
    PonerUnidades();
    Actualizar();
}

void PanelLugar::PonerUnidades()
{
    TitularGrupo(kGrupoRadiacion, CString(kGrupoRadiacion) + L" (" + SimboloDe(kRadiacion) + L"/m²·día)");
    TitularGrupo(kGrupoCelulas, CString(kGrupoCelulas) + L" (" + SimboloDe(kTemperatura) + L")");
    m_altitud->csRotulo = L"Altitud (" + SimboloDe(kLongitud) + L"):";
    m_altitud->iDecimales = DecimalesEn(kLongitud, 0);
    for (ui::Edicion* radiacion : m_radiaciones)
        radiacion->iDecimales = std::min(3, DecimalesEn(kRadiacion, 1));
    m_campos.Olvidar();
    Volcar();
}

void PanelLugar::AnadirLugar()
{
    m_buscar = &Anadir<ui::Edicion>("csBuscar", L"&Buscar:");
    m_buscar->colocacion.grupo = kGrupoLugar;
    m_buscar->destino = &m_csBuscar;
    m_buscar->alCambiar = [this] {
        Recoger(*m_buscar);
        Ofrecer();
        DecirHallados();
    };
    m_hallados = &Anadir<ui::TextoFijo>("csHallados", L"");
    m_hallados->colocacion.grupo = kGrupoLugar;
    m_hallados->bVisible = false;
    m_seleccion = &Anadir<ui::Seleccion>("iLugar", L"Lugar:", ui::Seleccion::Forma::combo);
    m_seleccion->colocacion.grupo = kGrupoLugar;
    m_seleccion->destino = &m_iLugar;
    m_seleccion->alElegir = [this] { AlElegir(); };
    m_seleccion->csIndicacion = L"Los que tienen lo que se busca; elegir uno trae sus datos";
    const auto campo = [this](const char* nombre, const wchar_t* csRotulo,
                              ui::Destino destino) -> ui::Edicion& {
        auto& edicion = Anadir<ui::Edicion>(nombre, csRotulo);
        edicion.colocacion.grupo = kGrupoLugar;
        edicion.destino = destino;
        m_campos.Anadir(edicion);
        m_figuras.push_back(&edicion);
        return edicion;
    };
    campo("csNombre", L"&Nombre:", &m_lugar.csNombre);
    campo("csDetalle", L"P&rovincia o país:", &m_lugar.csDetalle);
    m_latitud = &campo("dLatitud", L"Latit&ud (º):", &m_lugar.dLatitud);
    m_latitud->limites = ui::Intervalo{-90.0, 90.0};
    m_latitud->iDecimales = 4;
    // Its entries are the assistants' numbers.
    m_hemisferio = &Anadir<ui::Seleccion>("iHemisferio", L"&Hemisferio:", ui::Seleccion::Forma::combo);
    m_hemisferio->colocacion.grupo = kGrupoLugar;
    m_hemisferio->acsEntradas = {L"Sur", L"Norte"};
    m_hemisferio->destino = &m_lugar.iHemisferio;
    m_hemisferio->alElegir = [this] { AlElegirHemisferio(); };
    auto& longitud = campo("dLongitud", L"Longitud (º):", &m_situacion.dLongitud);
    longitud.limites = ui::Intervalo{-180.0, 180.0};
    longitud.iDecimales = 4;
    auto& altitud = campo("dAltitud", L"Altitud (m):", &m_situacion.dAltitud);
    altitud.limites = ui::Intervalo{-500.0, 10000.0};
    altitud.magnitud = kLongitud;
    m_altitud = &altitud;
    m_zona = &Anadir<ui::TextoFijo>("csZona", L"");
    m_zona->colocacion.grupo = kGrupoLugar;
}

void PanelLugar::AnadirCelulas()
{
    const auto campo = [this](const char* nombre, const wchar_t* csRotulo, double& d,
                              ui::Intervalo limites) -> ui::Edicion& {
        auto& edicion = Anadir<ui::Edicion>(nombre, csRotulo);
        edicion.colocacion.grupo = kGrupoCelulas;
        edicion.destino = &d;
        edicion.limites = limites;
        edicion.iDecimales = 1;
        edicion.magnitud = kTemperatura;
        m_campos.Anadir(edicion);
        return edicion;
    };
    campo("dCelulasMinima", L"Mínima:", m_celulas.dMinima, kCelulasMinimas);
    campo("dCelulasMaxima", L"Máxima:", m_celulas.dMaxima, kCelulasMaximas).colocacion.iColumna = 1;
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
        edicion.magnitud = kRadiacion;
        m_campos.Anadir(edicion);
        m_figuras.push_back(&edicion);
        m_radiaciones.push_back(&edicion);
    }
    auto& pvgis = Anadir<ui::Boton>("PVGIS", L"Radiación de PVGIS…");
    pvgis.colocacion.grupo = kGrupoRadiacion;
    pvgis.csIndicacion = L"Pide al servicio PVGIS la radiación de la latitud y la longitud";
    pvgis.alPulsar = [this] { PedirRadiacion(); };
}

// The places that answer to what is searched, the best first; the project's own among them.
void PanelLugar::Ofrecer()
{
    const CString csBuscado = PlegarTexto(m_csBuscar);
    std::array<std::vector<const Localidad*>, static_cast<std::size_t>(Respuesta::ninguna)> porRespuesta;
    const Localidad* esta = nullptr;
    for (const Localidad& l : m_localidades) {
        if (LugarDe(l) == m_lugar)
            esta = &l;
        const Respuesta respuesta = !csBuscado.empty()       ? Responde(l, csBuscado)
                                    : l.bMayor || esta == &l ? Respuesta::dentro
                                                             : Respuesta::ninguna;
        if (respuesta != Respuesta::ninguna)
            porRespuesta.at(static_cast<std::size_t>(respuesta)).push_back(&l);
    }
    m_ofrecidas.clear();
    for (const auto& iguales : porRespuesta)
        m_ofrecidas.insert(m_ofrecidas.end(), iguales.begin(), iguales.end());
    m_ofrecidas.resize(std::min(m_ofrecidas.size(), kOfrecidas));
    m_nResponden = csBuscado.empty() ? 0 : m_ofrecidas.size();
    if (esta != nullptr && std::ranges::find(m_ofrecidas, esta) == m_ofrecidas.end())
        m_ofrecidas.push_back(esta);
    m_seleccion->acsEntradas = {L"Datos propios"};
    for (const Localidad* l : m_ofrecidas)
        m_seleccion->acsEntradas.push_back(NombreConProvincia(*l));
    const auto igual = [this](const Localidad* l) { return LugarDe(*l) == m_lugar; };
    const auto hallada = std::ranges::find_if(m_ofrecidas, igual);
    // A place that the file no longer has keeps its figures as one's own.
    m_iLugar = m_lugar.bPropio != 0 || hallada == m_ofrecidas.end()
                   ? 0
                   : static_cast<int>(hallada - m_ofrecidas.begin()) + 1;
    m_seleccion->iSeleccion = m_iLugar;
}

void PanelLugar::DecirHallados()
{
    m_hallados->bVisible = !m_csBuscar.empty();
    m_hallados->csTexto = L"Ningún lugar se llama así.";
    if (m_nResponden == 0)
        return;
    const CString csCuantos =
        m_nResponden == 1
            ? CString(L"1 lugar")
            : std::to_wstring(m_nResponden) + (m_nResponden < kOfrecidas ? L" lugares" : L" lugares o más");
    m_hallados->csTexto = csCuantos + L"; Intro elige " + NombreConProvincia(*m_ofrecidas.front()) + L".";
}

bool PanelLugar::ElegirPrimero()
{
    if (m_nResponden == 0)
        return false;
    Elegir(*m_seleccion, 1);
    m_hallados->bVisible = false;
    return true;
}

// The climate record stays the person's choice.
void PanelLugar::Situar(const Localidad& localidad)
{
    CString csRegistro = std::move(m_situacion.csRegistro);
    m_situacion = SituacionDe(localidad);
    m_situacion.csRegistro = std::move(csRegistro);
}

void PanelLugar::PedirRadiacion()
{
    if (!m_campos.Tomar())
        return m_campos.Avisar(*this);
    const auto radiacion = estudio::PedirRadiacion(m_lugar.dLatitud, m_situacion.dLongitud);
    if (!radiacion)
        return;
    std::ranges::copy(*radiacion, m_lugar.adRadHorizontal);
    m_lugar.bPropio = 1;
    Mostrar();
    AlCambiar();
}

void PanelLugar::AlElegir()
{
    if (m_seleccion->iSeleccion > 0) {
        const Localidad& elegida = *m_ofrecidas.at(static_cast<std::size_t>(m_seleccion->iSeleccion) - 1);
        m_lugar = LugarDe(elegida);
        Situar(elegida);
    } else {
        // The figures of the place that stood there, to be changed.
        m_lugar.bPropio = 1;
    }
    Mostrar();
    AlCambiar();
}

// A latitude has the sign of its hemisphere, whichever of both was given.
void PanelLugar::AlElegirHemisferio()
{
    Recoger(*m_hemisferio);
    if (m_lugar.dLatitud != 0.0 && (m_lugar.dLatitud < 0.0) == (m_lugar.iHemisferio == 1)) {
        m_lugar.dLatitud = -m_lugar.dLatitud;
        ui::VolcarCampo(*m_latitud);
    }
    AlCambiar();
}

// What is at fault keeps what the project has.
void PanelLugar::AlCambiar()
{
    CProyectoEstudio& proyecto = m_sesion.Proyecto();
    if (m_lugar.dLatitud != proyecto.lugar.dLatitud && m_lugar.dLatitud != 0.0) {
        m_lugar.iHemisferio = m_lugar.dLatitud < 0.0 ? 0 : 1;
        ui::VolcarCampo(*m_hemisferio);
    }
    m_nota->csTexto = m_campos.TextoFalta();
    if (m_iLugar == 0)
        m_lugar.bPropio = 1;
    proyecto.csNombre = m_csProyecto;
    proyecto.lugar = m_lugar;
    proyecto.situacion = m_delProyecto = m_situacion;
    proyecto.celulas = m_celulas;
    m_sesion.Cambiado();
}

void PanelLugar::Actualizar()
{
    const CProyectoEstudio& proyecto = m_sesion.Proyecto();
    m_situacion.csRegistro = proyecto.situacion.csRegistro;
    m_delProyecto.csRegistro = proyecto.situacion.csRegistro;
    const bool bMismas = proyecto.csNombre == m_csProyecto && proyecto.lugar == m_lugar &&
                         proyecto.situacion == m_delProyecto && proyecto.celulas == m_celulas;
    if (std::exchange(m_mostrado, &proyecto) == &proyecto && bMismas)
        return;
    m_csProyecto = proyecto.csNombre;
    m_lugar = proyecto.lugar;
    m_situacion = m_delProyecto = proyecto.situacion;
    m_celulas = proyecto.celulas;
    Mostrar();
}

void PanelLugar::Mostrar()
{
    Ofrecer();
    m_zona->csTexto.clear();
    if (m_iLugar > 0) {
        // Projects of earlier programs know no more than the latitude.
        const Localidad& esta = *m_ofrecidas[static_cast<std::size_t>(m_iLugar) - 1];
        Situar(esta);
        Situacion& delProyecto = m_sesion.Proyecto().situacion;
        if (delProyecto.dLongitud == 0.0 && delProyecto.dAltitud == 0.0)
            delProyecto = m_delProyecto = m_situacion;
        if (!esta.csZonaHE5.empty())
            m_zona->csTexto = L"Zonas HE1 " + esta.csZonaHE1 + L", HE5 " + esta.csZonaHE5 +
                              L" (por su clima de referencia; la legal puede ser otra)";
    }
    for (ui::Edicion* edicion : m_figuras) {
        edicion->bSoloLectura = m_iLugar != 0;
        // A place of the list isn't rounded to what is shown of it.
        edicion->intercambio = m_iLugar != 0 ? ui::Intercambio::soloMuestra : ui::Intercambio::automatico;
    }
    m_hemisferio->bHabilitado = m_iLugar == 0;
    m_nota->csTexto.clear();
    m_campos.Olvidar();
    Volcar();
}

}  // namespace efv::estudio

#include "proyecto/sesion.h"

#include <algorithm>
#include <filesystem>
#include <new>

#include "clima/estudios.h"
#include "efv/diseno/proyecto_json.h"
#include "proyecto/fichero.h"
#include "proyecto/vigencia.h"

namespace efv::estudio {

namespace {

constexpr std::wstring_view kSufijo = L".efvp";
constexpr std::wstring_view kPrograma = L"efv-estudio";

ui::PeticionFichero Peticion(const wchar_t* csTitulo, bool bGuardar)
{
    ui::PeticionFichero peticion{
        csTitulo, {{L"Proyectos (*.efvp)", L"*.efvp"}, {L"Todos los archivos (*)", L"*"}}, bGuardar, {}};
    if (!bGuardar)
        peticion.filtros.insert(peticion.filtros.begin(),
                                {L"Proyectos y JSON (*.efvp *.json)", L"*.efvp *.json"});
    return peticion;
}

std::filesystem::path RutaDe(const CString& cs)
{
    return CadenaUtf8(cs);
}

// A file name for a project's name.
CString FicheroPara(CString csNombre)
{
    std::ranges::replace(csNombre, L'/', L'-');
    return (csNombre.empty() ? CString(L"Proyecto") : csNombre) + CString(kSufijo);
}

void MostrarFallo(const std::exception& fallo)
{
    ui::MostrarAviso(CadenaDesdeUtf8(fallo.what()), ui::Icono::error);
}

}  // namespace

Sesion::Sesion(Lugar lugar, Situacion situacion) : m_lugar(std::move(lugar)), m_situacion(std::move(situacion))
{
    Poner(Vacio(), {}, {});
}

std::unique_ptr<CProyectoEstudio> Sesion::Vacio() const
{
    auto proyecto = std::make_unique<CProyectoEstudio>();
    proyecto->lugar = m_lugar;
    proyecto->situacion = m_situacion;
    return proyecto;
}

CString Sesion::Titulo() const
{
    const CString& csNombre = m_proyecto->csNombre;
    CString csTitulo = csNombre.empty() ? CString(L"Proyecto") : csNombre;
    if (!m_csRuta.empty())
        csTitulo += L" (" + CadenaDesdeUtf8(RutaDe(m_csRuta).filename().string()) + L")";
    return csTitulo + L"[*] - " + CString(kPrograma);
}

void Sesion::Cambiado(std::wstring_view csPaso)
{
    auto bytes = BytesDe(*m_proyecto);
    if (bytes != m_actual) {
        m_historial.Anadir(m_actual, bytes,
                           csPaso.empty() ? L"cambio " + QueCambia(m_actual, bytes) : CString(csPaso));
        m_actual = std::move(bytes);
    }
    Avisar();
}

// The project that the bytes say, in the place of the open one.
void Sesion::Tomar(std::vector<std::byte> bytes)
{
    m_proyecto = ProyectoDe(bytes);
    m_actual = std::move(bytes);
    Avisar();
}

void Sesion::Deshacer()
{
    if (!QueDeshacer().empty())
        Tomar(m_historial.Deshacer(m_actual));
}

void Sesion::Rehacer()
{
    if (!QueRehacer().empty())
        Tomar(m_historial.Rehacer(m_actual));
}

void Sesion::Poner(std::unique_ptr<CProyectoEstudio> proyecto, const CString& csRuta,
                   std::optional<Huella> huella)
{
    AnotarLoQueFalte(*proyecto);
    m_guardado = m_actual = BytesDe(*proyecto);
    m_proyecto = std::move(proyecto);
    m_historial.Vaciar();
    m_csRuta = csRuta;
    m_huella = m_vista = huella;
    Avisar();
}

void Sesion::Recuperar(std::unique_ptr<CProyectoEstudio> proyecto, const CString& csRuta,
                       std::optional<Huella> huella)
{
    Poner(std::move(proyecto), csRuta, huella);
    m_guardado.clear();
    Avisar();
}

void Sesion::Avisar()
{
    m_bModificado = m_actual != m_guardado;
    UsarModelosDe(*m_proyecto);
    if (alCambiar)
        alCambiar();
}

void Sesion::Nuevo()
{
    Nuevo(Vacio());
}

void Sesion::Nuevo(std::unique_ptr<CProyectoEstudio> proyecto)
{
    if (!PuedeCerrarse())
        return;
    if (proyecto->lugar == m_lugar)
        proyecto->situacion = m_situacion;
    Poner(std::move(proyecto), {}, {});
}

void Sesion::Abrir()
{
    if (!PuedeCerrarse())
        return;
    if (const auto csRuta = ui::PresentadorActual().ElegirFichero(Peticion(L"Abrir proyecto", false)))
        Cargar(*csRuta);
}

bool Sesion::Abrir(const CString& csRuta)
{
    return PuedeCerrarse() && Cargar(csRuta);
}

bool Sesion::Cargar(const CString& csRuta)
{
    try {
        if (EsJson(csRuta)) {
            CargarJson(csRuta);
            return true;
        }
        auto [proyecto, huella] = LeerProyecto(csRuta);
        Recordar(csRuta);
        Poner(std::move(proyecto), csRuta, huella);
        return true;
    } catch (const std::exception& fallo) {
        MostrarFallo(fallo);
        return false;
    }
}

void Sesion::CargarJson(const CString& csRuta)
{
    // What the file loads goes with its project, or with the one that stays open.
    struct Registro {
        ~Registro() { RecargarRegistro(); }
    };
    auto [proyecto, notas] = [&] {
        const ui::Espera espera;
        const Registro despues;
        return orden::AbrirProyectoJson(CadenaUtf8(csRuta), m_datos);
    }();
    Recordar(csRuta);
    UsarModelosDe(*proyecto);
    AnotarAceptado(*proyecto, Diseno::aislada);
    AnotarAceptado(*proyecto, Diseno::red);
    Recuperar(std::move(proyecto), {}, {});
    CString csNotas;
    for (const std::string& nota : notas)
        csNotas += (csNotas.empty() ? L"" : L"\n") + CadenaDesdeUtf8(nota);
    if (!csNotas.empty())
        ui::MostrarAviso(csNotas, ui::Icono::informacion);
}

bool Sesion::Guardar()
{
    if (m_csRuta.empty())
        return GuardarComo();
    return (!puedeGuardarse || puedeGuardarse()) && GuardarEn(m_csRuta);
}

bool Sesion::GuardarComo()
{
    if (puedeGuardarse && !puedeGuardarse())
        return false;
    ui::PeticionFichero peticion = Peticion(L"Guardar proyecto", true);
    peticion.csPropuesto = m_csRuta.empty() ? FicheroPara(m_proyecto->csNombre) : m_csRuta;
    const auto csRuta = ui::PresentadorActual().ElegirFichero(peticion);
    return csRuta && GuardarEn(*csRuta);
}

Sesion::Escritura Sesion::Escribir(const CString& csRuta)
{
    if (csRuta != m_csRuta) {
        EscribirProyecto(m_actual, csRuta);
        return Escritura::hecha;
    }
    std::optional<Huella> conocida = m_huella;
    while (!ActualizarProyecto(m_actual, csRuta, conocida)) {
        // Where nothing stands any more, nothing is lost.
        if (!conocida)
            continue;
        switch (ui::PresentadorActual().MostrarMensaje(
            {CString(kPrograma),
             L"Otro programa ha cambiado el archivo <" + csRuta +
                 L"> desde que se abrió.\nAl sustituirlo se pierde lo que contiene ahora.",
             ui::Icono::advertencia,
             ui::Botones::siNoCancelar,
             L"&Sustituirlo",
             L"Guardar con &otro nombre…",
             {},
             ui::Respuesta::no})) {
            case ui::Respuesta::si:
                break;
            case ui::Respuesta::no:
                return GuardarComo() ? Escritura::enOtro : Escritura::ninguna;
            default:
                return Escritura::ninguna;
        }
    }
    return Escritura::hecha;
}

bool Sesion::GuardarEn(const CString& csRuta)
{
    try {
        Cambiado();
        if (const Escritura escritura = Escribir(csRuta); escritura != Escritura::hecha)
            return escritura == Escritura::enOtro;
        m_huella = m_vista = HuellaDe(m_actual);
        m_guardado = m_actual;
    } catch (const std::bad_alloc&) {
        ui::MostrarAviso(L"No se puede guardar «" + csRuta + L"».\nMemoria insuficiente.", ui::Icono::error);
        return false;
    } catch (const std::exception& fallo) {
        MostrarFallo(fallo);
        return false;
    }
    m_csRuta = csRuta;
    Recordar(csRuta);
    Avisar();
    return true;
}

void Sesion::ComprobarFichero()
{
    if (m_csRuta.empty())
        return;
    const std::optional<EstadoProyecto> estado = MirarProyecto(m_csRuta);
    // What can't be read now is looked at again.
    if (!estado || estado->huella == m_vista)
        return;
    m_vista = estado->huella;
    if (m_vista == m_huella)
        return;
    // Nothing that is open stands in the file any more.
    const bool bConCambios = m_bModificado;
    m_guardado.clear();
    Avisar();
    if (!m_vista) {
        ui::MostrarAviso(
            L"El archivo «" + m_csRuta +
                L"» ya no está en su sitio.\nEl proyecto sigue abierto: guárdelo para no perderlo.",
            ui::Icono::advertencia);
        return;
    }
    CString csTexto = L"Otro programa ha cambiado el archivo «" + m_csRuta + L"».";
    if (bConCambios)
        csTexto += L"\nLos cambios sin guardar dejarán de verse al cargarlo; «Deshacer» los recupera.";
    if (ui::PresentadorActual().MostrarMensaje({CString(kPrograma), csTexto, ui::Icono::pregunta,
                                                ui::Botones::siNo, L"&Cargarlo de nuevo",
                                                L"&Seguir con el mío"}) == ui::Respuesta::si)
        CargarOtraVez();
}

// What was open stays within reach as the step before.
void Sesion::CargarOtraVez()
{
    try {
        auto [proyecto, huella] = LeerProyecto(m_csRuta);
        AnotarLoQueFalte(*proyecto);
        m_guardado = BytesDe(*proyecto);
        m_huella = m_vista = huella;
        m_proyecto = std::move(proyecto);
        Cambiado(L"carga del archivo");
    } catch (const std::exception& fallo) {
        MostrarFallo(fallo);
    }
}

bool Sesion::PuedeCerrarse()
{
    if (!m_bModificado)
        return true;
    switch (ui::PresentadorActual().MostrarMensaje(
        {CString(kPrograma), L"El proyecto «" + m_proyecto->csNombre + L"» ha cambiado.\n¿Desea guardarlo?",
         ui::Icono::pregunta, ui::Botones::siNoCancelar, L"&Guardar", L"&No guardar"})) {
        case ui::Respuesta::si:
            return Guardar();
        case ui::Respuesta::no:
            return true;
        default:
            return false;
    }
}

void Sesion::Recordar(const CString& csRuta)
{
    const CString csEntera = CadenaDesdeUtf8(std::filesystem::absolute(RutaDe(csRuta)).string());
    std::vector<CString> recientes = m_recientes.leer();
    std::erase(recientes, csEntera);
    recientes.insert(recientes.begin(), csEntera);
    recientes.resize(std::min(recientes.size(), kRecientes));
    m_recientes.escribir(recientes);
}

}  // namespace efv::estudio

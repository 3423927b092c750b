#include "proyecto/sesion.h"

#include <algorithm>
#include <filesystem>
#include <new>

#include "proyecto/fichero.h"

namespace efv::estudio {

namespace {

constexpr std::wstring_view kSufijo = L".efvp";
constexpr std::wstring_view kPrograma = L"efv-estudio";

ui::PeticionFichero Peticion(const wchar_t* csTitulo, bool bGuardar)
{
    return {csTitulo, {{L"Proyectos (*.efvp)", L"*.efvp"}, {L"Todos los archivos (*)", L"*"}}, bGuardar, {}};
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
    Poner(Vacio(), {});
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

void Sesion::Cambiado()
{
    m_bModificado = BytesDe(*m_proyecto) != m_guardado;
    Avisar();
}

void Sesion::Poner(std::unique_ptr<CProyectoEstudio> proyecto, const CString& csRuta)
{
    m_guardado = BytesDe(*proyecto);
    m_proyecto = std::move(proyecto);
    m_csRuta = csRuta;
    m_bModificado = false;
    Avisar();
}

void Sesion::Avisar() const
{
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
    Poner(std::move(proyecto), {});
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
        auto [proyecto, huella] = LeerProyecto(csRuta);
        Recordar(csRuta);
        m_huella = huella;
        Poner(std::move(proyecto), csRuta);
        return true;
    } catch (const std::exception& fallo) {
        MostrarFallo(fallo);
        return false;
    }
}

bool Sesion::Guardar()
{
    return m_csRuta.empty() ? GuardarComo() : GuardarEn(m_csRuta);
}

bool Sesion::GuardarComo()
{
    ui::PeticionFichero peticion = Peticion(L"Guardar proyecto", true);
    peticion.csPropuesto = m_csRuta.empty() ? FicheroPara(m_proyecto->csNombre) : m_csRuta;
    const auto csRuta = ui::PresentadorActual().ElegirFichero(peticion);
    return csRuta && GuardarEn(*csRuta);
}

bool Sesion::Escribir(std::span<const std::byte> bytes, const CString& csRuta) const
{
    if (csRuta != m_csRuta) {
        EscribirProyecto(bytes, csRuta);
        return true;
    }
    std::optional<Huella> conocida = m_huella;
    while (!ActualizarProyecto(bytes, csRuta, conocida))
        if (!ui::Preguntar(L"Otro programa ha cambiado el archivo <" + csRuta +
                           L"> desde que se abrió. ¿Desea sustituirlo por el proyecto abierto?"))
            return false;
    return true;
}

bool Sesion::GuardarEn(const CString& csRuta)
{
    try {
        auto bytes = BytesDe(*m_proyecto);
        if (!Escribir(bytes, csRuta))
            return false;
        m_huella = HuellaDe(bytes);
        m_guardado = std::move(bytes);
    } catch (const std::bad_alloc&) {
        ui::MostrarAviso(L"No se puede guardar «" + csRuta + L"».\nMemoria insuficiente.", ui::Icono::error);
        return false;
    } catch (const std::exception& fallo) {
        MostrarFallo(fallo);
        return false;
    }
    m_csRuta = csRuta;
    m_bModificado = false;
    Recordar(csRuta);
    Avisar();
    return true;
}

bool Sesion::PuedeCerrarse()
{
    if (!m_bModificado)
        return true;
    switch (ui::PresentadorActual().MostrarMensaje(
        {CString(kPrograma), L"El proyecto «" + m_proyecto->csNombre + L"» ha cambiado.\n¿Desea guardarlo?",
         ui::Icono::pregunta, ui::Botones::siNoCancelar})) {
        case ui::Respuesta::si:
            return Guardar();
        case ui::Respuesta::no:
            return true;
        default:
            return false;
    }
}

void Sesion::PonerRecientes(std::vector<CString> recientes)
{
    m_recientes = std::move(recientes);
    m_recientes.resize(std::min(m_recientes.size(), kRecientes));
    Avisar();
}

void Sesion::Recordar(const CString& csRuta)
{
    const CString csEntera = CadenaDesdeUtf8(std::filesystem::absolute(RutaDe(csRuta)).string());
    std::erase(m_recientes, csEntera);
    m_recientes.insert(m_recientes.begin(), csEntera);
    m_recientes.resize(std::min(m_recientes.size(), kRecientes));
}

}  // namespace efv::estudio

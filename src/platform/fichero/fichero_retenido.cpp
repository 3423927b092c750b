#include <algorithm>
#include <cerrno>
#include <new>
#include <random>
#include <thread>
#include <utility>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>

#include "platform/fichero/lectura.h"
#include "platform/fichero/motivos.h"

namespace efv {

namespace {

constexpr int kEnlacesMaximo = 40;  // as the system itself follows
constexpr int kIntentosNombre = 16;
constexpr std::chrono::milliseconds kPausa{20};
constexpr unsigned kPermisosNuevo = 0666, kPermisosProvisional = 0600;

// Name of a provisional file: short whatever the file's own is, and told from other files by its form.
constexpr std::string_view kPrefijo = ".efv-", kSufijo = ".tmp";
constexpr std::size_t kCifras = 16;

std::string NombreProvisional()
{
    std::random_device azar;
    const std::uint64_t uAlto = azar(), uBajo = azar();
    return fmt::format("{}{:016x}{}", kPrefijo, (uAlto << 32U) | (uBajo & 0xFFFFFFFFU), kSufijo);
}

bool EsProvisional(std::string_view nombre)
{
    return nombre.size() == kPrefijo.size() + kCifras + kSufijo.size() && nombre.starts_with(kPrefijo) &&
           nombre.ends_with(kSufijo) &&
           nombre.substr(kPrefijo.size(), kCifras).find_first_not_of("0123456789abcdef") == nombre.npos;
}

std::string CarpetaDe(const std::string& ruta)
{
    const std::size_t barra = ruta.rfind('/');
    if (barra == std::string::npos)
        return ".";
    return barra == 0 ? "/" : ruta.substr(0, barra);
}

// A disk may know no locks; what replaces the file still notices another writer's change.
bool SinCerrojos(int iError)
{
    return iError == -EOPNOTSUPP || iError == -ENOLCK || iError == -EINVAL || iError == -EBADF ||
           iError == -ENOSYS;
}

}  // namespace

Huella HuellaDe(std::string_view bytes)
{
    // FNV-1a of 64 bits
    std::uint64_t uResumen = 0xCBF29CE484222325U;
    for (const char c : bytes)
        uResumen = (uResumen ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return {bytes.size(), uResumen};
}

FicheroRetenido::FicheroRetenido(std::string ruta, SistemaFicheros& sistema)
    : m_sistema(&sistema), m_pedida(std::move(ruta)), m_ruta(m_pedida)
{
}

// What is thrown here finds a whole object, whose destructor lets go what it holds.
FicheroRetenido::FicheroRetenido(SistemaFicheros& sistema, std::string ruta, std::chrono::milliseconds espera)
    : FicheroRetenido(std::move(ruta), sistema)
{
    if (m_ruta.empty() || m_ruta.find('\0') != std::string::npos)
        throw CFileException(CFileException::generica,
                             m_pedida.substr(0, m_pedida.find('\0')) + ": el nombre no es válido");
    SeguirEnlaces();
    m_carpeta = CarpetaDe(m_ruta);
    Retener(espera);
}

FicheroRetenido::FicheroRetenido(FicheroRetenido&& otro) noexcept
    : m_sistema(otro.m_sistema),
      m_pedida(std::move(otro.m_pedida)),
      m_ruta(std::move(otro.m_ruta)),
      m_carpeta(std::move(otro.m_carpeta)),
      m_iFichero(std::exchange(otro.m_iFichero, -1)),
      m_leido(otro.m_leido),
      m_iProvisional(std::exchange(otro.m_iProvisional, -1)),
      m_provisional(std::exchange(otro.m_provisional, {}))
{
}

FicheroRetenido::~FicheroRetenido()
{
    SoltarProvisional();
    SoltarFichero();
}

void FicheroRetenido::Fallar(int iError) const
{
    throw CFileException(fichero::Causa(-iError), m_pedida + ": " + fichero::Motivo(-iError));
}

void FicheroRetenido::FallarPorCambio() const
{
    throw CFileException(CFileException::violacionComparticion,
                         m_pedida + ": otro programa lo ha cambiado mientras tanto");
}

void FicheroRetenido::SeguirEnlaces()
{
    for (int i = 0; i < kEnlacesMaximo; ++i) {
        DatosFichero datos;
        std::string destino;
        const int iError = m_sistema->Estado(m_ruta, datos);
        if (iError == -ENOENT || (iError == 0 && datos.clase != DatosFichero::Clase::enlace))
            return;
        if (iError < 0)
            Fallar(iError);
        if (const int iFallo = m_sistema->LeerEnlace(m_ruta, destino); iFallo < 0)
            Fallar(iFallo);
        m_ruta = destino.starts_with('/') ? destino : CarpetaDe(m_ruta) + '/' + destino;
    }
    Fallar(-ELOOP);
}

void FicheroRetenido::Retener(std::chrono::milliseconds espera)
{
    const auto limite = std::chrono::steady_clock::now() + espera;
    while (Abrir()) {
        const int iError = m_sistema->Bloquear(m_iFichero);
        // While one waited, the file may have been replaced by another.
        if ((iError >= 0 || SinCerrojos(iError)) && SigueEnSuSitio())
            return;
        if (iError < 0 && iError != -EWOULDBLOCK && !SinCerrojos(iError))
            Fallar(iError);
        if (std::chrono::steady_clock::now() >= limite) {
            const std::string quien = m_sistema->Ocupante(m_iFichero);
            throw CFileException(
                CFileException::violacionComparticion,
                fmt::format("{}: lo ocupa otro programa{}", m_pedida, quien.empty() ? "" : " (" + quien + ")"));
        }
        SoltarFichero();
        std::this_thread::sleep_for(kPausa);
    }
}

// False when there is no such file.
bool FicheroRetenido::Abrir()
{
    using Clase = DatosFichero::Clase;
    DatosFichero datos;
    int iError = m_sistema->Estado(m_ruta, datos);
    if (iError == -ENOENT)
        return false;
    // What is neither file nor folder isn't even opened: that alone may do something to a device.
    if (iError >= 0 && datos.clase == Clase::normal) {
        iError = m_iFichero = m_sistema->Abrir(m_ruta, Apertura::escritura);
        if (iError == -ENOENT)
            return Abrir();
        if (iError >= 0)
            iError = m_sistema->Estado(m_iFichero, datos);
    }
    if (iError < 0)
        Fallar(iError);
    if (datos.clase == Clase::carpeta)
        Fallar(-EISDIR);
    if (datos.clase != Clase::normal)
        throw CFileException(CFileException::accesoDenegado, m_pedida + ": no es un fichero normal");
    return true;
}

bool FicheroRetenido::SigueEnSuSitio() const
{
    DatosFichero abierto, nombrado;
    int iError = m_sistema->Estado(m_iFichero, abierto);
    if (iError >= 0)
        iError = m_sistema->Estado(m_ruta, nombrado);
    if (iError < 0 && iError != -ENOENT)
        Fallar(iError);
    return iError >= 0 && abierto.EsElMismo(nombrado);
}

std::string FicheroRetenido::Leer(std::size_t maximo)
{
    if (!Existe())
        Fallar(-ENOENT);
    if (const int iError = m_sistema->Rebobinar(m_iFichero); iError < 0)
        Fallar(iError);
    std::string bytes;
    const int iError = fichero::LeerTodo(*m_sistema, m_iFichero, maximo, bytes);
    if (iError == -EFBIG)
        throw CFileException(CFileException::generica, m_pedida + ": " + fichero::MotivoTamano(maximo));
    if (iError < 0)
        Fallar(iError);
    m_leido = HuellaDe(bytes);
    return bytes;
}

void FicheroRetenido::Preparar(std::string_view bytes)
{
    PrepararPorPartes([bytes](const Sumidero& sumidero) { sumidero(bytes); });
}

void FicheroRetenido::PrepararPorPartes(const std::function<void(const Sumidero&)>& escribir)
{
    SoltarProvisional();
    CrearProvisional();
    escribir([this](std::string_view bytes) { EscribirProvisional(bytes); });
    if (Existe()) {
        const int iError = m_sistema->CopiarAtributos(m_iFichero, m_iProvisional);
        // A disk without permissions of its own gives every file the same.
        if (iError < 0 && iError != -EPERM && iError != -EOPNOTSUPP)
            Fallar(iError);
    }
    if (const int iError = m_sistema->Vaciar(m_iProvisional); iError < 0)
        Fallar(iError);
}

void FicheroRetenido::CrearProvisional()
{
    // Nobody else reads a successor before it has the permissions of what it replaces.
    const unsigned uPermisos = Existe() ? kPermisosProvisional : kPermisosNuevo;
    m_iProvisional = m_sistema->CrearSinNombre(m_carpeta, uPermisos);
    for (int i = 0; i < kIntentosNombre && (m_iProvisional == -EOPNOTSUPP || m_iProvisional == -EEXIST); ++i) {
        std::string ruta = m_carpeta + '/' + NombreProvisional();
        m_iProvisional = m_sistema->Crear(ruta, uPermisos);
        if (m_iProvisional >= 0)
            m_provisional = std::move(ruta);
    }
    if (m_iProvisional < 0)
        Fallar(m_iProvisional);
    // The lock says that somebody is at work on it, should it get a name of this form.
    if (const int iError = m_sistema->Bloquear(m_iProvisional); iError < 0 && !SinCerrojos(iError))
        Fallar(iError);
}

void FicheroRetenido::EscribirProvisional(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::int64_t n = m_sistema->Escribir(m_iProvisional, bytes);
        if (n <= 0)
            Fallar(n < 0 ? static_cast<int>(n) : -ENOSPC);
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
}

void FicheroRetenido::DarNombreProvisional()
{
    int iError = -EEXIST;
    for (int i = 0; i < kIntentosNombre && iError == -EEXIST; ++i) {
        std::string ruta = m_carpeta + '/' + NombreProvisional();
        iError = m_sistema->Nombrar(m_iProvisional, ruta);
        if (iError >= 0)
            m_provisional = std::move(ruta);
    }
    if (iError < 0)
        Fallar(iError);
}

bool FicheroRetenido::HaCambiado() const
{
    if (!SigueEnSuSitio())
        return true;
    if (!m_leido)
        return false;
    std::string bytes;
    int iError = m_sistema->Rebobinar(m_iFichero);
    if (iError >= 0)
        iError = fichero::LeerTodo(*m_sistema, m_iFichero, m_leido->uTamano, bytes);
    if (iError < 0 && iError != -EFBIG)
        Fallar(iError);
    return iError == -EFBIG || HuellaDe(bytes) != *m_leido;
}

void FicheroRetenido::Confirmar()
{
    int iError = 0;
    if (Existe()) {
        if (m_provisional.empty())
            DarNombreProvisional();
        if (HaCambiado())
            FallarPorCambio();
        iError = m_sistema->Renombrar(m_provisional, m_ruta, true);
    } else if (m_provisional.empty()) {
        iError = m_sistema->Nombrar(m_iProvisional, m_ruta);
    } else {
        iError = m_sistema->Renombrar(m_provisional, m_ruta, false);
    }
    if (iError == -EEXIST)
        FallarPorCambio();
    if (iError < 0)
        Fallar(iError);
    m_provisional.clear();
    SoltarProvisional();
    SoltarFichero();
    // From here on the new content stands there; the rest is for a loss of power and for tidiness.
    if (const int iCarpeta = m_sistema->Abrir(m_carpeta, Apertura::carpeta); iCarpeta >= 0) {
        m_sistema->Vaciar(iCarpeta);
        m_sistema->Cerrar(iCarpeta);
    }
    try {
        BarrerAbandonados();
    } catch (const std::bad_alloc&) {
        return;  // next time
    }
}

// A process that is killed just before the renaming leaves its file behind, which nobody holds any more.
void FicheroRetenido::BarrerAbandonados() const
{
    std::vector<std::string> nombres;
    m_sistema->Listar(m_carpeta, nombres);
    for (const std::string& nombre : nombres) {
        const std::string ruta = m_carpeta + '/' + nombre;
        DatosFichero datos;
        if (!EsProvisional(nombre) || m_sistema->Estado(ruta, datos) < 0 || !datos.bPropio ||
            datos.clase != DatosFichero::Clase::normal)
            continue;
        const int iFichero = m_sistema->Abrir(ruta, Apertura::lectura);
        if (iFichero < 0)
            continue;
        if (m_sistema->Bloquear(iFichero) >= 0)
            m_sistema->Borrar(ruta);
        m_sistema->Cerrar(iFichero);
    }
}

void FicheroRetenido::SoltarProvisional() noexcept
{
    if (!m_provisional.empty())
        m_sistema->Borrar(m_provisional);
    m_provisional.clear();
    if (m_iProvisional >= 0)
        m_sistema->Cerrar(m_iProvisional);
    m_iProvisional = -1;
}

void FicheroRetenido::SoltarFichero() noexcept
{
    if (m_iFichero >= 0)
        m_sistema->Cerrar(m_iFichero);
    m_iFichero = -1;
}

void ReemplazarFichero(SistemaFicheros& sistema, const std::string& ruta, std::string_view bytes)
{
    FicheroRetenido fichero(sistema, ruta);
    fichero.Reemplazar(bytes);
}

bool ReemplazarSiSigue(SistemaFicheros& sistema, const std::string& ruta, std::string_view bytes,
                       std::optional<Huella>& conocida, std::size_t maximo)
{
    FicheroRetenido fichero(sistema, ruta);
    std::optional<Huella> actual;
    if (fichero.Existe())
        actual = HuellaDe(fichero.Leer(maximo));
    if (actual == conocida)
        fichero.Reemplazar(bytes);
    return actual == std::exchange(conocida, actual);
}

std::string MotivoDelSistema(int iError)
{
    return fichero::Motivo(iError);
}

std::string MotivoSinRuta(const CFileException& error, const std::string& ruta)
{
    std::string_view motivo = error.what();
    if (motivo.starts_with(ruta + ": "))
        motivo.remove_prefix(ruta.size() + 2);
    return std::string(motivo);
}

void CrearCarpetas(SistemaFicheros& sistema, const std::string& ruta)
{
    std::string hecha;
    for (std::size_t i = 0; i < ruta.size();) {
        const std::size_t fin = std::min(ruta.find('/', i + 1), ruta.size());
        hecha = ruta.substr(0, fin);
        i = fin;
        const int iError = hecha == "/" ? -EEXIST : sistema.CrearCarpeta(hecha);
        if (iError >= 0 || iError == -EEXIST)
            continue;
        // A folder above may be one that can't be written but is there.
        const int iCarpeta = sistema.Abrir(hecha, Apertura::carpeta);
        if (iCarpeta < 0)
            throw CFileException(fichero::Causa(-iError), ruta + ": " + fichero::Motivo(-iError));
        sistema.Cerrar(iCarpeta);
    }
    const int iCarpeta = sistema.Abrir(ruta, Apertura::carpeta);
    if (iCarpeta < 0)
        throw CFileException(fichero::Causa(-iCarpeta), ruta + ": " + fichero::Motivo(-iCarpeta));
    sistema.Cerrar(iCarpeta);
}

}  // namespace efv

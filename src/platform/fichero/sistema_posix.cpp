#include "platform/fichero/sistema_posix.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <ctime>

#include <dirent.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/fichero/atributos_posix.h"

namespace efv {

namespace {

// A call's result, its error as a negative number; interrupted calls are made again.
template <class Llamada>
auto Hacer(Llamada llamada)
{
    for (;;) {
        const auto n = llamada();
        if (n >= 0)
            return n;
        if (errno != EINTR)
            return decltype(n){-errno};
    }
}

// A write beyond the process's limit of file size answers EFBIG, and sends a signal that would end the
// process: here it is taken back before anybody gets it, whatever the program does with that signal.
class SinSenalDeTamano {
public:
    SinSenalDeTamano()
    {
        ::sigemptyset(&m_senal);
        ::sigaddset(&m_senal, SIGXFSZ);
        sigset_t pendientes;
        ::sigpending(&pendientes);
        m_bYaPendiente = ::sigismember(&pendientes, SIGXFSZ) == 1;
        ::pthread_sigmask(SIG_BLOCK, &m_senal, &m_antes);
    }
    ~SinSenalDeTamano()
    {
        const int iError = errno;
        const timespec sinEspera = {};
        while (!m_bYaPendiente && ::sigtimedwait(&m_senal, nullptr, &sinEspera) < 0 && errno == EINTR) {
        }
        ::pthread_sigmask(SIG_SETMASK, &m_antes, nullptr);
        errno = iError;
    }
    SinSenalDeTamano(const SinSenalDeTamano&) = delete;
    SinSenalDeTamano& operator=(const SinSenalDeTamano&) = delete;

private:
    sigset_t m_senal{};
    sigset_t m_antes{};
    bool m_bYaPendiente = false;
};

void Traducir(const struct stat& estado, DatosFichero& datos)
{
    using Clase = DatosFichero::Clase;
    datos.clase = S_ISREG(estado.st_mode)   ? Clase::normal
                  : S_ISDIR(estado.st_mode) ? Clase::carpeta
                  : S_ISLNK(estado.st_mode) ? Clase::enlace
                                            : Clase::otra;
    datos.uDispositivo = estado.st_dev;
    datos.uNumero = estado.st_ino;
    datos.uTamano = static_cast<std::uint64_t>(estado.st_size);
    datos.bPropio = estado.st_uid == ::geteuid();
}

std::string RutaDeDescriptor(int iFichero)
{
    return "/proc/self/fd/" + std::to_string(iFichero);
}

}  // namespace

int SistemaPosix::Abrir(const std::string& ruta, Apertura modo)
{
    const int iModo = modo == Apertura::escritura ? O_RDWR
                      : modo == Apertura::carpeta ? O_RDONLY | O_DIRECTORY
                                                  : O_RDONLY;
    return Hacer([&] { return ::open(ruta.c_str(), iModo | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); });
}

int SistemaPosix::Crear(const std::string& ruta, unsigned uPermisos)
{
    return Hacer([&] { return ::open(ruta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, uPermisos); });
}

int SistemaPosix::CrearSinNombre(const std::string& carpeta, unsigned uPermisos)
{
#if defined(O_TMPFILE)
    // Without this folder such a file could get no name later.
    if (::access("/proc/self/fd", X_OK) != 0)
        return -EOPNOTSUPP;
    const int iFichero =
        Hacer([&] { return ::open(carpeta.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, uPermisos); });
    // Older systems take the unknown option for the opening of a folder.
    return iFichero == -EISDIR || iFichero == -EINVAL ? -EOPNOTSUPP : iFichero;
#else
    return -EOPNOTSUPP;
#endif
}

void SistemaPosix::Cerrar(int iFichero)
{
    ::close(iFichero);
}

std::int64_t SistemaPosix::Leer(int iFichero, std::span<char> bytes)
{
    return Hacer([&] { return ::read(iFichero, bytes.data(), bytes.size()); });
}

int SistemaPosix::Rebobinar(int iFichero)
{
    return ::lseek(iFichero, 0, SEEK_SET) < 0 ? -errno : 0;
}

std::int64_t SistemaPosix::Escribir(int iFichero, std::string_view bytes)
{
    const SinSenalDeTamano sinSenal;
    return Hacer([&] { return ::write(iFichero, bytes.data(), bytes.size()); });
}

int SistemaPosix::Vaciar(int iFichero)
{
    return Hacer([&] { return ::fsync(iFichero); });
}

int SistemaPosix::Bloquear(int iFichero)
{
    return Hacer([&] { return ::flock(iFichero, LOCK_EX | LOCK_NB); });
}

std::string SistemaPosix::Ocupante(int iFichero)
{
    struct stat estado = {};
    return ::fstat(iFichero, &estado) == 0 ? fichero::OcupanteDe(estado) : std::string();
}

int SistemaPosix::Estado(int iFichero, DatosFichero& datos)
{
    struct stat estado = {};
    if (::fstat(iFichero, &estado) != 0)
        return -errno;
    Traducir(estado, datos);
    return 0;
}

int SistemaPosix::Estado(const std::string& ruta, DatosFichero& datos)
{
    struct stat estado = {};
    if (::lstat(ruta.c_str(), &estado) != 0)
        return -errno;
    Traducir(estado, datos);
    return 0;
}

int SistemaPosix::LeerEnlace(const std::string& ruta, std::string& destino)
{
    destino.assign(PATH_MAX, '\0');
    const ssize_t n = ::readlink(ruta.c_str(), destino.data(), destino.size());
    const int iError = n < 0 ? -errno : 0;
    destino.resize(n < 0 ? 0 : static_cast<std::size_t>(n));
    return iError;
}

int SistemaPosix::CopiarAtributos(int iViejo, int iNuevo)
{
    return fichero::CopiarAtributos(iViejo, iNuevo);
}

int SistemaPosix::Nombrar(int iFichero, const std::string& ruta)
{
    return Hacer([&] {
        return ::linkat(AT_FDCWD, RutaDeDescriptor(iFichero).c_str(), AT_FDCWD, ruta.c_str(),
                        AT_SYMLINK_FOLLOW);
    });
}

int SistemaPosix::Renombrar(const std::string& ruta, const std::string& nueva, bool bSustituir)
{
    if (bSustituir)
        return Hacer([&] { return ::rename(ruta.c_str(), nueva.c_str()); });
    // A second name is refused when it is taken, a new one is not.
    const int iError = Hacer([&] { return ::link(ruta.c_str(), nueva.c_str()); });
    return iError < 0 ? iError : Borrar(ruta);
}

int SistemaPosix::Borrar(const std::string& ruta)
{
    return ::unlink(ruta.c_str()) != 0 ? -errno : 0;
}

int SistemaPosix::CrearCarpeta(const std::string& ruta)
{
    return ::mkdir(ruta.c_str(), 0777) != 0 ? -errno : 0;
}

int SistemaPosix::Listar(const std::string& carpeta, std::vector<std::string>& nombres)
{
    DIR* const lista = ::opendir(carpeta.c_str());
    if (lista == nullptr)
        return -errno;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): each list is read by one thread
    while (const dirent* entrada = ::readdir(lista))
        nombres.emplace_back(entrada->d_name);
    ::closedir(lista);
    return 0;
}

}  // namespace efv

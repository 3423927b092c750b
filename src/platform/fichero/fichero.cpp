#include "platform/fichero/fichero.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <quorvel/framework/CException.h>

namespace efv::fichero {

namespace {

class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Numero() const { return m_fd; }

private:
    int m_fd;
};

bool EsDeComparticion(int error)
{
    return error == EBUSY || error == ETXTBSY || error == EWOULDBLOCK;
}

// Reads until `bytes` is full or the file ends; false on an error.
bool LeerTodo(int fd, std::string& bytes)
{
    std::size_t leidos = 0;
    while (leidos < bytes.size()) {
        const ssize_t n = ::read(fd, bytes.data() + leidos, bytes.size() - leidos);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        if (n == 0)
            break;
        leidos += static_cast<std::size_t>(n);
    }
    bytes.resize(leidos);
    return true;
}

}  // namespace

std::filesystem::path Ruta(const CString& csRuta)
{
    return CadenaUtf8(csRuta);
}

std::optional<std::string> LeerFichero(const CString& csRuta, std::size_t maximo)
{
    // Without O_NONBLOCK the opening of a pipe would wait for its other end.
    const Descriptor fichero(::open(Ruta(csRuta).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (fichero.Numero() < 0) {
        if (EsDeComparticion(errno))
            throw CFileException(CFileException::violacionComparticion,
                                 "Otro proceso ocupa el fichero " + CadenaUtf8(csRuta));
        return std::nullopt;
    }
    struct stat datos = {};
    if (::fstat(fichero.Numero(), &datos) != 0 || !S_ISREG(datos.st_mode))
        return std::nullopt;
    if (datos.st_size < 0 || static_cast<std::size_t>(datos.st_size) > maximo)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(datos.st_size), '\0');
    if (!LeerTodo(fichero.Numero(), bytes))
        throw CFileException(CFileException::generica,
                             CadenaUtf8(csRuta) + ": " + std::generic_category().message(errno));
    return bytes;
}

namespace {

CFileException::Causa CausaDe(int error)
{
    switch (error) {
        case ENOENT:
        case ENOTDIR:
        case ENAMETOOLONG:
            return CFileException::noEncontrado;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
            return CFileException::accesoDenegado;
        case ENOSPC:
        case EDQUOT:
            return CFileException::discoLleno;
        default:
            return CFileException::generica;
    }
}

[[noreturn]] void FallarEscritura(const CString& csRuta, int error)
{
    throw CFileException(CausaDe(error), CadenaUtf8(csRuta) + ": " + std::generic_category().message(error));
}

bool EscribirTodo(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// Removes a temporary file unless it was renamed into place.
class Temporal {
public:
    explicit Temporal(std::string ruta) : m_ruta(std::move(ruta)) {}
    ~Temporal()
    {
        if (!m_ruta.empty())
            ::unlink(m_ruta.c_str());
    }
    Temporal(const Temporal&) = delete;
    Temporal& operator=(const Temporal&) = delete;
    void Conservar() { m_ruta.clear(); }

private:
    std::string m_ruta;
};

// The renaming itself must survive a loss of power as well.
void VaciarCarpeta(const std::filesystem::path& carpeta)
{
    const Descriptor descriptor(::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.Numero() >= 0)
        ::fsync(descriptor.Numero());
}

}  // namespace

void ReemplazarFichero(const CString& csRuta, std::string_view bytes)
{
    std::error_code error;
    std::filesystem::path destino = std::filesystem::canonical(Ruta(csRuta), error);
    if (error)
        destino = std::filesystem::absolute(Ruta(csRuta));
    struct stat datos = {};
    const bool existe = ::stat(destino.c_str(), &datos) == 0;
    // A folder that can be written would let a file be replaced that itself must not be.
    if (existe && (!S_ISREG(datos.st_mode) || ::access(destino.c_str(), W_OK) != 0))
        FallarEscritura(csRuta, S_ISREG(datos.st_mode) ? errno : EISDIR);

    std::string ruta = destino.string() + ".XXXXXX";
    const Descriptor fichero(::mkostemp(ruta.data(), O_CLOEXEC));
    if (fichero.Numero() < 0)
        FallarEscritura(csRuta, errno);
    Temporal temporal(ruta);
    const mode_t permisos = existe ? datos.st_mode & 07777U : 0644U;
    if (!EscribirTodo(fichero.Numero(), bytes) || ::fchmod(fichero.Numero(), permisos) != 0 ||
        ::fsync(fichero.Numero()) != 0 || ::rename(ruta.c_str(), destino.c_str()) != 0)
        FallarEscritura(csRuta, errno);
    temporal.Conservar();
    VaciarCarpeta(destino.parent_path());
}

}  // namespace efv::fichero

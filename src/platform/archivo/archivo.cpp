#include "platform/archivo/archivo.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <quorvel/framework/CException.h>

namespace efv::archivo {

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
        return std::nullopt;
    return bytes;
}

}  // namespace efv::archivo

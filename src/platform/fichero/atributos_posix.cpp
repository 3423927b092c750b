#include "platform/fichero/atributos_posix.h"

#include <cerrno>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <string_view>
#include <vector>

#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <fmt/format.h>

namespace efv::fichero {

namespace {

// Attributes that this process may not see or set stay behind, as on a disk that has none.
void CopiarExtendidos(int iViejo, int iNuevo)
{
    const ssize_t nNombres = ::flistxattr(iViejo, nullptr, 0);
    if (nNombres <= 0)
        return;
    std::vector<char> nombres(static_cast<std::size_t>(nNombres));
    const ssize_t nLeidos = ::flistxattr(iViejo, nombres.data(), nombres.size());
    std::size_t i = 0;
    while (nLeidos > 0 && i < static_cast<std::size_t>(nLeidos)) {
        const char* nombre = nombres.data() + i;
        i += std::string_view(nombre).size() + 1;
        const ssize_t nValor = ::fgetxattr(iViejo, nombre, nullptr, 0);
        if (nValor < 0)
            continue;
        std::vector<char> valor(static_cast<std::size_t>(nValor));
        const ssize_t n = ::fgetxattr(iViejo, nombre, valor.data(), valor.size());
        if (n >= 0)
            ::fsetxattr(iNuevo, nombre, valor.data(), static_cast<std::size_t>(n), 0);
    }
}

}  // namespace

int CopiarAtributos(int iViejo, int iNuevo)
{
    struct stat viejo = {};
    struct stat nuevo = {};
    if (::fstat(iViejo, &viejo) != 0 || ::fstat(iNuevo, &nuevo) != 0)
        return -errno;
    mode_t permisos = viejo.st_mode & 07777U;
    const bool bAjeno = viejo.st_uid != nuevo.st_uid || viejo.st_gid != nuevo.st_gid;
    // Of another's file the group at least may be ours to give. Rights that go with an owner that can't be
    // kept go too.
    if (bAjeno && ::fchown(iNuevo, viejo.st_uid, viejo.st_gid) != 0 &&
        ::fchown(iNuevo, static_cast<uid_t>(-1), viejo.st_gid) != 0)
        permisos &= 01777U;
    else if (bAjeno && ::fstat(iNuevo, &nuevo) == 0 && viejo.st_uid != nuevo.st_uid)
        permisos &= 03777U;
    CopiarExtendidos(iViejo, iNuevo);
    return ::fchmod(iNuevo, permisos) != 0 ? -errno : 0;
}

std::string OcupanteDe(const struct stat& estado)
{
    // "1: FLOCK  ADVISORY  WRITE 1234 fe:01:131072 0 EOF", device in hexadecimal
    const std::string buscado =
        fmt::format("{:02x}:{:02x}:{}", major(estado.st_dev), minor(estado.st_dev), estado.st_ino);
    std::ifstream cerrojos("/proc/locks");
    for (std::string linea; std::getline(cerrojos, linea);) {
        std::istringstream partes(linea);
        std::string numero, clase, rigor, modo, fichero;
        long nProceso = 0;
        if (!(partes >> numero >> clase >> rigor >> modo >> nProceso >> fichero) || fichero != buscado ||
            nProceso <= 0)
            continue;
        std::string programa;
        std::getline(std::ifstream(fmt::format("/proc/{}/comm", nProceso)), programa);
        return fmt::format("{}{}proceso {}", programa, programa.empty() ? "" : ", ", nProceso);
    }
    return {};
}

}  // namespace efv::fichero

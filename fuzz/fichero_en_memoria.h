// A file that lives in memory, readable by its path.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <quorvel/framework/CString.h>
#include <sys/mman.h>
#include <unistd.h>

class FicheroEnMemoria {
public:
    FicheroEnMemoria(const std::uint8_t* datos, std::size_t tamano) : m_fd(::memfd_create("fuzz", MFD_CLOEXEC))
    {
        if (m_fd < 0 || ::write(m_fd, datos, tamano) != static_cast<ssize_t>(tamano))
            std::abort();
    }
    ~FicheroEnMemoria() { ::close(m_fd); }
    FicheroEnMemoria(const FicheroEnMemoria&) = delete;
    FicheroEnMemoria& operator=(const FicheroEnMemoria&) = delete;

    CString Ruta() const { return L"/proc/self/fd/" + std::to_wstring(m_fd); }

private:
    int m_fd;
};

// Any bytes as the factor table's file: loads or doesn't, and what loaded answers.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <quorvel/solar.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// A file that lives in memory, readable by its path.
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const FicheroEnMemoria fichero(datos, tamano);
    const int iCargada = phCargarBaseFactorK(fichero.Ruta());
    CBaseFactorK& tabla = phGetBaseFactorK();
    if (iCargada == 1 && tabla.GetCargada() == 0)
        std::abort();
    double adK[12] = {-7, -7, -7, -7, -7, -7, -7, -7, -7, -7, -7, -7};
    if (phGetDataFactorK(40.5, 1, 33, adK) == 0 && adK[0] != -7)
        std::abort();
    CTreeCtrl arbol;
    tabla.LlenarArbol(arbol);
    if (static_cast<std::ptrdiff_t>(arbol.Raices().size()) != tabla.aFamilias.GetSize())
        std::abort();
    return 0;
}

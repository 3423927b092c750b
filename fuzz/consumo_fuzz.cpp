// Any bytes as a file of hourly values: read as text or refused, normalised, and its values given to hours.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include <quorvel/consumption.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr wchar_t kSeparador = L';';

std::optional<CString> Leer(const std::uint8_t* datos, std::size_t tamano)
{
    const int fd = ::memfd_create("fuzz", MFD_CLOEXEC);
    if (fd < 0 || ::write(fd, datos, tamano) != static_cast<ssize_t>(tamano))
        std::abort();
    auto csTexto = efv::LeerFicheroDeValores(L"/proc/self/fd/" + std::to_wstring(fd));
    ::close(fd);
    return csTexto;
}

void Exigir(bool b)
{
    if (!b)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const auto csTexto = Leer(datos, tamano);
    if (!csTexto)
        return 0;
    const CString csNormal = efv::NormalizarValores(*csTexto, kSeparador);
    Exigir(csNormal.find(L"; ") == CString::npos && csNormal.find(L";;") == CString::npos);
    Exigir(csNormal.find(L'.') == CString::npos);
    Exigir(efv::NormalizarValores(csNormal, kSeparador) == csNormal);

    const efv::FormatoValores formato{static_cast<int>(tamano % 13), tamano % 2 != 0, tamano % 3 == 0};
    const int nEsperados = efv::ValoresEsperados(formato);
    const auto valores = efv::LeerValores(csNormal, kSeparador, nEsperados);
    Exigir(std::ssize(valores) <= nEsperados);
    for (const double d : valores)
        Exigir(std::isfinite(d));
    const auto ano = std::make_unique<efv::AnoHorario>();
    efv::AsignarValores(valores, formato, *ano);
    return 0;
}

#include "platform/fichero/carpeta_temporal.h"

#include <cstdlib>

namespace efv::fichero {

std::string CarpetaTemporal()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    const char* carpeta = std::getenv("TMPDIR");
    return carpeta != nullptr && *carpeta == '/' ? carpeta : "/tmp";
}

}  // namespace efv::fichero

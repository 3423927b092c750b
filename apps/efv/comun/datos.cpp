#include "comun/datos.h"

#include <cstdlib>
#include <filesystem>

#include <fmt/format.h>

#include <quorvel/catalogos_propios.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;

fs::path Elegir(const std::string& opcion)
{
    if (!opcion.empty())
        return opcion;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    if (const char* variable = std::getenv("EFV_DATOS"); variable != nullptr && *variable != '\0')
        return variable;
    std::error_code fallo;
    const fs::path ejecutable = fs::read_symlink("/proc/self/exe", fallo);
    const fs::path instalada = ejecutable.parent_path() / EFV_DATOS_RELATIVA;
    if (!fallo && fs::is_directory(instalada, fallo))
        return instalada.lexically_normal();
    return EFV_DATOS_FUENTE;
}

}  // namespace

CString CarpetaPropia(const std::string& opcion)
{
    // NOLINTBEGIN(concurrency-mt-unsafe): one thread, and nobody changes the environment
    const auto variable = [](const char* nombre) {
        const char* valor = std::getenv(nombre);
        return std::string(valor != nullptr ? valor : "");
    };
    // NOLINTEND(concurrency-mt-unsafe)
    std::string carpeta = opcion.empty() ? variable("EFV_DATOS") : opcion;
    if (carpeta.empty()) {
        // A relative folder is none, as the desktop's rules say.
        std::string personal = variable("XDG_DATA_HOME");
        if (!personal.starts_with('/')) {
            const std::string casa = variable("HOME");
            personal = casa.empty() ? casa : casa + "/.local/share";
        }
        carpeta = personal.empty() ? personal : personal + "/efv-estudio";
    }
    return carpeta.empty() ? CString() : CadenaDesdeUtf8(carpeta + '/');
}

CString RutaCatalogo(const std::string& opcion, const char* archivo)
{
    CString csRuta = RutaDatos(opcion, archivo);
    const CString csPropia = CarpetaPropia(opcion);
    SuperponerCatalogos(csRuta.substr(0, csRuta.rfind(L'/') + 1),
                        csPropia.empty() ? csPropia : csPropia + CString(kCarpetaCatalogosPropios));
    return csRuta;
}

CString RutaDatos(const std::string& opcion, const char* archivo)
{
    const fs::path carpeta = Elegir(opcion);
    std::error_code fallo;
    if (!fs::is_directory(carpeta, fallo))
        throw ErrorEjecucion(fmt::format("no existe la carpeta de datos «{}»", carpeta.string()));
    return CadenaDesdeUtf8((carpeta / archivo).string());
}

}  // namespace efv::orden

#include <filesystem>

#include "pdf/pdf.h"

namespace efv::pdf {

Letras LetrasInstaladas()
{
    namespace fs = std::filesystem;
    std::error_code fallo;
    const fs::path ejecutable = fs::read_symlink("/proc/self/exe", fallo);
    fs::path carpeta = (ejecutable.parent_path() / EFV_LETRAS_RELATIVA).lexically_normal();
    if (fallo || !fs::is_directory(carpeta, fallo))
        carpeta = EFV_LETRAS_SISTEMA;
    return {(carpeta / "DejaVuSans.ttf").string(), (carpeta / "DejaVuSans-Bold.ttf").string()};
}

}  // namespace efv::pdf

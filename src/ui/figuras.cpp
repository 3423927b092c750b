#include <quorvel/ui/figuras.h>

#include <algorithm>

#include "resources/tabla_imagenes.h"

namespace efv::ui {

std::string_view FigurasDe(std::wstring_view nombre)
{
    const auto* imagen = std::ranges::find(recursos::kImagenes, nombre, &recursos::Imagen::nombre);
    return imagen == recursos::kImagenes.end() ? std::string_view() : imagen->figuras;
}

}  // namespace efv::ui

#include <quorvel/ui/dibujo.h>

#include <algorithm>

#include "resources/tabla_dibujos.h"

namespace efv::ui {

std::string_view DibujoDe(std::wstring_view nombre)
{
    const auto* dibujo = std::ranges::find(recursos::kDibujos, nombre, &recursos::Dibujo::nombre);
    return dibujo == recursos::kDibujos.end() ? std::string_view() : dibujo->figuras;
}

}  // namespace efv::ui

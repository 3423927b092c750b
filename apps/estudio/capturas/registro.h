// The screens of which pictures are made: one row each.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/ui.h>

#include "proyecto/sesion.h"

namespace efv::estudio {

struct Pantalla {
    std::string nombre;
    /// Classes of the dialogs that open: all of them must.
    std::vector<std::string_view> clases;
    std::function<void()> abrir;
    /// What is done in each dialog that opens, once its picture is taken: it may open further ones.
    std::function<void(ui::Dialogo&)> recorrer;
};

/// Screens over the open project, which pictures leave as it was.
std::vector<Pantalla> Pantallas(Sesion& sesion);

}  // namespace efv::estudio

// The commands of the menus: one row each.
#pragma once

#include <span>

namespace efv::estudio {

struct Orden {
    const char* menu;
    const char* texto;
    void (*funcion)();
};

/// In the order of the menus; a menu appears where its first command stands.
std::span<const Orden> Ordenes();

}  // namespace efv::estudio

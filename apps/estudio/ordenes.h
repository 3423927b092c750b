// The commands of the menus: one row each.
#pragma once

#include <span>

#include <quorvel/framework/CString.h>

class QMenu;

namespace efv::estudio {

class VentanaPrincipal;

struct Orden {
    const char* menu;
    const char* texto;  ///< null: a separator
    const char* atajo;  ///< key of it, as text; null without one
    void (*funcion)(VentanaPrincipal&);
    /// Of a menu within the menu: what stands in it each time that it opens.
    void (*llenar)(VentanaPrincipal&, QMenu&) = nullptr;
    /// Of a command that names what it does next: that, behind its text; empty when there is nothing to do.
    CString (*que)(const VentanaPrincipal&) = nullptr;
};

/// In the order of the menus; a menu appears where its first command stands.
std::span<const Orden> Ordenes();

}  // namespace efv::estudio

// The view of a list, a table or a tree.
#pragma once

#include <memory>

#include "qt/vistas.h"

namespace efv::qt {

std::unique_ptr<Vista> CrearVistaLista(ui::Lista& control, QWidget* padre, Accionador& accionador);

}  // namespace efv::qt

// Menus of a choice's entries.
#pragma once

#include <functional>

#include <quorvel/ui/controles.h>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QMenu;
class QPoint;
class QWidget;
QT_END_NAMESPACE

namespace efv::qt {

/// The entries of `seleccion` as those of `menu`, in place of what it has. `alElegir` is called from the loop,
/// once the menu has closed: what follows may open another window.
void LlenarMenu(QMenu& menu, const ui::Seleccion& seleccion, const std::function<void(int iEntrada)>& alElegir);

/// Opens them at that place of the screen, over `padre`; returns at once.
void AbrirMenu(QWidget& padre, const QPoint& lugar, const ui::Seleccion& seleccion,
               const std::function<void(int iEntrada)>& alElegir);

}  // namespace efv::qt

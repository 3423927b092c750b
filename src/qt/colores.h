// Colours of the dialogs on whatever background the person's theme has.
#pragma once

#include <QColor>

#include <quorvel/ui/grafica.h>

namespace efv::qt {

QColor DeColor(ui::Color color);

/// `color`, lightened or darkened as far as it needs to be read on `fondo`.
QColor Legible(const QColor& color, const QColor& fondo);

/// Black is the theme's own `texto`; any other colour is made legible on `fondo`.
QColor ColorDeTexto(ui::Color color, const QColor& texto, const QColor& fondo);

}  // namespace efv::qt

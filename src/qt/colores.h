// Colours of the dialogs on whatever background the person's theme has.
#pragma once

#include <QColor>

#include <quorvel/ui/grafica.h>

namespace efv::qt {

QColor DeColor(ui::Color color);

/// Drawings keep their colours longer than letters do.
enum class Uso { texto, dibujo };

/// `color`, lightened or darkened as far as it needs to be read, or told apart, on `fondo`.
QColor Legible(const QColor& color, const QColor& fondo, Uso uso = Uso::texto);

/// Of a drawing: black is the theme's own `texto`; any other colour is told from `fondo`.
QColor ColorDeTexto(ui::Color color, const QColor& texto, const QColor& fondo);

}  // namespace efv::qt

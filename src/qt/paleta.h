// The host's palette of colours: samples, and the choice of one out of all.
#pragma once

#include <optional>

#include <QIcon>

QT_BEGIN_NAMESPACE
class QSize;
class QWidget;
QT_END_NAMESPACE

namespace efv::qt {

/// A framed sample of the colour of that code; an empty one of a code that is none of the palette's.
QIcon Muestra(int iColor, const QSize& tamano, const QWidget& sobre);

/// Lets the person choose one of the palette, beginning with `iActual`; nothing when they cancel.
std::optional<int> ElegirDePaleta(QWidget* padre, int iActual);

}  // namespace efv::qt

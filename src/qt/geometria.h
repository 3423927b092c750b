// Where windows, their dividers and the borders of their columns were when the person left them.
#pragma once

#include <QList>
#include <QRect>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace efv::qt {

/// `pedido` whole inside one of the screens' places: the one that it shares most with, the first when it shares
/// nothing with any.
QRect EnPantalla(QRect pedido, const QList<QRect>& sitios);

/// Where it opened: one that is left alone isn't remembered.
void AnotarSitio(QWidget& ventana);

/// Columns of the lists in `ventana` take the widths that the person gave them, and those that the person gives
/// them from now on are remembered.
void RecordarColumnas(QWidget& ventana);

}  // namespace efv::qt

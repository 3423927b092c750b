// What a screen reader is told where Qt's own answer isn't enough: drawings, groups without a frame, fields,
// lists that drop down; and what a window says by itself.
#pragma once

#include <QAccessible>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace efv::qt {

/// From now on. Once is enough; more than once does no harm.
void InstalarAccesibles();

/// A plain widget is told as what it stands for, rather than passed over as room for others.
void PonerPapel(QWidget& widget, QAccessible::Role papel);

/// A screen reader says the text at once, wherever the focus is: as a notification that shows up in the window
/// and that nobody sees. Of a changed name or description Qt 6.4 tells readers that it changed and not what it
/// is now.
void Avisar(const QWidget& quien, const QString& texto);

}  // namespace efv::qt

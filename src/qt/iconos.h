// Pictures of buttons and rows, drawn: they follow the theme's colours and any screen's resolution.
#pragma once

#include <QIcon>

#include <quorvel/framework/CString.h>

QT_BEGIN_NAMESPACE
class QPalette;
QT_END_NAMESPACE

namespace efv::qt {

/// The picture of that name; a null icon for an unknown one.
QIcon IconoDe(const CString& nombre, const QPalette& paleta);

/// The picture of a row: 0 a group, other numbers a leaf, negative none.
QIcon IconoDeFila(int iImagen, const QPalette& paleta);

}  // namespace efv::qt

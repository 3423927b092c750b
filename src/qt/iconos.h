// Pictures of buttons and rows, drawn: they follow the theme's colours and any screen's resolution.
#pragma once

#include <string_view>

#include <QIcon>

#include <quorvel/qt.h>

QT_BEGIN_NAMESPACE
class QPalette;
QT_END_NAMESPACE

namespace efv::qt {

/// The picture of that name: the host's own, else the one that comes with the dialogs. A null icon for an
/// unknown name.
QIcon IconoDe(std::wstring_view nombre, const QPalette& paleta);

}  // namespace efv::qt

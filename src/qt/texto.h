// Text between the dialogs and Qt.
#pragma once

#include <QString>

#include <quorvel/framework/CString.h>

namespace efv::qt {

inline QString AQt(std::wstring_view texto)
{
    return QString::fromWCharArray(texto.data(), static_cast<qsizetype>(texto.size()));
}

inline CString DeQt(const QString& texto)
{
    return texto.toStdWString();
}

/// A caption for a widget that marks keys with '&': an '&' before a blank or at the end is itself.
QString ConMnemonico(std::wstring_view rotulo);

/// A caption for a widget that doesn't.
QString SinMnemonico(std::wstring_view rotulo);

/// A tool-tip that is shown as it is written.
QString Indicacion(std::wstring_view texto);

}  // namespace efv::qt

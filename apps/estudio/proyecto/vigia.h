// Notices that a file may have become another.
#pragma once

#include <functional>

#include <QFileSystemWatcher>
#include <QTimer>

#include <quorvel/framework/CString.h>

namespace efv::estudio {

/// Tells a moment after the last of several changes. A file that is replaced is another to the system: its
/// folder is watched too.
class VigiaFichero {
public:
    explicit VigiaFichero(std::function<void()> alCambiar);

    /// Empty: none. The same again looks for a file that has come back.
    void Vigilar(const CString& csRuta);

private:
    QFileSystemWatcher m_sistema;
    QTimer m_calma;
    QString m_ruta;
};

}  // namespace efv::estudio

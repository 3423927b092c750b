// The screen that isn't there, on which pictures are made.
#pragma once

#include <QTemporaryFile>

namespace efv::estudio {

/// As small as any that is usual. It has to live as long as the program.
class PantallaDeCapturas {
public:
    /// To be called before the QApplication is made.
    void Poner();

private:
    QTemporaryFile m_descripcion;
};

}  // namespace efv::estudio

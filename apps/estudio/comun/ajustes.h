// What the program remembers of the person from one run to the next.
#pragma once

#include <QSettings>

namespace efv::estudio {

class Ajustes final : public QSettings {
public:
    Ajustes()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("QuorvelEFV"),
                    QStringLiteral("efv-estudio"))
    {
    }
};

}  // namespace efv::estudio

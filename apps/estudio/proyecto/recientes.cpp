#include "proyecto/recientes.h"

#include <QSettings>
#include <QStringList>

namespace efv::estudio {

namespace {

constexpr const char* kClave = "proyecto/recientes";

class Ajustes final : public QSettings {
public:
    Ajustes()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("QuorvelEFV"),
                    QStringLiteral("efv-estudio"))
    {
    }
};

}  // namespace

std::vector<CString> LeerRecientes()
{
    std::vector<CString> recientes;
    for (const QString& ruta : Ajustes().value(kClave).toStringList())
        recientes.push_back(ruta.toStdWString());
    return recientes;
}

void EscribirRecientes(const std::vector<CString>& recientes)
{
    QStringList rutas;
    for (const CString& csRuta : recientes)
        rutas << QString::fromStdWString(csRuta);
    Ajustes().setValue(kClave, rutas);
}

}  // namespace efv::estudio

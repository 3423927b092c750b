#include "idioma.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "datos.h"

namespace efv::estudio {

bool PonerEspanol()
{
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    static QTranslator textos;
    const QString propia = QString::fromStdString((CarpetaDistribuida() / "qt").string());
    return (textos.load("qtbase_es", propia) ||
            textos.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) &&
           QCoreApplication::installTranslator(&textos);
}

}  // namespace efv::estudio

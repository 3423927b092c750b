#include "idioma.h"

#include <string_view>
#include <utility>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "datos.h"

namespace efv::estudio {

namespace {

/// What Qt's own translation of its print dialogs lacks.
class TextosQueFaltan final : public QTranslator {
public:
    QString translate(const char* contexto, const char* texto, const char* /*distincion*/,
                      int /*iNumero*/) const override
    {
        if (!std::string_view(contexto).starts_with("QPrint"))
            return {};
        for (const auto& [ingles, espanol] : {std::pair("Advanced", "Avanzado"), {"Pages", "Páginas"}})
            if (std::string_view(texto) == ingles)
                return QString::fromUtf8(espanol);
        return {};
    }
    bool isEmpty() const override { return false; }
};

}  // namespace

bool PonerEspanol()
{
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    static QTranslator textos;
    static TextosQueFaltan faltan;
    QCoreApplication::installTranslator(&faltan);
    const QString propia = QString::fromStdString((CarpetaDistribuida() / "qt").string());
    return (textos.load("qtbase_es", propia) ||
            textos.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) &&
           QCoreApplication::installTranslator(&textos);
}

}  // namespace efv::estudio

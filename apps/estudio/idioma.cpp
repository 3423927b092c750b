#include "idioma.h"

#include <array>
#include <string_view>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "datos.h"

namespace efv::estudio {

namespace {

struct Texto {
    std::string_view contexto;  // how the class that asks begins
    std::string_view ingles;
    const char* espanol;
};

/// What Qt's own translation lacks: of its print dialogs, and of the column "Tipo" of its file dialogs.
constexpr auto kTextos = std::to_array<Texto>({
    {"QPrint", "Advanced", "Avanzado"},
    {"QPrint", "Pages", "Páginas"},
    {"QAbstractFileIconProvider", "Drive", "Unidad"},
    {"QAbstractFileIconProvider", "Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "File Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "File", "Archivo"},
    {"QAbstractFileIconProvider", "%1 File", "Archivo %1"},
    {"QAbstractFileIconProvider", "Shortcut", "Acceso directo"},
    {"QAbstractFileIconProvider", "Unknown", "Desconocido"},
});

class TextosQueFaltan final : public QTranslator {
public:
    QString translate(const char* contexto, const char* texto, const char* /*distincion*/,
                      int /*iNumero*/) const override
    {
        for (const auto& fila : kTextos)
            if (std::string_view(contexto).starts_with(fila.contexto) && fila.ingles == texto)
                return QString::fromUtf8(fila.espanol);
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

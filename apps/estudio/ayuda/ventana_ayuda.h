// The help: the manual's pages with a search, at the part that is asked for.
#pragma once

#include <string_view>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QTextBrowser;
QT_END_NAMESPACE

namespace efv::estudio {

class VentanaAyuda final : public QDialog {
public:
    explicit VentanaAyuda(QWidget* padre);

    /// Shows a page. @param apartado heading that it begins at; empty: the page's beginning
    void Mostrar(const QString& pagina, const QString& apartado);
    /// Text of the line at which the page begins on view.
    QString Encabezamiento() const;
    /// Goes to the next place with those letters, from the top again after the last. False when there is none.
    bool Buscar(const QString& texto);

private:
    void BuscarLoEscrito();

    QLineEdit* m_buscar;
    QLabel* m_resultado;
    QTextBrowser* m_texto;
};

/// Opens the help beside `sobre`, which stays usable.
void MostrarAyuda(QWidget* sobre, const char* pagina, std::string_view apartado = {});

/// The same for the dialog or panel that has the focus, or that `desde` stands in.
void MostrarAyudaDe(QWidget* desde);

}  // namespace efv::estudio

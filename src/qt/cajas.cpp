#include "qt/cajas.h"

#include <algorithm>
#include <exception>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include "qt/texto.h"

namespace efv::qt {

namespace {

int& Cuenta()
{
    static int nCajas = 0;
    return nCajas;
}

QMessageBox::Icon IconoDeCaja(ui::Icono icono)
{
    switch (icono) {
        case ui::Icono::informacion:
            return QMessageBox::Information;
        case ui::Icono::advertencia:
            return QMessageBox::Warning;
        case ui::Icono::error:
            return QMessageBox::Critical;
        case ui::Icono::pregunta:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

// "*.pan;*.txt" as Qt lists patterns. Every file has the pattern "*": "*.*" asks for a dot.
QString Patrones(std::wstring_view patron)
{
    QString patrones = AQt(patron).replace(';', ' ').simplified();
    return patrones == "*.*" ? QString("*") : patrones;
}

QString Filtro(const ui::FiltroFichero& filtro)
{
    QString rotulo = AQt(filtro.rotulo);
    // Qt reads the patterns in the last parentheses: they must be those of the filter.
    if (const qsizetype i = rotulo.lastIndexOf('('); i > 0)
        rotulo.truncate(i);
    return rotulo.trimmed() + " (" + Patrones(filtro.patron) + ')';
}

QString Extension(const ui::PeticionFichero& peticion, const QString& elegido)
{
    for (const ui::FiltroFichero& filtro : peticion.filtros) {
        const QString patron = Patrones(filtro.patron).section(' ', 0, 0);
        if (Filtro(filtro) == elegido && patron.startsWith("*.") && !patron.mid(2).contains('*'))
            return patron.mid(1);
    }
    return {};
}

}  // namespace

int CajasMostradas()
{
    return Cuenta();
}

void ContarCaja()
{
    ++Cuenta();
}

QWidget* PadreActual(QWidget* padre)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return padre;
}

namespace {

// A text of more lines than a screen has goes behind a button, but for its first ones.
void PonerTexto(QMessageBox& caja, const QString& texto)
{
    constexpr qsizetype kLineas = 20;
    caja.setTextFormat(Qt::PlainText);
    if (texto.count('\n') <= kLineas) {
        caja.setText(texto);
        return;
    }
    caja.setText(texto.section('\n', 0, kLineas - 1) + "\n…");
    caja.setDetailedText(texto);
    for (QAbstractButton* boton : caja.buttons()) {
        // The button writes its own caption at each click.
        const auto rotular = [boton] { boton->setText(QStringLiteral("&Detalles")); };
        rotular();
        QObject::connect(boton, &QAbstractButton::clicked, boton, rotular, Qt::QueuedConnection);
    }
}

}  // namespace

QString TituloDeCaja(std::wstring_view csTitulo)
{
    return csTitulo == ui::kTituloModulo ? QGuiApplication::applicationDisplayName() : AQt(csTitulo);
}

ui::Respuesta MostrarCaja(QWidget* padre, const ui::Mensaje& mensaje)
{
    ContarCaja();
    QMessageBox caja(IconoDeCaja(mensaje.icono), TituloDeCaja(mensaje.csTitulo), {}, QMessageBox::NoButton,
                     padre);
    PonerTexto(caja, AQt(mensaje.csTexto));
    caja.setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (mensaje.botones == ui::Botones::aceptar) {
        caja.setEscapeButton(caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole));
        caja.exec();
        return ui::Respuesta::aceptar;
    }
    const auto boton = [&caja](const CString& csPropio, const char* comun, QMessageBox::ButtonRole papel) {
        return caja.addButton(csPropio.empty() ? QString::fromUtf8(comun) : AQt(csPropio), papel);
    };
    QPushButton* si = boton(mensaje.csSi, "&Sí", QMessageBox::YesRole);
    QPushButton* no = boton(mensaje.csNo, "&No", QMessageBox::NoRole);
    QPushButton* cancelar = mensaje.botones == ui::Botones::siNoCancelar
                                ? boton(mensaje.csCancelar, "Cancelar", QMessageBox::RejectRole)
                                : nullptr;
    // Yes of two deletes, replaces or goes on with something odd.
    const ui::Respuesta intro =
        mensaje.intro.value_or(cancelar != nullptr ? ui::Respuesta::si : ui::Respuesta::no);
    caja.setDefaultButton(intro == ui::Respuesta::si ? si : intro == ui::Respuesta::no ? no : cancelar);
    caja.setEscapeButton(cancelar != nullptr ? cancelar : no);
    caja.exec();
    if (caja.clickedButton() == si)
        return ui::Respuesta::si;
    return cancelar != nullptr && caja.clickedButton() != no ? ui::Respuesta::cancelar : ui::Respuesta::no;
}

void MostrarFallo(QWidget* padre, const char* texto) noexcept
{
    try {
        MostrarCaja(padre, {CString(ui::kTituloModulo), CadenaDesdeUtf8(texto), ui::Icono::error,
                            ui::Botones::aceptar});
    } catch (const std::exception&) {
        // No memory for a box: the dialog goes on without it.
        qWarning("%s", texto);
    }
}

std::optional<CString> ElegirFichero(QWidget* padre, const ui::PeticionFichero& peticion)
{
    ContarCaja();
    QString titulo = AQt(peticion.csTitulo);
    if (titulo.isEmpty())
        titulo = peticion.bGuardar ? QStringLiteral("Guardar como") : QStringLiteral("Abrir");
    QFileDialog selector(padre, titulo);
    selector.setAcceptMode(peticion.bGuardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    selector.setFileMode(peticion.bGuardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // Asked below, once the extension is known and in Spanish.
    selector.setOption(QFileDialog::DontConfirmOverwrite);
    // The system's own would speak its language.
    selector.setOption(QFileDialog::DontUseNativeDialog, QLocale::system().language() != QLocale().language());
    selector.setLabelText(QFileDialog::LookIn, QStringLiteral("Buscar en:"));
    selector.setLabelText(QFileDialog::FileName, QStringLiteral("Nombre:"));
    selector.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo:"));
    selector.setLabelText(QFileDialog::Accept,
                          peticion.bGuardar ? QStringLiteral("Guardar") : QStringLiteral("Abrir"));
    selector.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    QStringList filtros;
    for (const ui::FiltroFichero& filtro : peticion.filtros)
        filtros << Filtro(filtro);
    if (!filtros.isEmpty())
        selector.setNameFilters(filtros);
    if (!peticion.csPropuesto.empty())
        selector.selectFile(AQt(peticion.csPropuesto));

    while (selector.exec() == QDialog::Accepted && !selector.selectedFiles().isEmpty()) {
        QString ruta = selector.selectedFiles().constFirst();
        if (peticion.bGuardar && QFileInfo(ruta).suffix().isEmpty())
            ruta += Extension(peticion, selector.selectedNameFilter());
        const CString csRuta = DeQt(QDir::toNativeSeparators(ruta));
        if (!peticion.bGuardar || !QFileInfo::exists(ruta) ||
            MostrarCaja(&selector,
                        {DeQt(titulo), L"El archivo \"" + csRuta + L"\" ya existe.\n¿Desea reemplazarlo?",
                         ui::Icono::advertencia, ui::Botones::siNo}) == ui::Respuesta::si)
            return csRuta;
    }
    return std::nullopt;
}

}  // namespace efv::qt

#include "ayuda/ventana_ayuda.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>

#include <quorvel/qt.h>

#include "ayuda/apartados.h"
#include "datos.h"

namespace efv::estudio {

namespace {

constexpr QSize kTamano(760, 560);
constexpr double kParteDePantalla = 0.85;

QString Texto(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Where the window's content begins on view.
QTextCursor AlPrincipio(const QTextBrowser& texto)
{
    return texto.cursorForPosition(QPoint(1, 1));
}

}  // namespace

VentanaAyuda::VentanaAyuda(QWidget* padre)
    : QDialog(padre), m_buscar(new QLineEdit), m_resultado(new QLabel), m_texto(new QTextBrowser)
{
    setObjectName("ayuda");
    setWindowTitle("Ayuda");
    setAttribute(Qt::WA_DeleteOnClose);
    auto* fila = new QHBoxLayout;
    auto* rotulo = new QLabel("&Buscar:");
    rotulo->setBuddy(m_buscar);
    m_buscar->setObjectName("buscar");
    m_buscar->setClearButtonEnabled(true);
    m_buscar->setAccessibleName("Buscar en la ayuda");
    auto* siguiente = new QPushButton("&Siguiente");
    // Enter in the field searches.
    siguiente->setDefault(true);
    connect(siguiente, &QPushButton::clicked, this, &VentanaAyuda::BuscarLoEscrito);
    fila->addWidget(rotulo);
    fila->addWidget(m_buscar, 1);
    fila->addWidget(siguiente);
    fila->addWidget(m_resultado);
    m_texto->setObjectName("texto");
    m_texto->setAccessibleName("Ayuda");
    m_texto->setOpenExternalLinks(true);
    auto* botones = new QDialogButtonBox;
    auto* atras = botones->addButton("&Atrás", QDialogButtonBox::ActionRole);
    atras->setEnabled(false);
    connect(atras, &QPushButton::clicked, m_texto, &QTextBrowser::backward);
    connect(m_texto, &QTextBrowser::backwardAvailable, atras, &QWidget::setEnabled);
    auto* cerrar = botones->addButton("&Cerrar", QDialogButtonBox::RejectRole);
    connect(cerrar, &QPushButton::clicked, this, &QWidget::close);
    auto* pila = new QVBoxLayout(this);
    pila->addLayout(fila);
    pila->addWidget(m_texto, 1);
    pila->addWidget(botones);
    resize(kTamano.expandedTo(kTamano * fontMetrics().height() / 18)
               .boundedTo(screen()->availableSize() * kParteDePantalla));
    qt::RestaurarVentana(*this);
    connect(this, &QDialog::finished, this, [this] { qt::GuardarVentana(*this); });
    m_texto->setFocus();
}

void VentanaAyuda::Mostrar(const QString& pagina, const QString& apartado)
{
    const std::filesystem::path ruta = CarpetaDeAyuda() / pagina.toStdString();
    m_texto->setSource(QUrl::fromLocalFile(QString::fromStdString(ruta.string())));
    if (m_texto->document()->isEmpty())
        m_texto->setPlainText("No se encuentra la ayuda: " + QString::fromStdString(ruta.string()));
    QTextBlock bloque = m_texto->document()->begin();
    while (bloque.isValid() && (bloque.blockFormat().headingLevel() == 0 || bloque.text() != apartado))
        bloque = bloque.next();
    if (!bloque.isValid())
        return;
    // Its end first: only then the heading comes to the top.
    m_texto->moveCursor(QTextCursor::End);
    QTextCursor cursor(bloque);
    m_texto->setTextCursor(cursor);
    m_texto->verticalScrollBar()->setValue(m_texto->verticalScrollBar()->value() +
                                           m_texto->cursorRect(cursor).top());
}

QString VentanaAyuda::Encabezamiento() const
{
    return AlPrincipio(*m_texto).block().text();
}

bool VentanaAyuda::Buscar(const QString& texto)
{
    if (m_texto->find(texto))
        return true;
    const QTextCursor antes = m_texto->textCursor();
    m_texto->moveCursor(QTextCursor::Start);
    if (m_texto->find(texto))
        return true;
    m_texto->setTextCursor(antes);
    return false;
}

void VentanaAyuda::BuscarLoEscrito()
{
    const bool bHallado = m_buscar->text().isEmpty() || Buscar(m_buscar->text());
    m_resultado->setText(bHallado ? QString() : QStringLiteral("No aparece"));
}

void MostrarAyuda(QWidget* sobre, const char* pagina, std::string_view apartado)
{
    QWidget* duena = sobre == nullptr ? nullptr : sobre->window();
    // The one that is open shows it; a window under a dialog that blocks it couldn't be used.
    auto* ventana = duena == nullptr ? nullptr
                                     : dynamic_cast<VentanaAyuda*>(duena->findChild<QDialog*>(
                                           QStringLiteral("ayuda"), Qt::FindDirectChildrenOnly));
    if (ventana == nullptr)
        ventana = new VentanaAyuda(duena);
    ventana->show();
    ventana->Mostrar(QString::fromLatin1(pagina), Texto(apartado));
    ventana->raise();
    ventana->activateWindow();
}

void MostrarAyudaDe(QWidget* desde)
{
    for (QWidget* w = desde; w != nullptr; w = w->parentWidget())
        if (const auto apartado = ApartadoDe(w->objectName().toStdString()); !apartado.empty())
            return MostrarAyuda(desde, kAyudaDePantallas, apartado);
    MostrarAyuda(desde, kAyudaDePantallas);
}

}  // namespace efv::estudio

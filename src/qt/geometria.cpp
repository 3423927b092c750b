#include "qt/geometria.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QTimer>
#include <QWidget>

#include <quorvel/qt.h>

namespace efv::qt {

namespace {

// What the host remembers by; null: nothing is remembered.
QPointer<QSettings>& Ajustes()
{
    static QPointer<QSettings> ajustes;
    return ajustes;
}

QString Clave(const QWidget& ventana, const char* que)
{
    return QStringLiteral("ventanas/%1/%2").arg(ventana.objectName(), QString::fromLatin1(que));
}

QList<QRect> Sitios()
{
    QList<QRect> sitios;
    for (const QScreen* pantalla : QGuiApplication::screens())
        sitios << pantalla->availableGeometry();
    return sitios;
}

qint64 Comun(const QRect& a, const QRect& b)
{
    const QRect comun = a & b;
    return comun.isEmpty() ? 0 : static_cast<qint64>(comun.width()) * comun.height();
}

// As it opened, to know whether the person moved it.
constexpr const char* kAlAbrir = "efvGeometriaAlAbrir";

QList<int> Anchos(const QHeaderView& cabecera)
{
    QList<int> anchos;
    for (int i = 0; i < cabecera.count(); ++i)
        anchos << cabecera.sectionSize(i);
    return anchos;
}

// The nearest dialog or panel tells lists of one name apart.
QString ClaveDeColumnas(const QWidget& lista)
{
    const QWidget* duena = lista.parentWidget();
    while (duena != nullptr && qobject_cast<const QDialog*>(duena) == nullptr && !duena->isWindow())
        duena = duena->parentWidget();
    return QStringLiteral("columnas/%1/%2")
        .arg(duena != nullptr ? duena->objectName() : QString(), lista.objectName());
}

// Widths change for many reasons; between press and release of a button it was the person.
class GuardaDeAnchos final : public QObject {
public:
    explicit GuardaDeAnchos(QHeaderView* cabecera) : QObject(cabecera), m_cabecera(*cabecera)
    {
        cabecera->viewport()->installEventFilter(this);
        m_despues.setSingleShot(true);
        connect(&m_despues, &QTimer::timeout, this, [this] { Guardar(); });
    }

    bool eventFilter(QObject* /*objeto*/, QEvent* evento) override
    {
        if (evento->type() == QEvent::MouseButtonPress || evento->type() == QEvent::MouseButtonDblClick)
            m_antes = Anchos(m_cabecera);
        else if (evento->type() == QEvent::MouseButtonRelease)
            m_despues.start(0);
        return false;
    }

private:
    void Guardar()
    {
        const QList<int> anchos = Anchos(m_cabecera);
        if (Ajustes().isNull() || anchos == m_antes || anchos.size() != m_antes.size())
            return;
        Ajustes()->setValue(ClaveDeColumnas(*m_cabecera.parentWidget()), QVariant::fromValue(anchos));
    }

    QHeaderView& m_cabecera;
    QList<int> m_antes;
    QTimer m_despues;  // once the header has taken the release in
};

}  // namespace

QRect EnPantalla(QRect pedido, const QList<QRect>& sitios)
{
    if (sitios.isEmpty())
        return pedido;
    QRect sitio = sitios.constFirst();
    for (const QRect& otro : sitios)
        if (Comun(pedido, otro) > Comun(pedido, sitio))
            sitio = otro;
    pedido.setSize(pedido.size().boundedTo(sitio.size()));
    pedido.moveLeft(qBound(sitio.left(), pedido.left(), sitio.right() - pedido.width() + 1));
    pedido.moveTop(qBound(sitio.top(), pedido.top(), sitio.bottom() - pedido.height() + 1));
    return pedido;
}

void RecordarColumnas(QWidget& ventana)
{
    if (Ajustes().isNull())
        return;
    for (auto* cabecera : ventana.findChildren<QHeaderView*>()) {
        if (cabecera->orientation() != Qt::Horizontal || cabecera->parentWidget() == nullptr)
            continue;
        const auto anchos = Ajustes()->value(ClaveDeColumnas(*cabecera->parentWidget())).value<QList<int>>();
        if (anchos.size() == cabecera->count())
            for (int i = 0; i < cabecera->count(); ++i)
                cabecera->resizeSection(i, anchos[i]);
        new GuardaDeAnchos(cabecera);  // NOLINT(*-NewDeleteLeaks): the header's own
    }
}

void AnotarSitio(QWidget& ventana)
{
    ventana.setProperty(kAlAbrir, ventana.geometry());
}

void RecordarVentanas(QSettings* ajustes)
{
    Ajustes() = ajustes;
}

bool RestaurarVentana(QWidget& ventana)
{
    if (Ajustes().isNull())
        return false;
    const QRect pedido = Ajustes()->value(Clave(ventana, "sitio")).toRect();
    if (pedido.isValid())
        ventana.setGeometry(EnPantalla(pedido, Sitios()));
    if (Ajustes()->value(Clave(ventana, "maximizada")).toBool())
        ventana.setWindowState(ventana.windowState() | Qt::WindowMaximized);
    for (auto* division : ventana.findChildren<QSplitter*>())
        if (!division->objectName().isEmpty())
            division->restoreState(
                Ajustes()->value(Clave(ventana, division->objectName().toLatin1().constData())).toByteArray());
    AnotarSitio(ventana);
    return pedido.isValid();
}

void GuardarVentana(const QWidget& ventana)
{
    if (Ajustes().isNull())
        return;
    const bool bMaximizada = ventana.isMaximized();
    const QRect sitio = bMaximizada ? ventana.normalGeometry() : ventana.geometry();
    // One that was left alone goes on opening as the program means it.
    if (bMaximizada || sitio != ventana.property(kAlAbrir).toRect()) {
        if (sitio.isValid())
            Ajustes()->setValue(Clave(ventana, "sitio"), sitio);
        Ajustes()->setValue(Clave(ventana, "maximizada"), bMaximizada);
    }
    for (const auto* division : ventana.findChildren<QSplitter*>())
        if (!division->objectName().isEmpty())
            Ajustes()->setValue(Clave(ventana, division->objectName().toLatin1().constData()),
                                division->saveState());
}

}  // namespace efv::qt

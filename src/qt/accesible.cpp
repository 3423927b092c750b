#include "qt/accesible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

#include <quorvel/qt.h>

#include "qt/texto_accesible.h"
#include "qt/ventana.h"

namespace efv::qt {

namespace {

constexpr const char* kPapel = "papelAccesible";
constexpr const char* kAviso = "avisoHablado";

// Qt gives what is chosen for a name where the caption is said by a relation; not every caption is a label.
// Readers that take the caption from the relation look for what is chosen in a text, as that of a field; of
// another choice they hear nothing.
class ComboAccesible final : public QAccessibleWidget, public LineaAccesible {
public:
    explicit ComboAccesible(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox)
    {
        QObject::connect(combo, &QComboBox::currentTextChanged, combo, [combo](const QString& elegido) {
            if (combo->hasFocus() && !combo->view()->isVisible())
                Avisar(*combo, elegido);
        });
    }

    void* interface_cast(QAccessible::InterfaceType tipo) override
    {
        return tipo == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(tipo);
    }

    using LineaAccesible::text;
    QString text(QAccessible::Text que) const override
    {
        // Without a description of its own the tip would be said, which is what is chosen.
        if (que == QAccessible::Description)
            return Combo().accessibleDescription();
        if (que == QAccessible::Value)
            return Combo().currentText();
        QString texto = QAccessibleWidget::text(que);
        if (que != QAccessible::Name)
            return texto;
        if (!texto.isEmpty() && !Combo().currentText().isEmpty())
            texto += QStringLiteral(": ");
        return texto + Combo().currentText();
    }

    QAccessible::State state() const override
    {
        QAccessible::State estado = QAccessibleWidget::state();
        estado.expandable = true;
        estado.hasPopup = true;
        estado.expanded = Combo().view()->isVisible();
        estado.collapsed = !estado.expanded;
        return estado;
    }

    // What drops down is there while it is seen: else a reader looks in each of its rows for the one chosen.
    int childCount() const override { return Combo().view()->isVisible() ? 1 : 0; }
    QAccessibleInterface* child(int i) const override
    {
        return i == 0 && childCount() == 1 ? QAccessible::queryAccessibleInterface(Combo().view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* hijo) const override
    {
        return hijo != nullptr && hijo->object() == Combo().view() ? 0 : -1;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& accion) override
    {
        if (accion == pressAction() && Combo().isEnabled())
            Combo().view()->isVisible() ? Combo().hidePopup() : Combo().showPopup();
    }

    QRect characterRect(int /*i*/) const override { return rect(); }

private:
    QString Linea() const override { return Combo().currentText(); }
    QComboBox& Combo() const { return *static_cast<QComboBox*>(object()); }
};

// Its parts are for nobody: the ground of a view that has the focus would say that it has it too.
class DibujoAccesible final : public QAccessibleWidget {
public:
    explicit DibujoAccesible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Graphic) {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*i*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*hijo*/) const override { return -1; }
};

// What a window says by itself. Never shown: readers ask for its name when they are told that it is. What comes
// in one turn is said in one: of two, only the second would be found.
class Aviso final : public QWidget {
public:
    explicit Aviso(QWidget& ventana) : QWidget(&ventana)
    {
        setObjectName(kAviso);
        hide();
        PonerPapel(*this, QAccessible::Notification);
        m_turno.setSingleShot(true);
        m_turno.setInterval(0);
        connect(&m_turno, &QTimer::timeout, this, [this] { Mostrarse(); });
    }

    void Decir(const QString& texto)
    {
        if (texto.isEmpty() || m_textos.contains(texto))
            return;
        m_textos << texto;
        m_turno.start();
    }

private:
    void Mostrarse()
    {
        setAccessibleName(m_textos.join(QStringLiteral(". ")));
        m_textos.clear();
        QAccessibleEvent visto(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&visto);
    }

    QStringList m_textos;
    QTimer m_turno;
};

QAccessibleInterface* Crear(const QString& clase, QObject* objeto)
{
    auto* const widget = qobject_cast<QWidget*>(objeto);
    if (widget == nullptr)
        return nullptr;
    const QVariant papel = widget->property(kPapel);
    if (papel.toInt() == QAccessible::Graphic)
        return new DibujoAccesible(widget);
    if (papel.isValid())
        return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(papel.toInt()));
    if (clase == QLatin1String("QLineEdit"))
        return new CampoAccesible(qobject_cast<QLineEdit*>(objeto));
    auto* const combo = clase == QLatin1String("QComboBox") ? qobject_cast<QComboBox*>(objeto) : nullptr;
    return combo == nullptr || combo->isEditable() ? nullptr : new ComboAccesible(combo);
}

}  // namespace

void InstalarAccesibles()
{
    QAccessible::installFactory(&Crear);
}

void PonerPapel(QWidget& widget, QAccessible::Role papel)
{
    widget.setProperty(kPapel, static_cast<int>(papel));
}

void Avisar(const QWidget& quien, const QString& texto)
{
    QWidget& ventana = *quien.window();
    auto* aviso = dynamic_cast<Aviso*>(ventana.findChild<QWidget*>(kAviso, Qt::FindDirectChildrenOnly));
    if (aviso == nullptr)
        aviso = new Aviso(ventana);
    aviso->Decir(texto);
}

void EsDibujo(QWidget& widget)
{
    InstalarAccesibles();
    PonerPapel(widget, QAccessible::Graphic);
}

void Anunciar(const QString& texto)
{
    for (QWidget* w = QApplication::focusWidget(); w != nullptr; w = w->parentWidget())
        if (auto* ventana = dynamic_cast<VentanaDialogo*>(w))
            return ventana->Anunciar(texto);
}

}  // namespace efv::qt

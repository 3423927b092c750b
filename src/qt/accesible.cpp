#include "qt/accesible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>

#include <quorvel/qt.h>

#include "qt/ventana.h"

namespace efv::qt {

namespace {

constexpr const char* kPapel = "papelAccesible";

// Qt gives what is chosen for a name where the caption is said by a relation; not every caption is a label.
class ComboAccesible final : public QAccessibleWidget {
public:
    explicit ComboAccesible(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}

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

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int i) const override
    {
        return i == 0 ? QAccessible::queryAccessibleInterface(Combo().view()) : nullptr;
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

private:
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

// The mouse wheel on its way down a form.
#pragma once

#include <QEvent>
#include <QWidget>

namespace efv::qt {

/// A turn of the wheel over a combo or slider on the way down a form must not change it.
class SinRueda final : public QObject {
public:
    explicit SinRueda(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() != QEvent::Wheel || static_cast<QWidget*>(objeto)->hasFocus())
            return false;
        evento->ignore();
        return true;
    }
};

}  // namespace efv::qt

// A part of the window that folds, and then scrolls, rather than make the window larger than the screen.
#pragma once

#include <QScrollArea>

namespace efv::estudio {

class Rollo final : public QScrollArea {
public:
    /// @param dParte of the screen's width that `dentro` may ask for before it scrolls sideways too
    Rollo(QWidget* dentro, double dParte);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    int AnchoDeBarra() const;

    QWidget* m_dentro;
    double m_dParte;
};

}  // namespace efv::estudio

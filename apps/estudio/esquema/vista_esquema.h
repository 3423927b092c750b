// A schematic on screen: fitted to its room, enlarged with the wheel, moved by dragging.
#pragma once

#include <QGraphicsView>

#include "esquema/lamina.h"

namespace efv::estudio {

class VistaEsquema final : public QGraphicsView {
public:
    explicit VistaEsquema(QWidget* padre = nullptr);

    /// @param csSinDiseno what to say when there is nothing to draw
    void Poner(Lamina lamina, const CString& csSinDiseno);
    const Lamina& Mostrado() const { return m_lamina; }

    void Encajar();
    void Ampliar(double dFactor);

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void drawBackground(QPainter* pintor, const QRectF& zona) override;
    void drawForeground(QPainter* pintor, const QRectF& zona) override;

private:
    Lamina m_lamina;
    QString m_aviso;
    bool m_bEncajado = true;  // follows the room until the person chooses a scale
};

}  // namespace efv::estudio

// A schematic on screen: fitted to its room, enlarged with the wheel, moved by dragging.
#pragma once

#include <QGraphicsView>

#include "esquema/dibujo.h"

namespace efv::estudio {

class VistaEsquema final : public QGraphicsView {
public:
    explicit VistaEsquema(QWidget* padre = nullptr);

    /// @param csSinDiseno what to say when there is nothing to draw
    void Poner(Dibujo dibujo, const CString& csSinDiseno);
    const Dibujo& Mostrado() const { return m_dibujo; }

    void Encajar();
    void Ampliar(double dFactor);

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void drawBackground(QPainter* pintor, const QRectF& zona) override;
    void drawForeground(QPainter* pintor, const QRectF& zona) override;

private:
    Dibujo m_dibujo;
    QString m_aviso;
    bool m_bEncajado = true;  // follows the room until the person chooses a scale
};

}  // namespace efv::estudio

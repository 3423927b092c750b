// What a dialog's controls stand in: it scrolls them once there is less room than they need.
#pragma once

#include <algorithm>
#include <functional>
#include <utility>

#include <QEvent>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>

namespace efv::qt {

class RolloDeControles final : public QScrollArea {
public:
    explicit RolloDeControles(QWidget* padre) : QScrollArea(padre)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
    }

    /// Its own size changed; what it holds may take it in before it is laid out.
    std::function<void()> alCambiarTamano;
    /// What it holds needs more room than it did, or less.
    std::function<void()> alPedirSitio;

    void PonerAnchoMinimo(int iAncho)
    {
        if (std::exchange(m_iAnchoMinimo, iAncho) != iAncho)
            updateGeometry();
    }
    /// With the gap beside it.
    int AnchoDeBarra() const { return verticalScrollBar()->sizeHint().width() + kHueco; }
    /// The gap is there when the bar is.
    void PonerHueco()
    {
        const bool bRueda = widget()->minimumSizeHint().height() > height();
        widget()->layout()->setContentsMargins(0, 0, bRueda ? kHueco : 0, 0);
    }
    /// Whether nothing of what it holds is out of sight in that size.
    bool Cabe(const QSize& tamano) const
    {
        const QSize necesario = widget()->minimumSizeHint();
        return necesario.boundedTo(tamano) == necesario;
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override
    {
        constexpr int kLineasALaVista = 6;
        return {m_iAnchoMinimo,
                std::min(widget()->minimumSizeHint().height(), kLineasALaVista * fontMetrics().lineSpacing())};
    }

protected:
    void resizeEvent(QResizeEvent* evento) override
    {
        if (alCambiarTamano)
            alCambiarTamano();
        QScrollArea::resizeEvent(evento);
    }
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto == widget() && evento->type() == QEvent::LayoutRequest && alPedirSitio)
            alPedirSitio();
        return QScrollArea::eventFilter(objeto, evento);
    }

private:
    static constexpr int kHueco = 6;
    int m_iAnchoMinimo = 0;
};

}  // namespace efv::qt

#include "paneles/rollo.h"

#include <algorithm>

#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <quorvel/qt.h>

namespace efv::estudio {

namespace {

constexpr int kLineasALaVista = 7;  // at least

}  // namespace

Rollo::Rollo(QWidget* dentro, double dParte) : m_dentro(dentro), m_dParte(dParte)
{
    auto* marco = new QWidget;
    auto* pila = new QVBoxLayout(marco);
    pila->addWidget(dentro);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(marco);
    // As what it lies on, which the ground of a scroll area isn't.
    viewport()->setAutoFillBackground(false);
    marco->setAutoFillBackground(false);
    marco->installEventFilter(this);
}

int Rollo::AnchoDeBarra() const
{
    return verticalScrollBar()->sizeHint().width();
}

QSize Rollo::minimumSizeHint() const
{
    const int iPermitido = static_cast<int>(screen()->availableSize().width() * m_dParte);
    const QMargins margenes = widget()->layout()->contentsMargins();
    const int iPlegado = qt::AnchoMinimoDePanel(m_dentro) + margenes.left() + margenes.right();
    return {std::min(iPlegado + AnchoDeBarra(), iPermitido), kLineasALaVista * fontMetrics().lineSpacing()};
}

QSize Rollo::sizeHint() const
{
    return widget()->sizeHint() + QSize(AnchoDeBarra(), 0);
}

void Rollo::resizeEvent(QResizeEvent* evento)
{
    const QMargins margenes = widget()->layout()->contentsMargins();
    qt::PlegarPanel(m_dentro, width() - AnchoDeBarra() - margenes.left() - margenes.right());
    QScrollArea::resizeEvent(evento);
}

// What is inside needs more room than it did, or less.
bool Rollo::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == widget() && evento->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(objeto, evento);
}

}  // namespace efv::estudio

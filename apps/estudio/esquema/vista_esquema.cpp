#include "esquema/vista_esquema.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <QContextMenuEvent>
#include <QGraphicsScene>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <quorvel/qt.h>

#include "esquema/pintura.h"

namespace efv::estudio {

namespace {

constexpr double kEscalaMinima = 0.2, kEscalaMaxima = 6.0;
constexpr double kEscalaEncajada = 1.4;  // a small drawing isn't blown up
constexpr double kMarcoDeFoco = 2.0;
constexpr double kPasosPorDoble = 480.0;  // of the wheel

Tema TemaDe(const QWidget& widget)
{
    return widget.palette().color(QPalette::Base).lightness() < 128 ? Tema::oscuro : Tema::claro;
}

}  // namespace

VistaEsquema::VistaEsquema(QWidget* padre) : QGraphicsView(padre)
{
    setScene(new QGraphicsScene(this));
    setDragMode(QGraphicsView::ScrollHandDrag);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setMinimumSize(320, 240);
    qt::EsDibujo(*this);
    setAccessibleName(QStringLiteral("Esquema"));
}

void VistaEsquema::Poner(Lamina lamina, const CString& csSinDiseno)
{
    // The person keeps the scale that they chose while the drawing is the same.
    if (lamina == m_lamina && !m_aviso.isEmpty())
        return;
    m_lamina = std::move(lamina);
    m_aviso = QString::fromStdWString(csSinDiseno);
    scene()->setSceneRect(0, 0, m_lamina.dAncho, m_lamina.dAlto);
    Encajar();
}

void VistaEsquema::Encajar()
{
    m_bEncajado = true;
    const QSizeF sitio = maximumViewportSize();
    double dEscala = 1.0;
    if (m_lamina.dAncho > 0.0 && !sitio.isEmpty())
        dEscala = std::clamp(std::min(sitio.width() / m_lamina.dAncho, sitio.height() / m_lamina.dAlto),
                             kEscalaMinima, kEscalaEncajada);
    setTransform(QTransform::fromScale(dEscala, dEscala));
    viewport()->update();
}

void VistaEsquema::Ampliar(double dFactor)
{
    const double dAntes = transform().m11();
    const double dEscala = std::clamp(dAntes * dFactor, kEscalaMinima, kEscalaMaxima);
    m_bEncajado = false;
    scale(dEscala / dAntes, dEscala / dAntes);
}

void VistaEsquema::resizeEvent(QResizeEvent* evento)
{
    QGraphicsView::resizeEvent(evento);
    if (m_bEncajado)
        Encajar();
}

void VistaEsquema::wheelEvent(QWheelEvent* evento)
{
    if (m_lamina.trazos.empty())
        return;
    Ampliar(std::exp2(evento->angleDelta().y() / kPasosPorDoble));
    evento->accept();
}

const Zona* VistaEsquema::ZonaEn(const QPoint& punto) const
{
    const QPointF enPlano = mapToScene(punto);
    return m_lamina.En({enPlano.x(), enPlano.y()});
}

void VistaEsquema::LlenarMenu(QMenu& menu, Elemento::Clase clase)
{
    menu.addAction("&Datos…", this, [this, clase] { alAbrir(clase); });
    if (tieneRotulos(clase))
        menu.addAction("&Rotulación…", this, [this, clase] { alRotular(clase); });
}

std::vector<Zona> VistaEsquema::Leidos() const
{
    std::vector<Zona> zonas = m_lamina.zonas;
    std::ranges::stable_sort(zonas, {}, [](const Zona& zona) { return std::pair(zona.x, zona.y); });
    return zonas;
}

void VistaEsquema::LlenarElementos(QMenu& menu)
{
    std::set<Elemento::Clase> puestas = {Elemento::Clase::puntos};
    for (const Zona& zona : Leidos()) {
        if (!puestas.insert(zona.clase).second)
            continue;
        QMenu* dentro = menu.addMenu(QString::fromStdWString(zona.csTitulo).replace('&', "&&"));
        LlenarMenu(*dentro, zona.clase);
    }
    if (menu.isEmpty())
        menu.addAction("(ninguno)")->setEnabled(false);
}

// No pointer tells which element is meant.
void VistaEsquema::AbrirElementos()
{
    if (m_lamina.zonas.empty() || !alAbrir)
        return;
    QMenu menu(this);
    LlenarElementos(menu);
    menu.setActiveAction(menu.actions().constFirst());
    menu.exec(viewport()->mapToGlobal(viewport()->rect().center()));
}

void VistaEsquema::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        return AbrirElementos();
    QGraphicsView::keyPressEvent(evento);
}

void VistaEsquema::focusInEvent(QFocusEvent* evento)
{
    QGraphicsView::focusInEvent(evento);
    viewport()->update();
}

void VistaEsquema::focusOutEvent(QFocusEvent* evento)
{
    QGraphicsView::focusOutEvent(evento);
    viewport()->update();
}

void VistaEsquema::mouseDoubleClickEvent(QMouseEvent* evento)
{
    const Zona* zona = ZonaEn(evento->pos());
    if (zona == nullptr || zona->clase == Elemento::Clase::puntos || evento->button() != Qt::LeftButton ||
        !alAbrir)
        return QGraphicsView::mouseDoubleClickEvent(evento);
    evento->accept();
    alAbrir(zona->clase);
}

bool VistaEsquema::viewportEvent(QEvent* evento)
{
    if (evento->type() != QEvent::ToolTip)
        return QGraphicsView::viewportEvent(evento);
    const auto* ayuda = static_cast<QHelpEvent*>(evento);
    const Zona* zona = ZonaEn(ayuda->pos());
    QToolTip::showText(ayuda->globalPos(),
                       zona == nullptr ? QString() : QString::fromStdWString(zona->csIndicacion), viewport());
    return true;
}

void VistaEsquema::contextMenuEvent(QContextMenuEvent* evento)
{
    if (evento->reason() == QContextMenuEvent::Keyboard)
        return AbrirElementos();
    const Zona* zona = ZonaEn(evento->pos());
    if (zona == nullptr || zona->clase == Elemento::Clase::puntos || !alAbrir)
        return;
    QMenu menu(this);
    LlenarMenu(menu, zona->clase);
    menu.exec(evento->globalPos());
}

void VistaEsquema::changeEvent(QEvent* evento)
{
    QGraphicsView::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange)
        viewport()->update();
}

void VistaEsquema::drawBackground(QPainter* pintor, const QRectF& zona)
{
    pintor->fillRect(zona, ColorDe(Tinta::fondo, TemaDe(*this)));
}

void VistaEsquema::drawForeground(QPainter* pintor, const QRectF& /*zona*/)
{
    if (!m_lamina.trazos.empty())
        Pintar(*pintor, m_lamina, TemaDe(*this));
    pintor->resetTransform();
    if (m_lamina.trazos.empty()) {
        pintor->setPen(ColorDe(Tinta::tenue, TemaDe(*this)));
        pintor->drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_aviso);
    }
    if (hasFocus()) {
        pintor->setPen(QPen(palette().color(QPalette::Highlight), kMarcoDeFoco));
        pintor->setBrush(Qt::NoBrush);
        pintor->drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

}  // namespace efv::estudio

// A schematic on screen: fitted to its room, enlarged with the wheel, moved by dragging.
#pragma once

#include <functional>

#include <QGraphicsView>

#include "esquema/lamina.h"

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace efv::estudio {

class VistaEsquema final : public QGraphicsView {
public:
    explicit VistaEsquema(QWidget* padre = nullptr);

    /// @param csSinDiseno what to say when there is nothing to draw
    void Poner(Lamina lamina, const CString& csSinDiseno);
    const Lamina& Mostrado() const { return m_lamina; }
    /// Its elements as they are read, from left to right and then down.
    std::vector<Zona> Leidos() const;

    /// What a double click on an element opens, and what its menu offers besides.
    std::function<void(Elemento::Clase)> alAbrir, alRotular;
    /// Whether something can be written beside such an element.
    std::function<bool(Elemento::Clase)> tieneRotulos;
    /// Fills a menu with what can be done with an element.
    void LlenarMenu(QMenu& menu, Elemento::Clase clase);
    /// The same with one for each class of elements that the drawing has: those of a class share their data.
    void LlenarElementos(QMenu& menu);

    void Encajar();
    void Ampliar(double dFactor);

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    bool viewportEvent(QEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void drawBackground(QPainter* pintor, const QRectF& zona) override;
    void drawForeground(QPainter* pintor, const QRectF& zona) override;

private:
    const Zona* ZonaEn(const QPoint& punto) const;
    void AbrirElementos();

    Lamina m_lamina;
    QString m_aviso;
    bool m_bEncajado = true;  // follows the room until the person chooses a scale
};

}  // namespace efv::estudio

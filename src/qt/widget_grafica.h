// A chart on screen, with the values of the point under the pointer, or of the one that the arrow keys have
// come to.
#pragma once

#include <optional>

#include <QWidget>

#include <quorvel/ui/grafica.h>

#include "ui/trazado.h"

namespace efv::qt {

class WidgetGrafica final : public QWidget {
public:
    /// `datos` is drawn as it stands at each painting; it must outlive the widget.
    explicit WidgetGrafica(const CCtrlCurva2D& datos, QWidget* padre = nullptr);

    QSize sizeHint() const override { return {560, 340}; }
    QSize minimumSizeHint() const override { return {280, 180}; }

    /// Takes over what the chart is now.
    void Refrescar();

    /// Writes the chart as it stands to a file, PNG unless its name ends in ".svg".
    bool Guardar(const QString& ruta) const;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    void Pintar(QPainter& pintor, bool bConLectura) const;
    void PintarLectura(QPainter& pintor, const ui::Trazado& trazado) const;
    std::optional<ui::Trazado::Cercano> Leido(const ui::Trazado& trazado) const;
    void Mover(int iTecla);
    void Describir();
    void PreguntarYGuardar();

    // A point of a series.
    struct Marcado {
        std::size_t iSerie = 0, iPunto = 0;
    };

    const CCtrlCurva2D& m_datos;
    std::optional<QPointF> m_puntero;
    std::optional<Marcado> m_marcado;  // by the keys
};

}  // namespace efv::qt

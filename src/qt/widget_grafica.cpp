#include "qt/widget_grafica.h"

#include <algorithm>

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "qt/accesible.h"
#include "qt/cajas.h"
#include "qt/colores.h"
#include "qt/texto.h"
#include "ui/descripcion.h"

namespace efv::qt {

namespace {

constexpr double kEscalaPng = 2.0;
constexpr double kOpacidadInhabilitada = 0.35;
constexpr std::size_t kPaginas = 20;  // of a series, for the keyboard

class LienzoQt final : public ui::Lienzo {
public:
    LienzoQt(QPainter& pintor, const QPalette& paleta)
        : m_pintor(pintor), m_fondo(paleta.color(QPalette::Base)), m_texto(paleta.color(QPalette::Text))
    {
    }

    double AnchoTexto(std::wstring_view texto, double dCuerpo) const override
    {
        return QFontMetricsF(Letra(dCuerpo)).horizontalAdvance(AQt(texto));
    }

    void Linea(ui::Punto desde, ui::Punto hasta, ui::Tinta tinta) override
    {
        // Between text and background, so that it suits a light and a dark theme.
        const double dParte = tinta == ui::Tinta::cuadricula ? 0.15 : 0.65;
        m_pintor.setPen(QPen(Mezcla(dParte), 1.0));
        m_pintor.drawLine(QPointF(desde.dX, desde.dY), QPointF(hasta.dX, hasta.dY));
    }

    void Texto(ui::Punto base, std::wstring_view texto, double dCuerpo, ui::Ancla ancla,
               bool bVertical) override
    {
        const double dAncho = AnchoTexto(texto, dCuerpo);
        const double dDesvio = ancla == ui::Ancla::inicio   ? 0.0
                               : ancla == ui::Ancla::centro ? -0.5 * dAncho
                                                            : -dAncho;
        m_pintor.save();
        m_pintor.setFont(Letra(dCuerpo));
        m_pintor.setPen(m_texto);
        m_pintor.translate(base.dX, base.dY);
        if (bVertical)
            m_pintor.rotate(-90.0);
        m_pintor.drawText(QPointF(dDesvio, 0.0), AQt(texto));
        m_pintor.restore();
    }

    void EmpezarSeries(const ui::Recuadro& r) override
    {
        m_pintor.save();
        // Half a thick line more, so that one along the edge isn't cut lengthwise.
        m_pintor.setClipRect(QRectF(r.dX, r.dY, r.dAncho, r.dAlto).adjusted(-2.0, -2.0, 2.0, 2.0));
    }
    void AcabarSeries() override { m_pintor.restore(); }

    void Polilinea(std::span<const ui::Punto> puntos, const ui::SerieCurva& serie) override
    {
        const QColor tinta = ColorDeTexto(serie.color, m_texto, m_fondo);
        if (puntos.size() == 1) {
            m_pintor.setPen(Qt::NoPen);
            m_pintor.setBrush(tinta);
            m_pintor.drawEllipse(QPointF(puntos[0].dX, puntos[0].dY), serie.iAncho + 1.0, serie.iAncho + 1.0);
            return;
        }
        QPolygonF linea;
        linea.reserve(static_cast<qsizetype>(puntos.size()));
        for (const ui::Punto& punto : puntos)
            linea << QPointF(punto.dX, punto.dY);
        QPen pluma(tinta, serie.iAncho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        if (const auto guiones = ui::Guiones(serie.iEstilo); !guiones.empty()) {
            pluma.setDashPattern({guiones.begin(), guiones.end()});
            // Round ends would close the gaps.
            pluma.setCapStyle(Qt::FlatCap);
        }
        m_pintor.setPen(pluma);
        m_pintor.drawPolyline(linea);
    }

    void Barra(const ui::Recuadro& r, ui::Color color) override
    {
        m_pintor.fillRect(QRectF(r.dX, r.dY, r.dAncho, r.dAlto), ColorDeTexto(color, m_texto, m_fondo));
    }

    void Poligono(std::span<const ui::Punto> puntos, ui::Color color) override
    {
        QPolygonF figura;
        for (const ui::Punto& punto : puntos)
            figura << QPointF(punto.dX, punto.dY);
        m_pintor.setPen(QPen(m_fondo, 1.0));
        m_pintor.setBrush(ColorDeTexto(color, m_texto, m_fondo));
        m_pintor.drawPolygon(figura);
    }

    void Rayado(std::span<const ui::Punto> extremos) override
    {
        QList<QPointF> puntos;
        for (const ui::Punto& punto : extremos)
            puntos << QPointF(punto.dX, punto.dY);
        m_pintor.setPen(QPen(m_fondo, 1.2));
        m_pintor.drawLines(puntos);
    }

    QColor Mezcla(double dParteDeTexto) const
    {
        const auto t = static_cast<float>(dParteDeTexto);
        return QColor::fromRgbF(m_fondo.redF() + t * (m_texto.redF() - m_fondo.redF()),
                                m_fondo.greenF() + t * (m_texto.greenF() - m_fondo.greenF()),
                                m_fondo.blueF() + t * (m_texto.blueF() - m_fondo.blueF()));
    }

private:
    QFont Letra(double dCuerpo) const
    {
        QFont letra = m_pintor.font();
        letra.setPixelSize(std::max(1, qRound(dCuerpo)));
        return letra;
    }

    QPainter& m_pintor;
    QColor m_fondo, m_texto;
};

double CuerpoDe(const QWidget& widget)
{
    return QFontInfo(widget.font()).pixelSize() * 0.92;
}

}  // namespace

WidgetGrafica::WidgetGrafica(const CCtrlCurva2D& datos, QWidget* padre) : QWidget(padre), m_datos(datos)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    PonerPapel(*this, QAccessible::Graphic);
}

void WidgetGrafica::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    // What doesn't hold now is faint.
    pintor.setOpacity(isEnabled() ? 1.0 : kOpacidadInhabilitada);
    Pintar(pintor, true);
    pintor.setPen(palette().color(QPalette::Mid));
    if (hasFocus())
        pintor.setPen(QPen(
            Legible(palette().color(QPalette::Highlight), palette().color(QPalette::Base), Uso::dibujo), 2.0));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void WidgetGrafica::Pintar(QPainter& pintor, bool bConLectura) const
{
    pintor.setFont(font());
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.fillRect(rect(), palette().color(QPalette::Base));
    LienzoQt lienzo(pintor, palette());
    const ui::Trazado trazado(m_datos, width(), height(), CuerpoDe(*this), lienzo);
    trazado.Dibujar(lienzo);
    if (bConLectura)
        PintarLectura(pintor, trazado);
}

std::optional<ui::Trazado::Cercano> WidgetGrafica::Leido(const ui::Trazado& trazado) const
{
    const ui::Recuadro& marco = trazado.Marco();
    if (m_puntero && QRectF(marco.dX, marco.dY, marco.dAncho, marco.dAlto).contains(*m_puntero))
        return trazado.PuntoCercano({m_puntero->x(), m_puntero->y()}, width() + height());
    if (m_marcado && ui::SeDibuja(m_datos, m_marcado->iSerie, m_marcado->iPunto))
        return trazado.PuntoDe(m_marcado->iSerie, m_marcado->iPunto);
    return std::nullopt;
}

void WidgetGrafica::PintarLectura(QPainter& pintor, const ui::Trazado& trazado) const
{
    const ui::Recuadro& marco = trazado.Marco();
    const auto cercano = Leido(trazado);
    if (!cercano)
        return;
    const LienzoQt lienzo(pintor, palette());
    const QPointF punto(cercano->enPantalla.dX, cercano->enPantalla.dY);
    pintor.setPen(QPen(lienzo.Mezcla(0.5), 1.0, Qt::DashLine));
    pintor.drawLine(QPointF(marco.dX, punto.y()), QPointF(marco.dX + marco.dAncho, punto.y()));
    pintor.drawLine(QPointF(punto.x(), marco.dY), QPointF(punto.x(), marco.dY + marco.dAlto));
    const ui::SerieCurva& serie = m_datos.aSeries[cercano->iSerie];
    pintor.setBrush(
        ColorDeTexto(serie.color, palette().color(QPalette::Text), palette().color(QPalette::Base)));
    pintor.setPen(QPen(palette().color(QPalette::Base), 1.5));
    pintor.drawEllipse(punto, 4.5, 4.5);

    const QString texto = AQt(trazado.Lectura(*cercano));
    const QFontMetricsF medidas(font());
    QRectF caja =
        medidas.boundingRect(QRectF(0, 0, width(), height()), Qt::AlignLeft, texto).adjusted(-6, -4, 6, 4);
    caja.moveBottomLeft(punto + QPointF(10, -10));
    if (caja.right() > width())
        caja.moveRight(punto.x() - 10);
    if (caja.top() < 0)
        caja.moveTop(punto.y() + 10);
    pintor.setPen(lienzo.Mezcla(0.4));
    pintor.setBrush(palette().color(QPalette::ToolTipBase));
    pintor.drawRoundedRect(caja, 3, 3);
    pintor.setPen(palette().color(QPalette::ToolTipText));
    pintor.drawText(caja.adjusted(6, 4, -6, -4), Qt::AlignLeft, texto);
}

void WidgetGrafica::mouseMoveEvent(QMouseEvent* evento)
{
    m_puntero = evento->position();
    update();
}

void WidgetGrafica::leaveEvent(QEvent* /*evento*/)
{
    m_puntero.reset();
    update();
}

void WidgetGrafica::Refrescar()
{
    if (m_marcado && !ui::SeDibuja(m_datos, m_marcado->iSerie, m_marcado->iPunto))
        m_marcado.reset();
    Describir();
    update();
}

// What is read now stands for what the chart is: all of it again at each step would be too much to hear.
void WidgetGrafica::Describir()
{
    const QString texto = AQt(m_marcado ? ui::LecturaDePunto(m_datos, m_marcado->iSerie, m_marcado->iPunto)
                                        : ui::DescripcionDe(m_datos));
    if (accessibleDescription() == texto)
        return;
    setAccessibleDescription(texto);
    if (m_marcado && hasFocus())
        Avisar(*this, texto);
}

// Left and right along a series, a page a twentieth of it, to its ends; up and down to the next one that has a
// point there; the first time to where the chart begins.
void WidgetGrafica::Mover(int iTecla)
{
    Marcado lugar = m_marcado.value_or(Marcado{});
    const std::size_t nSeries = m_datos.aSeries.size();
    const auto avanzar = [&](bool bAtras, std::size_t nPasos = 1) {
        const std::size_t nPuntos = m_datos.aSeries[lugar.iSerie].adX.size();
        for (std::size_t i = lugar.iPunto; nPasos > 0 && (bAtras ? i-- > 0 : ++i < nPuntos);) {
            if (!ui::SeDibuja(m_datos, lugar.iSerie, i))
                continue;
            lugar.iPunto = i;
            --nPasos;
        }
    };
    const auto pasos = [&]() -> std::size_t {
        const std::size_t nPuntos = m_datos.aSeries[lugar.iSerie].adX.size();
        const bool bPagina = iTecla == Qt::Key_PageUp || iTecla == Qt::Key_PageDown;
        const bool bUno = iTecla == Qt::Key_Left || iTecla == Qt::Key_Right;
        return bUno ? 1 : bPagina ? std::max<std::size_t>(1, nPuntos / kPaginas) : nPuntos;
    };
    const auto cambiarDeSerie = [&](bool bAtras) {
        for (std::size_t n = 1; n < nSeries; ++n) {
            const std::size_t iSerie = (lugar.iSerie + (bAtras ? nSeries - n : n)) % nSeries;
            if (!ui::SeDibuja(m_datos, iSerie, lugar.iPunto))
                continue;
            lugar.iSerie = iSerie;
            return;
        }
    };
    if (m_marcado) {
        if (iTecla == Qt::Key_Up || iTecla == Qt::Key_Down)
            cambiarDeSerie(iTecla == Qt::Key_Up);
        else
            avanzar(iTecla == Qt::Key_Left || iTecla == Qt::Key_PageUp || iTecla == Qt::Key_Home, pasos());
    } else {
        while (lugar.iSerie < nSeries && !ui::SeDibuja(m_datos, lugar.iSerie, lugar.iPunto)) {
            avanzar(false);
            if (!ui::SeDibuja(m_datos, lugar.iSerie, lugar.iPunto))
                lugar = {lugar.iSerie + 1, 0};
        }
        if (lugar.iSerie == nSeries)
            return;
    }
    m_marcado = lugar;
    m_puntero.reset();
    Describir();
    update();
}

void WidgetGrafica::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
            Mover(evento->key());
            break;
        default:
            QWidget::keyPressEvent(evento);
    }
}

void WidgetGrafica::focusOutEvent(QFocusEvent* evento)
{
    QWidget::focusOutEvent(evento);
    m_marcado.reset();
    Describir();
    update();
}

void WidgetGrafica::contextMenuEvent(QContextMenuEvent* evento)
{
    QMenu menu(this);
    menu.addAction(QStringLiteral("Guardar imagen…"), this, [this] { PreguntarYGuardar(); });
    menu.addAction(QStringLiteral("Copiar imagen"), this,
                   [this] { QApplication::clipboard()->setPixmap(grab()); });
    menu.exec(evento->globalPos());
}

void WidgetGrafica::PreguntarYGuardar()
{
    const auto csRuta = ElegirFichero(
        this,
        {L"Guardar imagen", {{L"Imagen PNG", L"*.png"}, {L"Imagen SVG", L"*.svg"}}, true, L"grafica.png"});
    if (csRuta && !Guardar(AQt(*csRuta)))
        MostrarCaja(this, {L"Guardar imagen", L"No se puede escribir el archivo \"" + *csRuta + L"\".",
                           ui::Icono::error, ui::Botones::aceptar});
}

bool WidgetGrafica::Guardar(const QString& ruta) const
{
    std::string bytes;
    if (ruta.endsWith(".svg", Qt::CaseInsensitive)) {
        bytes = ui::EscribirSvg(m_datos, width(), height());
    } else {
        QImage imagen((QSizeF(size()) * kEscalaPng).toSize(), QImage::Format_ARGB32_Premultiplied);
        imagen.setDevicePixelRatio(kEscalaPng);
        QPainter pintor(&imagen);
        Pintar(pintor, false);
        pintor.end();
        QBuffer salida;
        if (!salida.open(QIODevice::WriteOnly) || !imagen.save(&salida, "PNG"))
            return false;
        bytes = salida.data().toStdString();
    }
    try {
        ReemplazarFichero(*ElMundo().ficheros, ruta.toStdString(), bytes);
        return true;
    } catch (const CFileException&) {
        return false;
    }
}

}  // namespace efv::qt

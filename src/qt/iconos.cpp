#include "qt/iconos.h"

#include <utility>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <quorvel/ui/figuras.h>

#include "qt/colores.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

constexpr double kLado = 16.0;  // of the square that drawings are made on
constexpr double kGrosor = 1.4;

FuenteIconos& Fuente()
{
    static FuenteIconos fuente;
    return fuente;
}

struct Figura {
    QPainterPath camino;
    QColor color;  // invalid: the theme's text colour
    bool bRellena = false;
};

QPainterPath Camino(const QStringList& palabras, qsizetype i)
{
    QPainterPath camino;
    const auto numero = [&] { return palabras.value(i++).toDouble(); };
    while (i < palabras.size()) {
        const QString& orden = palabras[i++];
        if (orden == "Z") {
            camino.closeSubpath();
            continue;
        }
        const double dRadio = orden == "O" ? numero() : 0.0;
        const double dX = numero();
        const QPointF punto(dX, numero());
        if (orden == "O")
            camino.addEllipse(punto, dRadio, dRadio);
        else if (orden == "M")
            camino.moveTo(punto);
        else
            camino.lineTo(punto);
    }
    return camino;
}

Figura LeerFigura(const QString& texto)
{
    const QStringList palabras = texto.split(' ', Qt::SkipEmptyParts);
    Figura figura;
    qsizetype i = 0;
    if (palabras.value(i).startsWith('#'))
        figura.color = QColor(palabras[i++]);
    figura.bRellena = palabras.value(i) == "relleno";
    figura.camino = Camino(palabras, figura.bRellena ? i + 1 : i);
    return figura;
}

class MotorDibujo final : public QIconEngine {
public:
    MotorDibujo(std::string_view figuras, QPalette paleta) : m_paleta(std::move(paleta))
    {
        const auto texto = QString::fromLatin1(figuras.data(), static_cast<qsizetype>(figuras.size()));
        for (const QString& figura : texto.split(';'))
            m_figuras.push_back(LeerFigura(figura));
    }

    void paint(QPainter* pintor, const QRect& rect, QIcon::Mode modo, QIcon::State /*estado*/) override
    {
        const bool bElegido = modo == QIcon::Selected;
        const QColor fondo = m_paleta.color(bElegido ? QPalette::Highlight : QPalette::Button);
        const QColor texto = m_paleta.color(bElegido ? QPalette::HighlightedText : QPalette::ButtonText);
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        if (modo == QIcon::Disabled)
            pintor->setOpacity(0.4);
        pintor->translate(rect.topLeft());
        pintor->scale(rect.width() / kLado, rect.height() / kLado);
        for (const Figura& figura : m_figuras) {
            const QColor color = figura.color.isValid() ? Legible(figura.color, fondo, Uso::dibujo) : texto;
            pintor->setPen(QPen(color, kGrosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            pintor->setBrush(figura.bRellena ? QBrush(color) : QBrush());
            pintor->drawPath(figura.camino);
        }
        pintor->restore();
    }

    QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override
    {
        QPixmap imagen(tamano);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        paint(&pintor, QRect(QPoint(0, 0), tamano), modo, estado);
        return imagen;
    }

    QIconEngine* clone() const override { return new MotorDibujo(*this); }

private:
    std::vector<Figura> m_figuras;
    QPalette m_paleta;
};

}  // namespace

void PonerIconos(FuenteIconos fuente)
{
    Fuente() = std::move(fuente);
}

QIcon IconoDe(std::wstring_view nombre, const QPalette& paleta)
{
    if (nombre.empty())
        return {};
    if (Fuente())
        if (QIcon propio = Fuente()(AQt(nombre), paleta); !propio.isNull())
            return propio;
    const std::string_view figuras = ui::FigurasDe(nombre);
    return figuras.empty() ? QIcon() : QIcon(new MotorDibujo(figuras, paleta));
}

}  // namespace efv::qt

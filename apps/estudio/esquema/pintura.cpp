#include "esquema/pintura.h"

#include <array>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPolygonF>

namespace efv::estudio {

namespace {

// On a dark screen, in the order of Tinta.
constexpr std::array<QRgb, 10> kOscuros{
    0xFF1E2126,  // fondo
    0xFFE9ECF0,  // texto
    0xFFA3ABB6,  // tenue
    0xFFC9CFD8,  // linea
    0xFFF0A35C,  // alterna
    0xFF2A2E35,  // tarjeta
    0xFF2F6299,  // panel
    0xFF37703F,  // acumulador
    0xFF6B5A24,  // aparato
    0xFFFF8A80,  // aviso
};

QColor DeLaBiblioteca(ui::Color color)
{
    return {QString::fromStdString(ui::ColorHex(color))};
}

QPointF AQt(Punto p)
{
    return {p.x, p.y};
}

QColor ColorDeTrazo(std::optional<ui::Color> color, Tinta tinta, Tema tema)
{
    return color ? DeLaBiblioteca(*color) : ColorDe(tinta, tema);
}

class Pincel {
public:
    Pincel(QPainter& pintor, Tema tema) : m_pintor(pintor), m_tema(tema) {}

    void operator()(const trazo::Linea& linea) const
    {
        m_pintor.setPen(QPen(ColorDeTrazo(linea.color, linea.tinta, m_tema), linea.dAncho, Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        QPolygonF puntos;
        for (const Punto& p : linea.puntos)
            puntos << AQt(p);
        m_pintor.drawPolyline(puntos);
    }
    void operator()(const trazo::Caja& caja) const
    {
        Preparar(ColorDeTrazo(caja.color, caja.borde, m_tema), caja.relleno);
        m_pintor.drawRoundedRect(QRectF(AQt(caja.esquina), QSizeF(caja.dAncho, caja.dAlto)), caja.dRadio,
                                 caja.dRadio);
    }
    void operator()(const trazo::Circulo& circulo) const
    {
        Preparar(ColorDe(circulo.borde, m_tema), circulo.relleno);
        m_pintor.drawEllipse(AQt(circulo.centro), circulo.dRadio, circulo.dRadio);
    }
    void operator()(const trazo::Texto& texto) const
    {
        QFont letra = QGuiApplication::font();
        letra.setPixelSize(static_cast<int>(texto.dTamano * kFino));
        letra.setBold(texto.bNegrita);
        m_pintor.save();
        m_pintor.setFont(letra);
        m_pintor.setPen(ColorDe(texto.tinta, m_tema));
        // Sizes of letters are whole pixels: in a finer scale they come close enough.
        m_pintor.translate(AQt(texto.base));
        m_pintor.scale(1.0 / kFino, 1.0 / kFino);
        const QString escrito = QString::fromStdWString(texto.cs);
        const double dAncho = QFontMetricsF(letra).horizontalAdvance(escrito);
        m_pintor.drawText(QPointF(texto.lado == trazo::Texto::Lado::centro ? -dAncho / 2 : 0.0, 0.0), escrito);
        m_pintor.restore();
    }

private:
    static constexpr double kFino = 8.0;

    void Preparar(const QColor& borde, Tinta relleno) const
    {
        m_pintor.setPen(QPen(borde, 1.3));
        m_pintor.setBrush(relleno == Tinta::ninguna ? QBrush(Qt::NoBrush) : QBrush(ColorDe(relleno, m_tema)));
    }

    QPainter& m_pintor;
    Tema m_tema;
};

}  // namespace

QColor ColorDe(Tinta tinta, Tema tema)
{
    const auto enPapel = report::ColorEnPapel(tinta);
    if (!enPapel)
        return Qt::transparent;
    return tema == Tema::claro ? DeLaBiblioteca(*enPapel)
                               : QColor::fromRgb(kOscuros.at(static_cast<std::size_t>(tinta)));
}

void Pintar(QPainter& pintor, const Lamina& lamina, Tema tema)
{
    pintor.setRenderHint(QPainter::Antialiasing);
    const Pincel pincel(pintor, tema);
    for (const Trazo& t : lamina.trazos)
        std::visit(pincel, t);
}

}  // namespace efv::estudio

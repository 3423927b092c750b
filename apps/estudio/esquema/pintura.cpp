#include "esquema/pintura.h"

#include <array>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPolygonF>
#include <QTextStream>

namespace efv::estudio {

namespace {

struct Colores {
    QRgb claro, oscuro;
};

// In the order of Tinta.
constexpr std::array<Colores, 10> kColores{{
    {0xFFFFFFFF, 0xFF1E2126},  // fondo
    {0xFF1B1F24, 0xFFE9ECF0},  // texto
    {0xFF6B7480, 0xFFA3ABB6},  // tenue
    {0xFF3A4048, 0xFFC9CFD8},  // linea
    {0xFFB4530A, 0xFFF0A35C},  // alterna
    {0xFFF6F8FA, 0xFF2A2E35},  // tarjeta
    {0xFF9CC4EC, 0xFF2F6299},  // panel
    {0xFFA9D8AE, 0xFF37703F},  // acumulador
    {0xFFF2E3B8, 0xFF6B5A24},  // aparato
    {0xFFB3261E, 0xFFFF8A80},  // aviso
}};

QPointF AQt(Punto p)
{
    return {p.x, p.y};
}

QString Escapado(const CString& cs)
{
    return QString::fromStdWString(cs).toHtmlEscaped();
}

QColor ColorDeTrazo(std::optional<ui::Color> color, Tinta tinta, Tema tema)
{
    return color ? QColor(QString::fromStdString(ui::ColorHex(*color))) : ColorDe(tinta, tema);
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

class EscritorSvg {
public:
    explicit EscritorSvg(QTextStream& salida) : m_salida(salida) {}

    void operator()(const trazo::Linea& linea) const
    {
        m_salida << "<polyline fill=\"none\" stroke=\"" << Nombre(linea.color, linea.tinta)
                 << "\" stroke-width=\"" << linea.dAncho << "\" points=\"";
        for (const Punto& p : linea.puntos)
            m_salida << p.x << ',' << p.y << ' ';
        m_salida << "\"/>\n";
    }
    void operator()(const trazo::Caja& caja) const
    {
        m_salida << "<rect x=\"" << caja.esquina.x << "\" y=\"" << caja.esquina.y << "\" width=\""
                 << caja.dAncho << "\" height=\"" << caja.dAlto << "\" rx=\"" << caja.dRadio << '"';
        Contorno(Nombre(caja.color, caja.borde), caja.relleno);
    }
    void operator()(const trazo::Circulo& circulo) const
    {
        m_salida << "<circle cx=\"" << circulo.centro.x << "\" cy=\"" << circulo.centro.y << "\" r=\""
                 << circulo.dRadio << '"';
        Contorno(Nombre(circulo.borde), circulo.relleno);
    }
    void operator()(const trazo::Texto& texto) const
    {
        m_salida << "<text x=\"" << texto.base.x << "\" y=\"" << texto.base.y << "\" font-size=\""
                 << texto.dTamano << "\" fill=\"" << Nombre(texto.tinta) << '"';
        if (texto.lado == trazo::Texto::Lado::centro)
            m_salida << " text-anchor=\"middle\"";
        if (texto.bNegrita)
            m_salida << " font-weight=\"bold\"";
        m_salida << '>' << Escapado(texto.cs) << "</text>\n";
    }

    static QString Nombre(Tinta tinta)
    {
        return tinta == Tinta::ninguna ? QStringLiteral("none") : ColorDe(tinta, Tema::claro).name();
    }

private:
    static QString Nombre(std::optional<ui::Color> color, Tinta tinta)
    {
        return color ? QString::fromStdString(ui::ColorHex(*color)) : Nombre(tinta);
    }
    void Contorno(const QString& csBorde, Tinta relleno) const
    {
        m_salida << " stroke=\"" << csBorde << "\" stroke-width=\"1.3\" fill=\"" << Nombre(relleno) << "\"/>\n";
    }

    QTextStream& m_salida;
};

}  // namespace

QColor ColorDe(Tinta tinta, Tema tema)
{
    if (tinta == Tinta::ninguna)
        return Qt::transparent;
    const Colores& colores = kColores.at(static_cast<std::size_t>(tinta));
    return QColor::fromRgb(tema == Tema::claro ? colores.claro : colores.oscuro);
}

void Pintar(QPainter& pintor, const Lamina& lamina, Tema tema)
{
    pintor.setRenderHint(QPainter::Antialiasing);
    const Pincel pincel(pintor, tema);
    for (const Trazo& t : lamina.trazos)
        std::visit(pincel, t);
}

std::string EscribirSvg(const Lamina& lamina)
{
    QString documento;
    QTextStream salida(&documento);
    salida << R"(<?xml version="1.0" encoding="UTF-8"?>)" << '\n'
           << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << lamina.dAncho << "\" height=\""
           << lamina.dAlto << "\" viewBox=\"0 0 " << lamina.dAncho << ' ' << lamina.dAlto
           << "\" font-family=\"sans-serif\">\n"
           << "<rect width=\"100%\" height=\"100%\" fill=\"" << EscritorSvg::Nombre(Tinta::fondo) << "\"/>\n";
    const EscritorSvg escritor(salida);
    for (const Trazo& t : lamina.trazos)
        std::visit(escritor, t);
    salida << "</svg>\n";
    salida.flush();
    return documento.toStdString();
}

}  // namespace efv::estudio

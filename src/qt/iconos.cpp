#include "qt/iconos.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include "qt/colores.h"

namespace efv::qt {

namespace {

// A picture is a few strokes on a square of 16 by 16: 'M' moves, 'L' draws a line, 'O' a circle of the
// radius given first, 'Z' closes the figure. A stroke has its own colour.
struct Trazo {
    const char* instrucciones;
    QRgb color;  // 0: the theme's text colour
    bool bRelleno = false;
};

constexpr QRgb kAzulVivo = 0xFF2F74C0;
constexpr QRgb kRojoVivo = 0xFFD0402F;
constexpr QRgb kVerdeVivo = 0xFF3C9A46;
constexpr QRgb kOcre = 0xFFD9A441;

struct Dibujo {
    std::wstring_view nombre;
    std::array<Trazo, 4> trazos;
};

constexpr const char* kEjes = "M 2 1 L 2 14 L 15 14";

constexpr auto kDibujos = std::to_array<Dibujo>({
    {L"curvas-t",
     {{{kEjes, 0},
       {"M 2 4 L 9 4 L 11 6 L 12 13", kRojoVivo},
       {"M 2 7 L 8 7 L 10 9 L 11 13", kAzulVivo},
       {"M 2 10 L 8 10 L 10 13", kVerdeVivo}}}},
    {L"curvas-g",
     {{{kEjes, 0},
       {"M 2 4 L 7 4 L 9 6 L 10 13", kRojoVivo},
       {"M 2 4 L 9 4 L 11 6 L 12 13", kAzulVivo},
       {"M 2 4 L 11 4 L 13 6 L 14 13", kVerdeVivo}}}},
    {L"grafica", {{{kEjes, 0}, {"M 3 12 L 6 7 L 9 9 L 14 2", kAzulVivo}}}},
    {L"barras",
     {{{kEjes, 0},
       {"M 4 9 L 6 9 L 6 13 L 4 13 Z M 8 5 L 10 5 L 10 13 L 8 13 Z M 12 7 L 14 7 L 14 13 L 12 13 Z", kAzulVivo,
        true}}}},
    {L"instalacion-aislada",
     {{{"M 2 9 L 5 3 L 14 3 L 11 9 Z", kAzulVivo},
       {"M 3 11 L 12 11 L 12 14 L 3 14 Z M 12 12 L 14 12", kVerdeVivo}}}},
    {L"instalacion-red",
     {{{"M 2 8 L 5 2 L 14 2 L 11 8 Z", kAzulVivo}, {"M 5 15 L 8 9 L 11 15 M 6 12 L 10 12 M 4 10 L 12 10", 0}}}},
    {L"coordenadas",
     {{{"O 6 8 8", 0}, {"M 8 1 L 8 8 M 1 8 L 15 8", 0}, {"M 8 8 L 8 15 M 6 12 L 8 15 L 10 12", kRojoVivo}}}},
    {L"anadir", {{{"M 8 2 L 8 14 M 2 8 L 14 8", kVerdeVivo}}}},
    {L"borrar", {{{"M 3 3 L 13 13 M 13 3 L 3 13", kRojoVivo}}}},
    {L"editar", {{{"M 3 13 L 4 10 L 11 3 L 13 5 L 6 12 Z", 0}}}},
    {L"buscar", {{{"O 4.5 6.5 6.5", 0}, {"M 10 10 L 14 14", 0}}}},
    {L"copiar", {{{"M 2 5 L 9 5 L 9 14 L 2 14 Z M 6 5 L 6 2 L 14 2 L 14 11 L 9 11", 0}}}},
    {L"pegar",
     {{{"M 3 3 L 13 3 L 13 14 L 3 14 Z M 6 1.5 L 10 1.5 L 10 4 L 6 4 Z M 5 8 L 11 8 M 5 11 L 11 11", 0}}}},
    {L"guardar",
     {{{"M 2 2 L 12 2 L 14 4 L 14 14 L 2 14 Z M 5 2 L 5 6 L 11 6 L 11 2 M 4 14 L 4 9 L 12 9 L 12 14", 0}}}},
    {L"abrir", {{{"M 1 13 L 1 3 L 6 3 L 7 5 L 13 5 L 13 7 M 1 13 L 4 7 L 15 7 L 12 13 Z", 0}}}},
    {L"subir", {{{"M 8 14 L 8 2 M 3 7 L 8 2 L 13 7", 0}}}},
    {L"bajar", {{{"M 8 2 L 8 14 M 3 9 L 8 14 L 13 9", 0}}}},
    {L"ayuda",
     {{{"M 5 5.5 L 6 3.5 L 8 3 L 10 3.5 L 11 5.5 L 10 7.5 L 8 8.5 L 8 10.5", kAzulVivo},
       {"O 0.7 8 13", kAzulVivo, true}}}},
});

constexpr Dibujo kGrupo{L"", {{{"M 1 13 L 1 3 L 6 3 L 7 5 L 15 5 L 15 13 Z", kOcre, true}}}};
constexpr Dibujo kHoja{
    L"",
    {{{"M 2 3 L 14 3 L 14 13 L 2 13 Z", kAzulVivo}, {"M 6 3 L 6 13 M 10 3 L 10 13 M 2 8 L 14 8", kAzulVivo}}}};

QPainterPath Camino(const char* instrucciones)
{
    QPainterPath camino;
    const QStringList palabras = QString::fromLatin1(instrucciones).split(' ');
    for (qsizetype i = 0; i < palabras.size();) {
        const QString& orden = palabras[i++];
        if (orden == "Z") {
            camino.closeSubpath();
            continue;
        }
        const double dRadio = orden == "O" ? palabras[i++].toDouble() : 0.0;
        const QPointF punto(palabras[i].toDouble(), palabras[i + 1].toDouble());
        i += 2;
        if (orden == "O")
            camino.addEllipse(punto, dRadio, dRadio);
        else if (orden == "M")
            camino.moveTo(punto);
        else
            camino.lineTo(punto);
    }
    return camino;
}

class MotorDibujo final : public QIconEngine {
public:
    MotorDibujo(const Dibujo& dibujo, QPalette paleta) : m_dibujo(dibujo), m_paleta(std::move(paleta)) {}

    void paint(QPainter* pintor, const QRect& rect, QIcon::Mode modo, QIcon::State /*estado*/) override
    {
        const QColor fondo = m_paleta.color(QPalette::Button);
        const QColor texto = m_paleta.color(QPalette::ButtonText);
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        if (modo == QIcon::Disabled)
            pintor->setOpacity(0.4);
        pintor->translate(rect.topLeft());
        pintor->scale(rect.width() / 16.0, rect.height() / 16.0);
        for (const Trazo& trazo : m_dibujo.trazos) {
            if (trazo.instrucciones == nullptr)
                continue;
            const QColor color = trazo.color == 0 ? texto : Legible(QColor(trazo.color), fondo);
            pintor->setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            pintor->setBrush(trazo.bRelleno ? QBrush(color) : QBrush());
            pintor->drawPath(Camino(trazo.instrucciones));
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

    QIconEngine* clone() const override { return new MotorDibujo(m_dibujo, m_paleta); }

private:
    const Dibujo& m_dibujo;
    QPalette m_paleta;
};

QIcon Hacer(const Dibujo& dibujo, const QPalette& paleta)
{
    return QIcon(new MotorDibujo(dibujo, paleta));
}

}  // namespace

QIcon IconoDe(const CString& nombre, const QPalette& paleta)
{
    const auto* dibujo = std::ranges::find(kDibujos, std::wstring_view(nombre), &Dibujo::nombre);
    return dibujo == kDibujos.end() ? QIcon() : Hacer(*dibujo, paleta);
}

QIcon IconoDeFila(int iImagen, const QPalette& paleta)
{
    if (iImagen < 0)
        return {};
    return Hacer(iImagen == 0 ? kGrupo : kHoja, paleta);
}

}  // namespace efv::qt

#include "esquema/exportar.h"

#include <memory>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "guardar.h"

namespace efv::estudio {

namespace {

constexpr double kEscalaImagen = 2.0;

QByteArray Png(const Lamina& lamina)
{
    QByteArray bytes;
    QBuffer salida(&bytes);
    salida.open(QIODevice::WriteOnly);
    ImagenDe(lamina).save(&salida, "PNG");
    return bytes;
}

}  // namespace

QImage ImagenDe(const Lamina& lamina, Tema tema)
{
    QImage imagen((QSizeF(lamina.dAncho, lamina.dAlto) * kEscalaImagen).toSize().expandedTo(QSize(1, 1)),
                  QImage::Format_RGB32);
    imagen.fill(ColorDe(Tinta::fondo, tema));
    QPainter pintor(&imagen);
    pintor.scale(kEscalaImagen, kEscalaImagen);
    Pintar(pintor, lamina, tema);
    return imagen;
}

void GuardarImagen(const Lamina& lamina, const CString& csRuta)
{
    const QByteArray bytes = Png(lamina);
    GuardarFichero(csRuta, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void CopiarLamina(const Lamina& lamina)
{
    auto datos = std::make_unique<QMimeData>();
    datos->setImageData(ImagenDe(lamina));
    datos->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(EscribirSvg(lamina)));
    QGuiApplication::clipboard()->setMimeData(datos.release());
}

}  // namespace efv::estudio

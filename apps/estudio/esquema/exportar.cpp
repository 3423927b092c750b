#include "esquema/exportar.h"

#include <stdexcept>

#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>

#include "guardar.h"

namespace efv::estudio {

namespace {

constexpr double kEscalaImagen = 2.0;
constexpr double kPixelesPorPulgada = 96.0, kPuntosPorPulgada = 72.0;
constexpr int kResolucionPdf = 600;

QByteArray Png(const Lamina& lamina)
{
    QByteArray bytes;
    QBuffer salida(&bytes);
    salida.open(QIODevice::WriteOnly);
    ImagenDe(lamina).save(&salida, "PNG");
    return bytes;
}

// One page of the drawing's size.
QByteArray Pdf(const Lamina& lamina)
{
    QByteArray bytes;
    QBuffer salida(&bytes);
    salida.open(QIODevice::WriteOnly);
    QPdfWriter pagina(&salida);
    constexpr double kPuntos = kPuntosPorPulgada / kPixelesPorPulgada;
    pagina.setPageMargins(QMarginsF());
    pagina.setPageSize(QPageSize(QSizeF(lamina.dAncho, lamina.dAlto) * kPuntos, QPageSize::Point,
                                 QStringLiteral("Esquema"), QPageSize::ExactMatch));
    pagina.setResolution(kResolucionPdf);
    QPainter pintor(&pagina);
    pintor.scale(kResolucionPdf / kPixelesPorPulgada, kResolucionPdf / kPixelesPorPulgada);
    Pintar(pintor, lamina, Tema::claro);
    pintor.end();
    return bytes;
}

QByteArray Bytes(const Lamina& lamina, const QString& sufijo)
{
    if (sufijo == QLatin1String("png"))
        return Png(lamina);
    if (sufijo == QLatin1String("svg"))
        return QByteArray::fromStdString(EscribirSvg(lamina));
    if (sufijo == QLatin1String("pdf"))
        return Pdf(lamina);
    throw std::runtime_error("El esquema se guarda como .png, .svg o .pdf.");
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

void GuardarLamina(const Lamina& lamina, const CString& csRuta)
{
    const QString ruta = QString::fromStdWString(csRuta);
    const QByteArray bytes = Bytes(lamina, QFileInfo(ruta).suffix().toLower());
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

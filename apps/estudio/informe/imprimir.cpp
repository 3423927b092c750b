#include "informe/imprimir.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <stdexcept>

#include <QFontDatabase>
#include <QPageLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "pdf/pdf.h"

namespace efv::estudio {

namespace {

constexpr double kPuntosPorPulgada = 72.0;
constexpr int kAnchoVista = 1000, kAltoVista = 680;  // fits a small screen

QColor ColorDe(ui::Color color)
{
    return {QString::fromStdString(ui::ColorHex(color))};
}

/// The family of a face's file, loaded once.
QString Familia(const std::string& ruta)
{
    const int n = QFontDatabase::addApplicationFont(QString::fromStdString(ruta));
    if (n < 0)
        throw std::runtime_error("No se puede imprimir: falta la letra «" + ruta + "».");
    return QFontDatabase::applicationFontFamilies(n).value(0);
}

class Pintor {
public:
    Pintor(QPainter& pintor, const QString& familia) : m_pintor(pintor), m_familia(familia) {}

    void operator()(const report::hoja::Texto& texto) const
    {
        QFont letra(m_familia);
        // Sizes of letters are whole pixels: in a finer scale they come close enough.
        letra.setPixelSize(static_cast<int>(texto.dCuerpo * kFino));
        letra.setBold(texto.bNegrita);
        letra.setHintingPreference(QFont::PreferNoHinting);
        m_pintor.save();
        m_pintor.setFont(letra);
        m_pintor.setPen(ColorDe(texto.color));
        m_pintor.translate(texto.base.x, texto.base.y);
        if (texto.bVertical)
            m_pintor.rotate(-90.0);
        m_pintor.scale(1.0 / kFino, 1.0 / kFino);
        m_pintor.drawText(QPointF(), QString::fromStdWString(texto.cs));
        m_pintor.restore();
    }
    void operator()(const report::hoja::Forma& forma) const
    {
        Preparar(forma.relleno, forma.borde, forma.dAncho, forma.adGuiones);
        QPolygonF puntos;
        for (const report::hoja::Sitio& sitio : forma.puntos)
            puntos << QPointF(sitio.x, sitio.y);
        if (forma.relleno)
            m_pintor.drawPolygon(puntos);
        else
            m_pintor.drawPolyline(puntos);
    }
    void operator()(const report::hoja::Circulo& circulo) const
    {
        Preparar(circulo.relleno, circulo.borde, circulo.dAncho, {});
        m_pintor.drawEllipse(QPointF(circulo.centro.x, circulo.centro.y), circulo.dRadio, circulo.dRadio);
    }
    void operator()(const report::hoja::Recorte& recorte) const
    {
        m_pintor.save();
        m_pintor.setClipRect(QRectF(recorte.esquina.x, recorte.esquina.y, recorte.dAncho, recorte.dAlto));
    }
    void operator()(const report::hoja::FinRecorte& /*fin*/) const { m_pintor.restore(); }
    // Paper leads nowhere.
    void operator()(const report::hoja::Enlace& /*enlace*/) const {}

private:
    static constexpr double kFino = 20.0;

    void Preparar(std::optional<ui::Color> relleno, std::optional<ui::Color> borde, double dAncho,
                  const std::vector<double>& adGuiones) const
    {
        QPen pluma(Qt::NoPen);
        if (borde) {
            pluma = QPen(ColorDe(*borde), dAncho, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
            QList<qreal> guiones;
            for (const double d : adGuiones)
                guiones << d / dAncho;  // in widths of the line
            if (!guiones.isEmpty())
                pluma.setDashPattern(guiones);
        }
        m_pintor.setPen(pluma);
        m_pintor.setBrush(relleno ? QBrush(ColorDe(*relleno)) : QBrush(Qt::NoBrush));
    }

    QPainter& m_pintor;
    const QString& m_familia;
};

}  // namespace

namespace {

// The sheets have their own margins.
QPageLayout DisposicionDe(const report::Hoja& hoja)
{
    const auto [dCorto, dLargo] = std::minmax(hoja.dAncho, hoja.dAlto);
    const QPageSize papel(QSizeF(dCorto, dLargo), QPageSize::Point, QString(), QPageSize::FuzzyMatch);
    QPageLayout disposicion(papel, hoja.dAncho > hoja.dAlto ? QPageLayout::Landscape : QPageLayout::Portrait,
                            QMarginsF());
    disposicion.setMode(QPageLayout::FullPageMode);
    return disposicion;
}

std::unique_ptr<QPrinter> ImpresoraPara(const report::Impreso& impreso)
{
    if (impreso.hojas.empty())
        throw std::runtime_error("No hay nada que imprimir.");
    auto impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    impresora->setDocName(QString::fromStdString(impreso.titulo));
    impresora->setPageLayout(DisposicionDe(impreso.hojas.front()));
    return impresora;
}

}  // namespace

void PintarHojas(const report::Impreso& impreso, QPagedPaintDevice& papel, std::size_t nDesde,
                 std::size_t nHasta)
{
    const pdf::Letras letras = pdf::LetrasInstaladas();
    const QString familia = Familia(letras.normal);
    Familia(letras.negrita);  // the bold one of the same family
    const auto preparar = [&](const report::Hoja& hoja) { papel.setPageLayout(DisposicionDe(hoja)); };
    if (nDesde >= impreso.hojas.size())
        return;
    preparar(impreso.hojas[nDesde]);
    QPainter pintor;
    if (!pintor.begin(&papel))
        throw std::runtime_error("No se puede imprimir: la impresora no responde.");
    pintor.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = nDesde; i <= std::min(nHasta, impreso.hojas.size() - 1); ++i) {
        if (i > nDesde) {
            preparar(impreso.hojas[i]);
            if (!papel.newPage())
                throw std::runtime_error("No se puede imprimir: la impresora no responde.");
        }
        pintor.save();
        pintor.scale(papel.logicalDpiX() / kPuntosPorPulgada, papel.logicalDpiY() / kPuntosPorPulgada);
        const Pintor hoja(pintor, familia);
        for (const report::Pieza& pieza : impreso.hojas[i].piezas)
            std::visit(hoja, pieza);
        pintor.restore();
    }
}

report::Impreso HojasDe(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const pdf::Escritor medidor;
    return report::Componer(DocumentoDe(proyecto, diseno), report::FechaDeHoy(), medidor);
}

void Imprimir(const report::Impreso& impreso, const char* titulo)
{
    const auto impresora = ImpresoraPara(impreso);
    QPrintDialog dialogo(impresora.get());
    dialogo.setWindowTitle(QString::fromUtf8(titulo));
    dialogo.setMinMax(1, static_cast<int>(impreso.hojas.size()));
    if (dialogo.exec() != QDialog::Accepted)
        return;
    const bool bParte = impresora->printRange() == QPrinter::PageRange && impresora->fromPage() > 0;
    const std::size_t nDesde = bParte ? static_cast<std::size_t>(impresora->fromPage()) - 1 : 0;
    const std::size_t nHasta =
        bParte ? static_cast<std::size_t>(impresora->toPage()) - 1 : impreso.hojas.size() - 1;
    PintarHojas(impreso, *impresora, nDesde, nHasta);
}

void VerImpreso(const report::Impreso& impreso, const char* titulo)
{
    const auto impresora = ImpresoraPara(impreso);
    QPrintPreviewDialog dialogo(impresora.get());
    dialogo.setWindowTitle(QString::fromUtf8(titulo));
    std::exception_ptr fallo;  // must not pass through the dialog's loop
    QObject::connect(&dialogo, &QPrintPreviewDialog::paintRequested, &dialogo, [&](QPrinter* papel) {
        try {
            PintarHojas(impreso, *papel, 0, impreso.hojas.size() - 1);
        } catch (...) {
            fallo = std::current_exception();
        }
    });
    dialogo.resize(kAnchoVista, kAltoVista);
    dialogo.exec();
    if (fallo)
        std::rethrow_exception(fallo);
}

void ImprimirInforme(const CProyectoEstudio& proyecto, Diseno diseno)
{
    Imprimir(HojasDe(proyecto, diseno), "Imprimir informe");
}

void VerInforme(const CProyectoEstudio& proyecto, Diseno diseno)
{
    VerImpreso(HojasDe(proyecto, diseno), "Vista preliminar del informe");
}

}  // namespace efv::estudio

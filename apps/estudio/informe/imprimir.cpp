#include "informe/imprimir.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <stdexcept>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPageLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>

#include <quorvel/marca_decimal.h>

#include "comun/pagina.h"
#include "pdf/pdf.h"

namespace efv::estudio {

namespace {

constexpr double kPuntosPorPulgada = 72.0;
constexpr int kLetrasEscala = 7;  // "1000,0%"
constexpr int kAnchoVista = 1000, kAltoVista = 680;
constexpr double kParteDePantalla = 0.92;  // at most; the title bar takes some

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

QSizeF TamanoDe(const report::Hoja& hoja)
{
    return {hoja.dAncho, hoja.dAlto};
}

// The sheets have their own margins.
QPageLayout DisposicionEn(const QPageSize& papel, const report::Hoja& hoja)
{
    QPageLayout disposicion(papel, hoja.dAncho > hoja.dAlto ? QPageLayout::Landscape : QPageLayout::Portrait,
                            QMarginsF());
    disposicion.setMode(QPageLayout::FullPageMode);
    return disposicion;
}

QPageSize PapelDe(const report::Hoja& hoja)
{
    const auto [dCorto, dLargo] = std::minmax(hoja.dAncho, hoja.dAlto);
    return QPageSize(QSizeF(dCorto, dLargo), QPageSize::Point, QString(), QPageSize::FuzzyMatch);
}

// On paper of another size, such as the only one that a printer has, a sheet is fitted whole and in the middle.
QTransform EncajeEn(const QSizeF& papel, const QSizeF& hoja)
{
    constexpr double kIgual = 0.01;
    const double dEscala = std::min(papel.width() / hoja.width(), papel.height() / hoja.height());
    if (std::abs(dEscala - 1.0) < kIgual)
        return {};
    const QSizeF libre = papel - hoja * dEscala;
    return QTransform::fromTranslate(libre.width() / 2, libre.height() / 2).scale(dEscala, dEscala);
}

std::unique_ptr<QPrinter> ImpresoraPara(const report::Impreso& impreso)
{
    if (impreso.hojas.empty())
        throw std::runtime_error("No hay nada que imprimir.");
    auto impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    impresora->setDocName(QString::fromStdString(impreso.titulo));
    impresora->setPageLayout(DisposicionEn(PapelDe(impreso.hojas.front()), impreso.hojas.front()));
    return impresora;
}

// The sheets that the person asked the printer for, in their order; copies, where it makes none itself.
std::vector<std::size_t> PaginasPedidas(const QPrinter& impresora, std::size_t nHojas)
{
    const bool bParte = impresora.printRange() == QPrinter::PageRange && impresora.fromPage() > 0;
    const std::size_t nDesde = bParte ? static_cast<std::size_t>(impresora.fromPage()) : 1;
    const std::size_t nHasta = bParte ? std::min(nHojas, static_cast<std::size_t>(impresora.toPage())) : nHojas;
    std::vector<std::size_t> paginas;
    for (std::size_t n = nDesde; n <= nHasta; ++n)
        paginas.push_back(n - 1);
    if (impresora.pageOrder() == QPrinter::LastPageFirst)
        std::ranges::reverse(paginas);
    const int iCopias = impresora.supportsMultipleCopies() ? 1 : impresora.copyCount();
    const std::vector<std::size_t> juego = paginas;
    for (int i = 1; i < iCopias; ++i)
        paginas.insert(paginas.end(), juego.begin(), juego.end());
    if (!impresora.collateCopies() && iCopias > 1)
        std::ranges::stable_sort(paginas, {}, [&](std::size_t n) { return std::ranges::find(juego, n); });
    return paginas;
}

void Pintar(QPainter& pintor, const report::Hoja& hoja, const QString& familia, const QPagedPaintDevice& papel)
{
    const QSizeF tamano = papel.pageLayout().fullRectPoints().size();
    pintor.save();
    pintor.scale(papel.logicalDpiX() / kPuntosPorPulgada, papel.logicalDpiY() / kPuntosPorPulgada);
    pintor.setTransform(EncajeEn(tamano, TamanoDe(hoja)), true);
    const Pintor deHoja(pintor, familia);
    for (const report::Pieza& pieza : hoja.piezas)
        std::visit(deHoja, pieza);
    pintor.restore();
}

/// The actions of a preview that would change what the sheets say themselves.
void QuitarLasDePagina(const QPrintPreviewDialog& dialogo)
{
    for (const char* texto : {"Portrait", "Landscape", "Page setup"}) {
        const QString traducido = QCoreApplication::translate("QPrintPreviewDialog", texto);
        for (QAction* accion : dialogo.findChildren<QAction*>())
            if (accion->text() == traducido)
                accion->setVisible(false);
    }
}

}  // namespace

namespace {

// Qt writes and reads the preview's scale with a point whatever the language: a box in front of its own has the
// mark that all other numbers have.
void PonerEscala(const QPrintPreviewDialog& dialogo, QToolBar& barra)
{
    auto* suya = dialogo.findChild<QComboBox*>();
    if (suya == nullptr || suya->lineEdit() == nullptr)
        return;
    const auto conMarca = [](QString texto) { return texto.replace('.', QChar(MarcaDecimal())); };
    auto* escala = new QComboBox(&barra);
    escala->setEditable(true);
    escala->setInsertPolicy(QComboBox::NoInsert);
    escala->setMinimumContentsLength(kLetrasEscala);
    escala->setAccessibleName("Escala");
    escala->setToolTip("Escala");
    for (int i = 0; i < suya->count(); ++i)
        escala->addItem(conMarca(suya->itemText(i)));
    for (QAction* accion : barra.actions()) {
        if (barra.widgetForAction(accion) != suya)
            continue;
        barra.insertWidget(accion, escala);
        accion->setVisible(false);
    }
    const auto mostrar = [=] { escala->setEditText(conMarca(suya->currentText())); };
    QObject::connect(suya->lineEdit(), &QLineEdit::textChanged, escala, mostrar);
    const auto elegir = [=] {
        suya->lineEdit()->setText(escala->currentText().remove(' ').replace(',', '.'));
        emit suya->lineEdit()->editingFinished();
        mostrar();
    };
    QObject::connect(escala->lineEdit(), &QLineEdit::editingFinished, escala, elegir);
    QObject::connect(escala, qOverload<int>(&QComboBox::activated), escala, elegir);
    mostrar();
}

}  // namespace

void PintarHojas(const report::Impreso& impreso, QPagedPaintDevice& papel,
                 const std::vector<std::size_t>& paginas)
{
    constexpr const char* kNoResponde = "No se puede imprimir: la impresora no responde.";
    const pdf::Letras letras = pdf::LetrasInstaladas();
    const QString familia = Familia(letras.normal);
    Familia(letras.negrita);  // the bold one of the same family
    const QPageSize hay = papel.pageLayout().pageSize();
    QPainter pintor;
    for (const std::size_t n : paginas) {
        const report::Hoja& hoja = impreso.hojas.at(n);
        papel.setPageLayout(DisposicionEn(hay, hoja));
        if (!(pintor.isActive() ? papel.newPage() : pintor.begin(&papel)))
            throw std::runtime_error(kNoResponde);
        pintor.setRenderHint(QPainter::Antialiasing);
        Pintar(pintor, hoja, familia, papel);
    }
    if (pintor.isActive() && !pintor.end())
        throw std::runtime_error(kNoResponde);
}

report::Impreso HojasDe(const report::Documento& documento)
{
    const pdf::Escritor medidor;
    return report::Componer(documento, report::FechaDeHoy(), medidor, PapelDeInformes());
}

void Imprimir(const report::Impreso& impreso, const char* titulo)
{
    const auto impresora = ImpresoraPara(impreso);
    QPrintDialog dialogo(impresora.get());
    dialogo.setWindowTitle(QString::fromUtf8(titulo));
    dialogo.setMinMax(1, static_cast<int>(impreso.hojas.size()));
    if (dialogo.exec() == QDialog::Accepted)
        PintarHojas(impreso, *impresora, PaginasPedidas(*impresora, impreso.hojas.size()));
}

void VerImpreso(const VistaImpresa& vista)
{
    report::Impreso impreso = vista.componer();
    const auto impresora = ImpresoraPara(impreso);
    QPrintPreviewDialog dialogo(impresora.get());
    dialogo.setWindowTitle(QString::fromUtf8(vista.titulo));
    QuitarLasDePagina(dialogo);
    std::exception_ptr fallo;  // must not pass through the dialog's loop
    const auto cuidar = [&](const auto& hacer) {
        try {
            hacer();
        } catch (...) {
            fallo = std::current_exception();
            dialogo.reject();
        }
    };
    QObject::connect(&dialogo, &QPrintPreviewDialog::paintRequested, &dialogo, [&](QPrinter* papel) {
        cuidar([&] { PintarHojas(impreso, *papel, PaginasPedidas(*papel, impreso.hojas.size())); });
    });
    auto* barra = dialogo.findChild<QToolBar*>();
    auto* hojas = dialogo.findChild<QPrintPreviewWidget*>();
    if (barra != nullptr)
        PonerEscala(dialogo, *barra);
    if (vista.configurar && barra != nullptr && hojas != nullptr) {
        QObject::connect(barra->addAction("&Configurar página…"), &QAction::triggered, &dialogo, [&] {
            cuidar([&] {
                vista.configurar();
                impreso = vista.componer();
                impresora->setPageLayout(DisposicionEn(PapelDe(impreso.hojas.front()), impreso.hojas.front()));
                hojas->updatePreview();
            });
        });
    }
    dialogo.resize(
        QSize(kAnchoVista, kAltoVista).boundedTo(dialogo.screen()->availableSize() * kParteDePantalla));
    dialogo.exec();
    if (fallo)
        std::rethrow_exception(fallo);
}

void ImprimirInforme(const report::Documento& documento)
{
    Imprimir(HojasDe(documento), "Imprimir informe");
}

void VerInforme(const report::Documento& documento)
{
    VerImpreso({"Vista preliminar del informe", [&] { return HojasDe(documento); },
                [] { ConfigurarPagina(Impresion::informe); }});
}

}  // namespace efv::estudio

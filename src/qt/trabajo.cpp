#include "qt/trabajo.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/cajas.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

constexpr qint64 kHastaMostrar = 400;  // ms
constexpr qint64 kEntrePinturas = 40;  // ms: work that tells each of a million steps must not crawl
constexpr int kPasos = 1000;
constexpr int kAncho = 340;

}  // namespace

class VentanaTrabajo final : public QDialog {
public:
    VentanaTrabajo(QWidget* padre, const CString& csTexto, bool bCancelable) : QDialog(padre)
    {
        setObjectName("trabajo");
        setWindowTitle(TituloDeCaja(ui::kTituloModulo));
        setModal(true);
        setWindowFlag(Qt::WindowCloseButtonHint, bCancelable);
        setMinimumWidth(kAncho);
        m_texto->setTextFormat(Qt::PlainText);
        m_texto->setWordWrap(true);
        m_texto->setText(AQt(csTexto));
        m_barra->setObjectName("progreso");
        m_barra->setRange(0, kPasos);
        m_barra->setAccessibleName(AQt(csTexto));
        auto* pila = new QVBoxLayout(this);
        pila->addWidget(m_texto);
        pila->addWidget(m_barra);
        if (!bCancelable)
            return;
        m_cancelar = new QPushButton(QStringLiteral("Cancelar"), this);
        m_cancelar->setObjectName("cancelar");
        connect(m_cancelar, &QPushButton::clicked, this, &VentanaTrabajo::reject);
        auto* fila = new QHBoxLayout;
        fila->addStretch();
        fila->addWidget(m_cancelar);
        pila->addLayout(fila);
    }

    void Avanzar(double dFraccion)
    {
        // Not-a-number fails the comparison and counts as nothing done.
        const double d = dFraccion > 0.0 ? std::min(dFraccion, 1.0) : 0.0;
        m_barra->setValue(static_cast<int>(d * kPasos));
    }
    bool Cancelado() const { return m_bCancelado; }

protected:
    // Escape, the button, the window's own: the work hears it and ends, and then the window goes.
    void reject() override
    {
        if (m_cancelar == nullptr)
            return;
        m_bCancelado = true;
        m_cancelar->setEnabled(false);
        m_texto->setText(QStringLiteral("Cancelando…"));
    }

private:
    QLabel* m_texto = new QLabel(this);
    QProgressBar* m_barra = new QProgressBar(this);
    QPushButton* m_cancelar = nullptr;
    bool m_bCancelado = false;
};

TrabajoQt::TrabajoQt(QWidget* padre, const CString& csTexto, bool bCancelable, std::function<void()> alMostrar)
    : m_ventana(new VentanaTrabajo(padre, csTexto, bCancelable)), m_alMostrar(std::move(alMostrar))
{
    m_desdeInicio.start();
    m_desdePintura.start();
}

TrabajoQt::~TrabajoQt()
{
    delete m_ventana.data();
}

bool TrabajoQt::EnPantalla() const
{
    return m_ventana != nullptr && m_ventana->isVisible();
}

bool TrabajoQt::Avanzar(double dFraccion)
{
    if (m_ventana != nullptr && !EnPantalla() && m_desdeInicio.hasExpired(kHastaMostrar)) {
        m_alMostrar();
        m_ventana->show();
    }
    if (EnPantalla() && m_desdePintura.hasExpired(kEntrePinturas)) {
        m_ventana->Avanzar(dFraccion);
        // The window is modal: the person's actions reach nothing else.
        QCoreApplication::processEvents();
        m_desdePintura.start();
    }
    return m_ventana == nullptr || !m_ventana->Cancelado();
}

}  // namespace efv::qt

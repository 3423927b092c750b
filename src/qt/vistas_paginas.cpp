// The pages of a dialog.
#include <QHelpEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>

#include "qt/texto.h"
#include "qt/vistas.h"

namespace efv::qt {

namespace {

// All in sight and none behind an arrow: what has no room is cut off, and the pointer over it says it whole.
class Barra final : public QTabBar {
public:
    using QTabBar::QTabBar;

protected:
    bool event(QEvent* evento) override
    {
        if (evento->type() != QEvent::ToolTip)
            return QTabBar::event(evento);
        const auto* ayuda = static_cast<QHelpEvent*>(evento);
        const int i = tabAt(ayuda->pos());
        if (i >= 0 && tabRect(i).width() < tabSizeHint(i).width())
            QToolTip::showText(ayuda->globalPos(), Indicacion(DeQt(SinMnemonico(DeQt(tabText(i))))), this);
        else
            QToolTip::hideText();
        return true;
    }
};

class Fichas final : public QTabWidget {
public:
    explicit Fichas(QWidget* padre) : QTabWidget(padre)
    {
        auto* barra = new Barra(this);
        barra->setObjectName(tabBar()->objectName());
        setTabBar(barra);
        setUsesScrollButtons(false);
        setElideMode(Qt::ElideRight);
    }
};

class PaginasConPestanas final : public VistaPaginas {
public:
    PaginasConPestanas(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : VistaPaginas(seleccion, new Fichas(padre)), m_seleccion(seleccion)
    {
        for (const CString& entrada : seleccion.acsEntradas)
            Pestanas().addTab(new QWidget, ConMnemonico(entrada));
        // The row of tabs has the focus. Where the whole of it comes on the way of the Tab key, behind the
        // first page's fields, it would send the focus back to the row for ever.
        Pestanas().setFocusProxy(nullptr);
        Pestanas().setFocusPolicy(Qt::NoFocus);
        QObject::connect(&Pestanas(), &QTabWidget::currentChanged, &Pestanas(), [&](int iPagina) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iPagina); });
        });
    }

    bool EsAncha() const override { return true; }
    bool QuiereSitio() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

    // The row of tabs: what follows the whole of it would come behind its last page.
    void Encadenar(const std::function<void(QWidget*)>& siguiente) override { siguiente(Pestanas().tabBar()); }

    QWidget* Pagina(int iPagina) override
    {
        while (Pestanas().count() <= iPagina)
            Pestanas().addTab(new QWidget, QString());
        return Pestanas().widget(iPagina);
    }

    void Mostrar(int iPagina) override
    {
        const QSignalBlocker silencio(Pestanas());
        Pestanas().setCurrentIndex(iPagina);
    }

    void Pasar(bool bSiguiente) override
    {
        const int n = Pestanas().count();
        int i = Pestanas().currentIndex();
        for (int iPaso = 0; iPaso < n; ++iPaso) {
            i = (i + (bSiguiente ? 1 : n - 1)) % n;
            if (Pestanas().isTabVisible(i) && Pestanas().isTabEnabled(i))
                return Pestanas().setCurrentIndex(i);
        }
    }

private:
    QTabWidget& Pestanas() const { return static_cast<QTabWidget&>(*widget); }

    void RefrescarContenido() override
    {
        const QSignalBlocker silencio(Pestanas());
        for (int i = 0; i < Pestanas().count(); ++i) {
            const bool bExiste = static_cast<std::size_t>(i) < m_seleccion.acsEntradas.size();
            Pestanas().setTabVisible(i, bExiste);
            if (bExiste)
                Pestanas().setTabText(i, ConMnemonico(m_seleccion.acsEntradas[static_cast<std::size_t>(i)]));
        }
        if (m_seleccion.iSeleccion >= 0)
            Pestanas().setCurrentIndex(m_seleccion.iSeleccion);
    }

    const ui::Seleccion& m_seleccion;
};

}  // namespace

std::unique_ptr<VistaPaginas> CrearPaginas(ui::Seleccion& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<PaginasConPestanas>(control, padre, accionador);
}

}  // namespace efv::qt

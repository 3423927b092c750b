// Lists, tables, trees.
#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>
#include <QTreeView>

#include <quorvel/ui/filas.h>

#include "qt/celdas_menu.h"
#include "qt/colores.h"
#include "qt/modelo_filas.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

constexpr int kFilasMedidas = 40;  // rows that a column's width is taken from
constexpr int kAnchoMinimo = 220;
constexpr int kAnchoImprescindible = 260;
constexpr double kParteDeNombres = 0.65;
constexpr int kLetrasDeValores = 56;  // of a table of names and values
constexpr int kAireDeFila = 6;        // above and below a row's letters
constexpr int kFilasMinimas = 5;
constexpr int kFilasImprescindibles = 3;
constexpr int kFilasMaximas = 14;

// Both kinds of view tell when they get their size, and open the current cell by the keyboard.
template <class BASE>
class Rejilla final : public BASE {
public:
    using BASE::BASE;
    std::function<void()> alCambiarTamano;
    std::function<void()> alCambiarLetra;
    std::function<void(const QModelIndex&)> alPedirAbrir;
    std::function<bool()> seAbre;
    std::function<void()> alPedirCopia;
    std::function<void(const QPoint& lugar)> alPedirMenu;
    QSize propuesto;

    QSize sizeHint() const override { return propuesto; }

protected:
    void resizeEvent(QResizeEvent* evento) override
    {
        BASE::resizeEvent(evento);
        if (alCambiarTamano)
            alCambiarTamano();
    }
    void changeEvent(QEvent* evento) override
    {
        BASE::changeEvent(evento);
        if (evento->type() == QEvent::FontChange && alCambiarLetra)
            alCambiarLetra();
    }
    void keyPressEvent(QKeyEvent* evento) override
    {
        // Enter on a row does what a double click does, before it accepts the dialog.
        const bool bRetorno = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
        const bool bAbre = evento->key() == Qt::Key_F2 || (bRetorno && seAbre && seAbre());
        if (bAbre && alPedirAbrir && BASE::currentIndex().isValid())
            alPedirAbrir(BASE::currentIndex());
        else if (evento->matches(QKeySequence::Copy) && alPedirCopia)
            alPedirCopia();
        else
            BASE::keyPressEvent(evento);
    }
    // The style's mark of the current cell is too faint to tell where the keyboard is.
    void paintEvent(QPaintEvent* evento) override
    {
        BASE::paintEvent(evento);
        if (!BASE::hasFocus())
            return;
        QPainter pintor(BASE::viewport());
        const QPalette paleta = BASE::palette();
        pintor.setPen(
            QPen(Legible(paleta.color(QPalette::Highlight), paleta.color(QPalette::Base), Uso::dibujo), 2.0));
        pintor.drawRect(BASE::viewport()->rect().adjusted(1, 1, -1, -1));
        const QModelIndex actual = BASE::currentIndex();
        if (actual.isValid() && !BASE::selectionModel()->isSelected(actual))
            pintor.drawRect(BASE::visualRect(actual).adjusted(1, 1, -1, -1));
    }
    // The frame doesn't move with what scrolls.
    void scrollContentsBy(int iX, int iY) override
    {
        BASE::scrollContentsBy(iX, iY);
        if (BASE::hasFocus())
            BASE::viewport()->update();
    }
    // What is cut off, whole.
    bool viewportEvent(QEvent* evento) override
    {
        if (evento->type() != QEvent::ToolTip)
            return BASE::viewportEvent(evento);
        const auto* ayuda = static_cast<QHelpEvent*>(evento);
        const QModelIndex celda = BASE::indexAt(ayuda->pos());
        const bool bCortada =
            celda.isValid() && BASE::sizeHintForIndex(celda).width() > BASE::visualRect(celda).width();
        if (bCortada)
            QToolTip::showText(ayuda->globalPos(), Indicacion(DeQt(celda.data().toString())), this);
        else
            QToolTip::hideText();
        return true;
    }
    void contextMenuEvent(QContextMenuEvent* evento) override
    {
        if (!alPedirMenu)
            return;
        const bool bDeTeclado = evento->reason() == QContextMenuEvent::Keyboard;
        const QPoint celda = BASE::viewport()->mapToGlobal(BASE::visualRect(BASE::currentIndex()).bottomLeft());
        alPedirMenu(bDeTeclado ? celda : evento->globalPos());
    }
};

QTableView* NuevaTabla(QWidget* padre)
{
    auto* tabla = new Rejilla<QTableView>(padre);
    tabla->verticalHeader()->hide();
    tabla->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabla->setWordWrap(false);
    tabla->setTabKeyNavigation(false);
    tabla->setAlternatingRowColors(true);
    return tabla;
}

QTreeView* NuevoArbol(QWidget* padre)
{
    auto* arbol = new Rejilla<QTreeView>(padre);
    arbol->setUniformRowHeights(true);
    arbol->setExpandsOnDoubleClick(false);
    return arbol;
}

class VistaLista final : public Vista {
public:
    VistaLista(ui::Lista& lista, QWidget* padre, Accionador& accionador)
        : Vista(lista, lista.forma == ui::Lista::Forma::arbol ? static_cast<QWidget*>(NuevoArbol(padre))
                                                              : static_cast<QWidget*>(NuevaTabla(padre))),
          m_lista(lista),
          m_accionador(accionador),
          m_modelo(new ModeloLista(lista, widget)),
          m_uVersion(lista.uVersion),
          m_filas(lista.modelo)
    {
        Rejas().setModel(m_modelo);
        Rejas().setSelectionBehavior(QAbstractItemView::SelectRows);
        // Several for copying; chosen is the current one alone.
        Rejas().setSelectionMode(QAbstractItemView::ExtendedSelection);
        Rejas().setEditTriggers(QAbstractItemView::NoEditTriggers);
        Rejas().setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        Cabecera().setVisible(!lista.acsColumnas.empty());
        Cabecera().setResizeContentsPrecision(kFilasMedidas);
        Cabecera().setHighlightSections(false);
        Cabecera().setSectionsClickable(SeOrdena());
        if (lista.acsColumnas.size() <= 1)
            Cabecera().setStretchLastSection(true);
        Conectar();
        if (Arbol() != nullptr)
            Arbol()->expandAll();
        PedirSitio();
    }

    bool EsAncha() const override { return true; }
    bool QuiereSitio() const override { return true; }

    void OfrecerMenu(ui::Seleccion& menu) override
    {
        if (m_menus == nullptr)
            m_menus = new MenusDeCelda(m_lista, Rejas(), m_accionador);
        m_menus->Ofrecer(menu);
        PedirSitio();
    }

private:
    // A table without a caption goes by its columns.
    QString NombreHablado() const override
    {
        QString hablado = Vista::NombreHablado();
        if (!hablado.isEmpty())
            return hablado;
        QStringList columnas;
        for (const CString& csColumna : m_lista.acsColumnas)
            if (!csColumna.empty())
                columnas << AQt(csColumna).replace('\n', ' ');
        return columnas.isEmpty() ? QStringLiteral("Lista") : columnas.join(QStringLiteral(", "));
    }

    QAbstractItemView& Rejas() const { return static_cast<QAbstractItemView&>(*widget); }
    QTreeView* Arbol() const
    {
        return m_lista.forma == ui::Lista::Forma::arbol ? static_cast<QTreeView*>(widget) : nullptr;
    }
    QHeaderView& Cabecera() const
    {
        if (m_lista.forma == ui::Lista::Forma::arbol)
            return *static_cast<QTreeView&>(*widget).header();
        return *static_cast<QTableView&>(*widget).horizontalHeader();
    }

    bool SeOrdena() const { return Arbol() == nullptr && m_lista.acsColumnas.size() > 1; }

    // A view that gets the focus makes a row the current one; chosen it is only once it is selected.
    int FilaElegida() const
    {
        const QItemSelectionModel& eleccion = *Rejas().selectionModel();
        const QModelIndex actual = Rejas().currentIndex();
        if (actual.isValid() && eleccion.isRowSelected(actual.row(), actual.parent()))
            return ModeloLista::Fila(actual);
        const QItemSelection& trozos = eleccion.selection();
        return trozos.isEmpty() ? -1 : ModeloLista::Fila(trozos.constFirst().topLeft());
    }

    // The rows to be copied: those selected, else all.
    std::vector<int> FilasACopiar() const
    {
        std::vector<int> filas = FilasElegidas();
        if (!filas.empty())
            return filas;
        for (int i = 0; i < m_lista.Filas(); ++i)
            filas.push_back(Arbol() != nullptr ? i : ModeloLista::Fila(m_modelo->index(i, 0, {})));
        return filas;
    }

    // As they stand on screen.
    std::vector<int> FilasElegidas() const
    {
        QModelIndexList elegidas = Rejas().selectionModel()->selectedRows();
        std::vector<int> filas;
        // The rows of a tree are numbered from top to bottom.
        const bool bArbol = Arbol() != nullptr;
        std::ranges::sort(elegidas, {}, [bArbol](const QModelIndex& indice) {
            return bArbol ? ModeloLista::Fila(indice) : indice.row();
        });
        for (const QModelIndex& indice : elegidas)
            filas.push_back(ModeloLista::Fila(indice));
        return filas;
    }

    void Copiar(ui::Cabeceras cabeceras) const
    {
        if (m_lista.modelo)
            QApplication::clipboard()->setText(AQt(ui::TextoDeFilas(m_lista, FilasACopiar(), cabeceras)));
    }

    void AbrirMenuDeTabla(const QPoint& lugar)
    {
        auto* menu = new QMenu(widget);
        QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater, Qt::QueuedConnection);
        menu->addAction(QStringLiteral("&Copiar"), widget, [this] { Copiar(ui::Cabeceras::sin); });
        menu->addAction(QStringLiteral("Copiar con ca&beceras\tCtrl+C"), widget,
                        [this] { Copiar(ui::Cabeceras::con); });
        menu->addAction(QStringLiteral("Seleccionar &todo\tCtrl+A"), widget, [this] { Rejas().selectAll(); });
        if (SeOrdena()) {
            QMenu* orden = menu->addMenu(QStringLiteral("&Ordenar por"));
            for (int i = 0; i < Cabecera().count(); ++i)
                if (const QString columna = TituloDe(i); !columna.isEmpty())
                    orden->addAction(columna, widget, [this, i] { OrdenarPor(i); });
        }
        if (m_lista.alFiltrar) {
            QMenu* filtro = menu->addMenu(QStringLiteral("&Filtrar por"));
            for (int i = 0; i < Cabecera().count(); ++i)
                filtro->addAction(TituloDe(i) + QStringLiteral("…"), widget, [this, i] { FiltrarPor(i); });
        }
        menu->popup(lugar);
    }

    void AbrirMenuDeColumna(const QPoint& lugar)
    {
        const int iColumna = Cabecera().logicalIndexAt(lugar);
        if (iColumna < 0 || !SeOrdena())
            return;
        auto* menu = new QMenu(widget);
        QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater, Qt::QueuedConnection);
        menu->addAction(QStringLiteral("&Ordenar por esta columna"), widget,
                        [this, iColumna] { OrdenarPor(iColumna); });
        if (m_lista.alFiltrar)
            menu->addAction(QStringLiteral("&Filtrar esta columna…"), widget,
                            [this, iColumna] { FiltrarPor(iColumna); });
        menu->popup(Cabecera().viewport()->mapToGlobal(lugar));
    }

    void FiltrarPor(int iColumna)
    {
        m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Filtrar(m_lista, iColumna); });
    }

    QString TituloDe(int iColumna) const
    {
        return AQt(m_lista.acsColumnas[static_cast<std::size_t>(iColumna)]).simplified().replace('&', "&&");
    }

    // Up, down, and as the rows come again.
    void OrdenarPor(int iColumna)
    {
        if (m_lista.alOrdenar) {
            m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Ordenar(m_lista, iColumna); });
            return;
        }
        const bool bMisma = iColumna == m_iColumnaOrden;
        m_iColumnaOrden = bMisma && m_bDescendente ? -1 : iColumna;
        m_bDescendente = bMisma && !m_bDescendente;
        m_bRefrescando = true;
        m_modelo->sort(m_iColumnaOrden, m_bDescendente ? Qt::DescendingOrder : Qt::AscendingOrder);
        m_bRefrescando = false;
        SenalarOrden(m_iColumnaOrden, m_bDescendente);
        Rejas().scrollTo(Rejas().currentIndex());
    }

    void SenalarOrden(int iColumna, bool bDescendente)
    {
        Cabecera().setSortIndicatorShown(iColumna >= 0);
        Cabecera().setSortIndicator(iColumna, bDescendente ? Qt::DescendingOrder : Qt::AscendingOrder);
    }

    void Conectar()
    {
        QObject::connect(Rejas().selectionModel(), &QItemSelectionModel::selectionChanged, widget, [this] {
            const int iFila = FilaElegida();
            if (m_bRefrescando || iFila < 0)
                return;
            std::vector<int> filas = m_lista.bVarias ? FilasElegidas() : std::vector<int>();
            if (filas.size() < 2)
                filas.clear();
            if (iFila != m_lista.iSeleccion || filas != m_lista.aiElegidas) {
                m_accionador.Actuar(
                    [&](ui::Dialogo& dialogo) { dialogo.Elegir(m_lista, iFila, std::move(filas)); });
            }
        });
        const auto abrir = [this](const QModelIndex& indice) {
            m_accionador.Actuar([&](ui::Dialogo& dialogo) {
                dialogo.Abrir(m_lista, ModeloLista::Fila(indice), indice.column());
            });
        };
        QObject::connect(&Rejas(), &QAbstractItemView::doubleClicked, widget, abrir);
        QObject::connect(&Cabecera(), &QHeaderView::sectionClicked, widget, [this](int i) { OrdenarPor(i); });
        Cabecera().setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(&Cabecera(), &QHeaderView::customContextMenuRequested, widget,
                         [this](const QPoint& lugar) { AbrirMenuDeColumna(lugar); });
        const auto conectarPropias = [&](auto& rejilla) {
            rejilla.alPedirAbrir = abrir;
            rejilla.seAbre = [this] { return m_lista.alAbrir && Arbol() == nullptr; };
            rejilla.alPedirCopia = [this] { Copiar(ui::Cabeceras::con); };
            rejilla.alPedirMenu = [this](const QPoint& lugar) { AbrirMenuDeTabla(lugar); };
            rejilla.alCambiarLetra = [this] { PedirSitio(); };
            rejilla.alCambiarTamano = [this] {
                RepartirColumnas();
                MostrarElegida();
            };
        };
        if (Arbol() != nullptr)
            conectarPropias(static_cast<Rejilla<QTreeView>&>(*widget));
        else
            conectarPropias(static_cast<Rejilla<QTableView>&>(*widget));
    }

    // Width from the first rows, height for as many as are usual.
    void PedirSitio()
    {
        int iAncho = 2 * Rejas().frameWidth() + Rejas().verticalScrollBar()->sizeHint().width();
        m_aiAnchos.clear();
        for (int i = 0; i < Cabecera().count(); ++i) {
            const int iContenido = Rejas().sizeHintForColumn(i);
            m_aiAnchos.push_back(std::max(iContenido, Cabecera().sectionSizeHint(i)) + 8);
        }
        if (m_lista.bColumnasIguales)
            std::ranges::fill(m_aiAnchos, *std::ranges::max_element(m_aiAnchos));
        for (const int iColumna : m_aiAnchos)
            iAncho += iColumna;
        // Of a list of values the longest gives way, rather than what stands beside the list.
        if (m_aiAnchos.size() == 2)
            iAncho = std::min(iAncho, kLetrasDeValores * widget->fontMetrics().averageCharWidth());
        const int iLinea = widget->fontMetrics().height() + kAireDeFila;
        if (auto* tabla = qobject_cast<QTableView*>(widget))
            tabla->verticalHeader()->setDefaultSectionSize(iLinea);
        const int iMarco =
            2 * Rejas().frameWidth() + (m_lista.acsColumnas.empty() ? 0 : Cabecera().sizeHint().height());
        const QSize propuesto(std::max(iAncho, kAnchoMinimo),
                              iMarco + std::clamp(m_nFilas, kFilasMinimas, kFilasMaximas) * iLinea);
        if (auto* arbol = dynamic_cast<Rejilla<QTreeView>*>(widget))
            arbol->propuesto = propuesto;
        else if (auto* tabla = dynamic_cast<Rejilla<QTableView>*>(widget))
            tabla->propuesto = propuesto;
        // On a small screen it scrolls by itself rather than make the whole dialog scroll.
        const int iFilas = kFilasImprescindibles + (m_lista.colocacion.bEstirar ? 1 : 0);
        widget->setMinimumSize(std::min(propuesto.width(), kAnchoImprescindible), iMarco + iFilas * iLinea);
        RepartirColumnas();
    }

    // Columns as wide as their contents; what is left goes to all of them alike. Not once the person has
    // moved a border.
    void RepartirColumnas()
    {
        const auto nColumnas = static_cast<int>(m_aiAnchos.size());
        if (Cabecera().stretchLastSection() || nColumnas != Cabecera().count() || nColumnas == 0)
            return;
        for (std::size_t i = 0; i < m_aiPuestos.size() && m_aiPuestos.size() == m_aiAnchos.size(); ++i)
            if (Cabecera().sectionSize(static_cast<int>(i)) != m_aiPuestos[i])
                return;
        const int iTodo = Rejas().viewport()->width();
        const bool bPorPartes = m_lista.adPartes.size() == m_aiAnchos.size();
        int iSobra = iTodo;
        for (const int iAncho : m_aiAnchos)
            iSobra -= iAncho;
        // A name gives way to its value as far as it takes more than its part; the pointer over them shows
        // the whole.
        const bool bCeden = nColumnas == 2 && iSobra < 0;
        const auto ceder = [&](int i) {
            const int iNombre = std::min(
                m_aiAnchos[0], std::max(static_cast<int>(iTodo * kParteDeNombres), iTodo - m_aiAnchos[1]));
            return i == 0 ? iNombre : iTodo - iNombre;
        };
        m_aiPuestos.clear();
        for (int i = 0; i < nColumnas; ++i) {
            const int iParte = iSobra > 0 ? iSobra / nColumnas + (i < iSobra % nColumnas ? 1 : 0) : 0;
            const auto n = static_cast<std::size_t>(i);
            const int iAncho = bCeden ? ceder(i) : m_aiAnchos[n] + iParte;
            Cabecera().resizeSection(i, bPorPartes ? static_cast<int>(m_lista.adPartes[n] * iTodo) : iAncho);
            m_aiPuestos.push_back(Cabecera().sectionSize(i));
        }
    }

    // Before it is seen for the first time: made without a size, it scrolled to its row for nothing.
    void MostrarElegida()
    {
        if (Rejas().viewport()->isVisible() || !Rejas().currentIndex().isValid())
            return;
        Rejas().verticalScrollBar()->setValue(0);
        Rejas().scrollTo(Rejas().currentIndex());
    }

    void RefrescarContenido() override
    {
        m_bRefrescando = true;
        if (m_uVersion != m_lista.uVersion || m_filas != m_lista.modelo ||
            m_nColumnas != m_lista.acsColumnas.size())
            Recargar();
        if (m_lista.alOrdenar)
            SenalarOrden(m_lista.iColumnaOrden, m_lista.bDescendente);
        if (FilaElegida() != m_lista.iSeleccion) {
            const int iColumna = std::max(0, Rejas().currentIndex().column());
            const QModelIndex indice = m_modelo->Indice(m_lista.iSeleccion, iColumna);
            if (indice.isValid()) {
                Rejas().setCurrentIndex(indice);
                Rejas().scrollTo(indice);
            } else {
                Rejas().selectionModel()->clear();
            }
        }
        m_bRefrescando = false;
    }

    void Recargar()
    {
        const int iVertical = Rejas().verticalScrollBar()->value();
        const std::vector<int> plegadas = Plegadas();
        const int nFilas = m_nFilas;
        m_uVersion = m_lista.uVersion;
        m_filas = m_lista.modelo;
        m_nColumnas = m_lista.acsColumnas.size();
        m_nFilas = m_lista.Filas();
        m_modelo->Recargar();
        Cabecera().setVisible(!m_lista.acsColumnas.empty());
        Cabecera().setSectionsClickable(SeOrdena());
        if (Arbol() != nullptr) {
            Arbol()->expandAll();
            // With the same number of rows they are taken for the same ones.
            if (nFilas == m_nFilas)
                for (const int iFila : plegadas)
                    Arbol()->collapse(m_modelo->Indice(iFila));
        }
        // The first rows tell how wide the columns have to be; later ones don't move them.
        if (static_cast<int>(m_aiAnchos.size()) != Cabecera().count() || nFilas == 0)
            PedirSitio();
        Rejas().verticalScrollBar()->setValue(iVertical);
    }

    // Rows of the tree that the person has closed.
    std::vector<int> Plegadas() const
    {
        std::vector<int> plegadas;
        if (Arbol() == nullptr)
            return plegadas;
        std::vector<QModelIndex> pendientes{QModelIndex()};
        while (!pendientes.empty()) {
            const QModelIndex padre = pendientes.back();
            pendientes.pop_back();
            for (int i = 0; i < m_modelo->rowCount(padre); ++i) {
                const QModelIndex hijo = m_modelo->index(i, 0, padre);
                if (m_modelo->rowCount(hijo) == 0)
                    continue;
                if (!Arbol()->isExpanded(hijo))
                    plegadas.push_back(ModeloLista::Fila(hijo));
                pendientes.push_back(hijo);
            }
        }
        return plegadas;
    }

    ui::Lista& m_lista;
    Accionador& m_accionador;
    ModeloLista* m_modelo;
    MenusDeCelda* m_menus = nullptr;
    unsigned m_uVersion;
    std::shared_ptr<const ui::ModeloFilas> m_filas;
    std::size_t m_nColumnas = m_lista.acsColumnas.size();
    int m_nFilas = m_lista.Filas();
    bool m_bRefrescando = false;
    int m_iColumnaOrden = -1;  // asked for here
    bool m_bDescendente = false;
    std::vector<int> m_aiAnchos;   // of the contents
    std::vector<int> m_aiPuestos;  // as last set here
};

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::Lista& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<VistaLista>(control, padre, accionador);
}

}  // namespace efv::qt

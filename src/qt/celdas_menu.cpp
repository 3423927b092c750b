#include "qt/celdas_menu.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "qt/menus.h"
#include "qt/modelo_filas.h"
#include "qt/vistas.h"

namespace efv::qt {

namespace {

// A cell that says, in the selected row, that there is more behind it.
class CeldaConFlecha final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        return QStyledItemDelegate::sizeHint(opcion, indice) + QSize(Lado(opcion), 0);
    }

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        QStyledItemDelegate::paint(pintor, opcion, indice);
        if (!opcion.state.testFlag(QStyle::State_Selected))
            return;
        QStyleOption flecha;
        flecha.state = QStyle::State_Enabled;
        flecha.palette = opcion.palette;
        for (const auto papel : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            flecha.palette.setColor(papel, opcion.palette.color(QPalette::HighlightedText));
        flecha.rect = QRect(0, 0, Lado(opcion), Lado(opcion));
        flecha.rect.moveCenter({opcion.rect.right() - Lado(opcion), opcion.rect.center().y()});
        opcion.widget->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &flecha, pintor, opcion.widget);
    }

private:
    static int Lado(const QStyleOptionViewItem& opcion) { return opcion.fontMetrics.height() * 2 / 3; }
};

}  // namespace

MenusDeCelda::MenusDeCelda(const ui::Lista& lista, QAbstractItemView& rejas, Accionador& accionador)
    : QObject(&rejas), m_lista(lista), m_rejas(rejas), m_accionador(accionador)
{
    rejas.installEventFilter(this);
    rejas.viewport()->installEventFilter(this);
    connect(&rejas, &QAbstractItemView::clicked, this, &MenusDeCelda::AtenderClic);
}

void MenusDeCelda::Ofrecer(ui::Seleccion& menu)
{
    m_menus.push_back(&menu);
    m_rejas.setItemDelegateForColumn(menu.iColumna, new CeldaConFlecha(&m_rejas));
}

bool MenusDeCelda::eventFilter(QObject* /*objeto*/, QEvent* evento)
{
    switch (evento->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            m_iElegidaAlPulsar = m_lista.iSeleccion;
            return false;
        case QEvent::KeyPress:
            return AtenderTecla(static_cast<QKeyEvent*>(evento)->key());
        case QEvent::ContextMenu:
            return AtenderPedido(static_cast<QContextMenuEvent&>(*evento));
        default:
            return false;
    }
}

ui::Seleccion* MenusDeCelda::MenuDe(int iColumna) const
{
    const auto suyo =
        std::ranges::find_if(m_menus, [&](const ui::Seleccion* m) { return m->iColumna == iColumna; });
    return suyo == m_menus.end() ? nullptr : *suyo;
}

// The one of the cell that has the focus, else that of the row.
ui::Seleccion* MenusDeCelda::Primero() const
{
    ui::Seleccion* const menu = MenuDe(m_rejas.currentIndex().column());
    return menu != nullptr ? menu : m_menus.front();
}

bool MenusDeCelda::AtenderTecla(int iTecla)
{
    switch (iTecla) {
        case Qt::Key_Space:
            return Abrir(Primero());
        case Qt::Key_F2:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Abrir(MenuDe(m_rejas.currentIndex().column()));
        default:
            return false;
    }
}

bool MenusDeCelda::AtenderPedido(const QContextMenuEvent& evento)
{
    if (evento.reason() == QContextMenuEvent::Keyboard)
        return Abrir(Primero());
    const QModelIndex indice = m_rejas.indexAt(m_rejas.viewport()->mapFromGlobal(evento.globalPos()));
    return ModeloLista::Fila(indice) == m_lista.iSeleccion && Abrir(MenuDe(indice.column()));
}

void MenusDeCelda::AtenderClic(const QModelIndex& indice)
{
    // The click that selects the row does no more than that.
    if (const int iFila = ModeloLista::Fila(indice); iFila == m_lista.iSeleccion && iFila == m_iElegidaAlPulsar)
        Abrir(MenuDe(indice.column()));
}

bool MenusDeCelda::Abrir(ui::Seleccion* menu)
{
    if (menu == nullptr || !menu->bVisible || !menu->bHabilitado || menu->bSoloLectura ||
        m_lista.iSeleccion < 0)
        return false;
    const QModelIndex celda =
        static_cast<const ModeloLista*>(m_rejas.model())->Indice(m_lista.iSeleccion, menu->iColumna);
    m_rejas.scrollTo(celda);
    const QRect lugar = m_rejas.visualRect(celda);
    AbrirMenu(m_rejas, m_rejas.viewport()->mapToGlobal(lugar.bottomLeft()), *menu, [this, menu](int iEntrada) {
        m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(*menu, iEntrada); });
    });
    return true;
}

}  // namespace efv::qt

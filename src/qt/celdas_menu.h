// Menus that open on the cells of a list.
#pragma once

#include <vector>

#include <QObject>

#include <quorvel/ui/controles.h>

QT_BEGIN_NAMESPACE
class QAbstractItemView;
class QContextMenuEvent;
class QModelIndex;
QT_END_NAMESPACE

namespace efv::qt {

class Accionador;

/// Opens the menus of the selected row: a click in the cell, Space or the menu key anywhere in the row, F2 or
/// Enter in the cell. It belongs to the view.
class MenusDeCelda final : public QObject {
public:
    MenusDeCelda(const ui::Lista& lista, QAbstractItemView& rejas, Accionador& accionador);

    void Ofrecer(ui::Seleccion& menu);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    ui::Seleccion* MenuDe(int iColumna) const;
    ui::Seleccion* Primero() const;
    bool AtenderTecla(int iTecla);
    bool AtenderPedido(const QContextMenuEvent& evento);
    void AtenderClic(const QModelIndex& indice);
    bool Abrir(ui::Seleccion* menu);

    const ui::Lista& m_lista;
    QAbstractItemView& m_rejas;
    Accionador& m_accionador;
    std::vector<ui::Seleccion*> m_menus;
    int m_iElegidaAlPulsar = -1;  // row that was selected when the mouse went down
};

}  // namespace efv::qt

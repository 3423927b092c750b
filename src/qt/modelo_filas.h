// Rows of a list for Qt's views. Nothing is held for a row but its place in the tree, as numbers.
#pragma once

#include <QAbstractItemModel>
#include <QIcon>

#include <quorvel/ui/controles.h>

namespace efv::qt {

class ModeloLista final : public QAbstractItemModel {
public:
    explicit ModeloLista(const ui::Lista& lista, QObject* padre = nullptr);

    /// Takes over what the control has now.
    void Recargar();

    QModelIndex Indice(int iFila, int iColumna = 0) const;
    static int Fila(const QModelIndex& indice);

    QModelIndex index(int fila, int columna, const QModelIndex& padre) const override;
    QModelIndex parent(const QModelIndex& indice) const override;
    int rowCount(const QModelIndex& padre) const override;
    int columnCount(const QModelIndex& padre) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    /// Shows the rows in order of a column, numbers by their value and what says nothing last; -1 as the
    /// control has them. The rows' numbers stay those of the control. Trees have their own order.
    void sort(int columna, Qt::SortOrder orden) override;

private:
    struct Nodo {
        int iPadre;     // row, -1 at the root
        int iPosicion;  // among its siblings
        int iHijos;     // where its children begin in m_hijos
        int nHijos;
    };

    bool EsArbol() const { return m_lista.forma == ui::Lista::Forma::arbol; }
    void ContarArbol();
    void Ordenar();
    const QString& Celda(int iFila, int iColumna) const;
    int Alineacion(int iColumna) const;

    const ui::Lista& m_lista;
    std::shared_ptr<const ui::ModeloFilas> m_filas;
    int m_nFilas = 0;
    int m_nColumnas = 1;
    // Trees only. m_hijos holds the children of each row side by side, those of the root first.
    std::vector<Nodo> m_nodos;
    std::vector<int> m_hijos;
    int m_nRaices = 0;
    // Tables in order of a column: the row at each place and the place of each row. Empty: as they come.
    int m_iColumnaOrden = -1;
    Qt::SortOrder m_orden = Qt::AscendingOrder;
    std::vector<int> m_filaEn, m_lugarDe;
    // A view asks for text and alignment of the same cell one after the other.
    mutable std::pair<int, int> m_enCache{-1, -1};
    mutable QString m_cache;
};

}  // namespace efv::qt

// Columns and lines of a dialog that go below each other where there is no room for them side by side.
#pragma once

#include <vector>

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QGridLayout;
class QLayout;
class QLayoutItem;
class QWidget;
QT_END_NAMESPACE

namespace efv::qt {

class Pliegues {
public:
    /// What stands side by side in it. Outer ones are added before those within.
    void Anadir(QBoxLayout& fila);
    /// Columns of `nPorColumna` cells each that are read row by row.
    void Anadir(QGridLayout& rejilla, int nPorColumna);

    /// Unfolds what there is room for again, the last one folded first, and folds the widest until `contenedor`
    /// needs no more than that. A width that a fold goes at is some way below the one that it comes back at.
    /// @return whether anything moved
    bool Ajustar(QWidget& contenedor, int iAncho);
    /// Unfolds everything: letters have another size, and widths are no longer what they were.
    void Desplegar(QWidget& contenedor);
    /// The width that `contenedor` needs with everything folded.
    int AnchoMinimo(QWidget& contenedor);

private:
    struct Celda {
        QLayoutItem* cosa;
        int iFila, iColumna, nFilas, nColumnas;
    };
    struct Pliegue {
        QBoxLayout* fila = nullptr;
        QGridLayout* rejilla = nullptr;
        int nPorColumna = 1;
        bool bPlegado = false;
        std::vector<Celda> celdas;  // of a grid that is folded, as they stood

        QLayout& Disposicion() const;
    };

    struct Plegado {
        Pliegue* pliegue;
        int iNecesario;  // the width that `contenedor` asked for before it
    };

    Pliegue* MasAncho(int iMayorQue);
    static void Poner(Pliegue& pliegue, bool bPlegado, QWidget& contenedor);
    static void PlegarRejilla(Pliegue& pliegue);
    static void DesplegarRejilla(Pliegue& pliegue);

    std::vector<Pliegue> m_pliegues;
    std::vector<Plegado> m_plegados;  // the last one last
};

}  // namespace efv::qt

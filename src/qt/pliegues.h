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

    /// Folds the widest until `contenedor` needs no more than that, and none that needn't be.
    void Ajustar(QWidget& contenedor, int iAncho);

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

    static void Poner(Pliegue& pliegue, bool bPlegado, QWidget& contenedor);
    static void PlegarRejilla(Pliegue& pliegue);
    static void DesplegarRejilla(Pliegue& pliegue);

    std::vector<Pliegue> m_pliegues;
};

}  // namespace efv::qt

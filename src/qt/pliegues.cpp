#include "qt/pliegues.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>

namespace efv::qt {

namespace {

// Something as wide as this part of the room may be why the rest doesn't fit.
constexpr double kParteSospechosa = 0.5;

void Colocar(QGridLayout& rejilla, QLayoutItem* cosa, int iFila, int iColumna, int nFilas, int nColumnas)
{
    const Qt::Alignment alineacion = cosa->alignment();
    if (QLayout* dentro = cosa->layout())
        rejilla.addLayout(dentro, iFila, iColumna, nFilas, nColumnas, alineacion);
    else
        rejilla.addItem(cosa, iFila, iColumna, nFilas, nColumnas, alineacion);
}

// What its parents know of its size is out of date, up to `contenedor`.
void Avisar(QWidget* desde, QWidget& contenedor)
{
    for (QWidget* w = desde; w != nullptr; w = w->parentWidget()) {
        if (w->layout() != nullptr) {
            w->layout()->invalidate();
            w->layout()->activate();
        }
        w->updateGeometry();
        if (w == &contenedor)
            return;
    }
}

}  // namespace

QLayout& Pliegues::Pliegue::Disposicion() const
{
    return fila != nullptr ? static_cast<QLayout&>(*fila) : *rejilla;
}

void Pliegues::Anadir(QBoxLayout& fila)
{
    Pliegue pliegue;
    pliegue.fila = &fila;
    m_pliegues.push_back(std::move(pliegue));
}

void Pliegues::Anadir(QGridLayout& rejilla, int nPorColumna)
{
    Pliegue pliegue;
    pliegue.rejilla = &rejilla;
    pliegue.nPorColumna = nPorColumna;
    m_pliegues.push_back(std::move(pliegue));
}

void Pliegues::Ajustar(QWidget& contenedor, int iAncho)
{
    for (Pliegue& pliegue : m_pliegues)
        Poner(pliegue, false, contenedor);
    while (contenedor.minimumSizeHint().width() > iAncho) {
        Pliegue* ancho = nullptr;
        int iMayor = static_cast<int>(iAncho * kParteSospechosa);
        for (Pliegue& pliegue : m_pliegues) {
            const int i = pliegue.Disposicion().minimumSize().width();
            if (!pliegue.bPlegado && i > iMayor) {
                ancho = &pliegue;
                iMayor = i;
            }
        }
        if (ancho == nullptr)
            return;
        Poner(*ancho, true, contenedor);
    }
}

void Pliegues::Poner(Pliegue& pliegue, bool bPlegado, QWidget& contenedor)
{
    if (std::exchange(pliegue.bPlegado, bPlegado) == bPlegado)
        return;
    if (pliegue.fila != nullptr)
        pliegue.fila->setDirection(bPlegado ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    else if (bPlegado)
        PlegarRejilla(pliegue);
    else
        DesplegarRejilla(pliegue);
    Avisar(pliegue.Disposicion().parentWidget(), contenedor);
}

// A row for each column that one had.
void Pliegues::PlegarRejilla(Pliegue& pliegue)
{
    QGridLayout& rejilla = *pliegue.rejilla;
    pliegue.celdas.clear();
    for (int i = 0; i < rejilla.count(); ++i) {
        Celda celda{rejilla.itemAt(i), 0, 0, 1, 1};
        rejilla.getItemPosition(i, &celda.iFila, &celda.iColumna, &celda.nFilas, &celda.nColumnas);
        pliegue.celdas.push_back(celda);
    }
    while (rejilla.count() > 0)
        rejilla.takeAt(0);
    std::map<std::pair<int, int>, int> filas;
    for (const Celda& celda : pliegue.celdas)
        filas[{celda.iFila, celda.iColumna / pliegue.nPorColumna}] = 0;
    int nFilas = 0;
    for (auto& [sitio, iFila] : filas)
        iFila = nFilas++;
    for (const Celda& celda : pliegue.celdas)
        Colocar(rejilla, celda.cosa, filas[{celda.iFila, celda.iColumna / pliegue.nPorColumna}],
                celda.iColumna % pliegue.nPorColumna, 1, std::min(celda.nColumnas, pliegue.nPorColumna - 1));
}

void Pliegues::DesplegarRejilla(Pliegue& pliegue)
{
    QGridLayout& rejilla = *pliegue.rejilla;
    while (rejilla.count() > 0)
        rejilla.takeAt(0);
    for (const Celda& celda : pliegue.celdas)
        Colocar(rejilla, celda.cosa, celda.iFila, celda.iColumna, celda.nFilas, celda.nColumnas);
}

}  // namespace efv::qt

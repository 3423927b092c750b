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
// A fold that comes back needs so much more than it fits in: more than the bar that scrolls, whose coming and
// going would fold and unfold without end.
constexpr int kHolgura = 32;

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

bool Pliegues::Ajustar(QWidget& contenedor, int iAncho)
{
    std::vector<Pliegue*> antes;
    for (const Plegado& plegado : m_plegados)
        antes.push_back(plegado.pliegue);
    while (!m_plegados.empty() && iAncho >= m_plegados.back().iNecesario + kHolgura) {
        Poner(*m_plegados.back().pliegue, false, contenedor);
        m_plegados.pop_back();
    }
    for (int iNecesario = contenedor.minimumSizeHint().width(); iNecesario > iAncho;
         iNecesario = contenedor.minimumSizeHint().width()) {
        Pliegue* ancho = MasAncho(static_cast<int>(iAncho * kParteSospechosa));
        if (ancho == nullptr)
            ancho = MasAncho(0);
        if (ancho == nullptr)
            break;
        Poner(*ancho, true, contenedor);
        m_plegados.push_back({ancho, iNecesario});
    }
    return !std::ranges::equal(antes, m_plegados, {}, {}, &Plegado::pliegue);
}

Pliegues::Pliegue* Pliegues::MasAncho(int iMayorQue)
{
    Pliegue* ancho = nullptr;
    for (Pliegue& pliegue : m_pliegues) {
        const int i = pliegue.Disposicion().minimumSize().width();
        if (!pliegue.bPlegado && i > iMayorQue) {
            ancho = &pliegue;
            iMayorQue = i;
        }
    }
    return ancho;
}

void Pliegues::Desplegar(QWidget& contenedor)
{
    for (; !m_plegados.empty(); m_plegados.pop_back())
        Poner(*m_plegados.back().pliegue, false, contenedor);
}

int Pliegues::AnchoMinimo(QWidget& contenedor)
{
    const std::vector<Plegado> antes = m_plegados;
    Ajustar(contenedor, 0);
    const int iAncho = contenedor.minimumSizeHint().width();
    for (; m_plegados.size() > antes.size(); m_plegados.pop_back())
        Poner(*m_plegados.back().pliegue, false, contenedor);
    return iAncho;
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

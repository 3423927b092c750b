#include "qt/modelo_filas.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QCollator>
#include <QPalette>

#include <quorvel/ui/filas.h>

#include "qt/colores.h"
#include "qt/iconos.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

// What a row is put in order by.
struct Clave {
    enum class Clase { numero, texto, nada } clase;
    double dNumero;
    QString texto;
    int iFila;
};

Clave ClaveDe(const CString& csCelda, int iFila)
{
    const QString texto = AQt(csCelda).simplified();
    bool bNumero = false;
    const double d = QString(texto).remove(' ').replace(',', '.').toDouble(&bNumero);
    if (bNumero && std::isfinite(d))
        return {Clave::Clase::numero, d, {}, iFila};
    return {texto.isEmpty() || texto == QStringLiteral("—") ? Clave::Clase::nada : Clave::Clase::texto, 0.0,
            texto, iFila};
}

}  // namespace

ModeloLista::ModeloLista(const ui::Lista& lista, QObject* padre) : QAbstractItemModel(padre), m_lista(lista)
{
    Recargar();
}

void ModeloLista::Recargar()
{
    beginResetModel();
    m_filas = m_lista.modelo;
    m_nFilas = m_lista.Filas();
    m_nColumnas = std::max(1, static_cast<int>(m_lista.acsColumnas.size()));
    m_enCache = {-1, -1};
    if (EsArbol())
        ContarArbol();
    else
        Ordenar();
    endResetModel();
}

void ModeloLista::ContarArbol()
{
    const auto nFilas = static_cast<std::size_t>(m_nFilas);
    m_nodos.assign(nFilas, {-1, 0, 0, 0});
    m_nRaices = 0;
    // The open branch: its last row at each depth. A row that skips a depth hangs from the last one there is.
    std::vector<int> rama;
    for (int iFila = 0; iFila < m_nFilas; ++iFila) {
        const int iNivel = std::clamp(m_filas->Nivel(iFila), 0, static_cast<int>(rama.size()));
        rama.resize(static_cast<std::size_t>(iNivel));
        Nodo& nodo = m_nodos[static_cast<std::size_t>(iFila)];
        nodo.iPadre = rama.empty() ? -1 : rama.back();
        nodo.iPosicion =
            nodo.iPadre < 0 ? m_nRaices++ : m_nodos[static_cast<std::size_t>(nodo.iPadre)].nHijos++;
        rama.push_back(iFila);
    }
    int iSiguiente = m_nRaices;
    for (Nodo& nodo : m_nodos) {
        nodo.iHijos = iSiguiente;
        iSiguiente += nodo.nHijos;
    }
    m_hijos.assign(nFilas, 0);
    for (int iFila = 0; iFila < m_nFilas; ++iFila) {
        const Nodo& nodo = m_nodos[static_cast<std::size_t>(iFila)];
        const int iPrimero = nodo.iPadre < 0 ? 0 : m_nodos[static_cast<std::size_t>(nodo.iPadre)].iHijos;
        const int iLugar = iPrimero + nodo.iPosicion;
        m_hijos[static_cast<std::size_t>(iLugar)] = iFila;
    }
}

void ModeloLista::Ordenar()
{
    m_filaEn.clear();
    m_lugarDe.clear();
    if (m_iColumnaOrden < 0 || m_iColumnaOrden >= m_nColumnas)
        return;
    std::vector<Clave> claves;
    claves.reserve(static_cast<std::size_t>(m_nFilas));
    for (int iFila = 0; iFila < m_nFilas; ++iFila)
        claves.push_back(ClaveDe(m_filas->Celda(iFila, m_iColumnaOrden), iFila));
    QCollator alfabeto{QLocale(QLocale::Spanish)};
    alfabeto.setNumericMode(true);
    alfabeto.setCaseSensitivity(Qt::CaseInsensitive);
    const auto nOrdenables = static_cast<std::ptrdiff_t>(std::max(0, m_nFilas - m_lista.nFilasFijas));
    std::stable_sort(claves.begin(), claves.begin() + nOrdenables, [&](const Clave& a, const Clave& b) {
        if (a.clase != b.clase)
            return a.clase < b.clase;
        const bool bAlReves = m_orden == Qt::DescendingOrder;
        const Clave &primera = bAlReves ? b : a, &segunda = bAlReves ? a : b;
        return a.clase == Clave::Clase::numero ? primera.dNumero < segunda.dNumero
                                               : alfabeto.compare(primera.texto, segunda.texto) < 0;
    });
    m_lugarDe.resize(claves.size());
    for (std::size_t i = 0; i < claves.size(); ++i) {
        m_filaEn.push_back(claves[i].iFila);
        m_lugarDe[static_cast<std::size_t>(claves[i].iFila)] = static_cast<int>(i);
    }
}

void ModeloLista::sort(int columna, Qt::SortOrder orden)
{
    if (EsArbol() || (columna == m_iColumnaOrden && orden == m_orden))
        return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    m_iColumnaOrden = columna;
    m_orden = orden;
    Ordenar();
    for (const QModelIndex& indice : persistentIndexList())
        changePersistentIndex(indice, Indice(Fila(indice), indice.column()));
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

QModelIndex ModeloLista::Indice(int iFila, int iColumna) const
{
    if (iFila < 0 || iFila >= m_nFilas || iColumna < 0 || iColumna >= m_nColumnas)
        return {};
    const auto n = static_cast<std::size_t>(iFila);
    const int iPosicion = EsArbol() ? m_nodos[n].iPosicion : m_lugarDe.empty() ? iFila : m_lugarDe[n];
    return createIndex(iPosicion, iColumna, static_cast<quintptr>(iFila));
}

int ModeloLista::Fila(const QModelIndex& indice)
{
    return indice.isValid() ? static_cast<int>(indice.internalId()) : -1;
}

QModelIndex ModeloLista::index(int fila, int columna, const QModelIndex& padre) const
{
    if (fila < 0 || fila >= rowCount(padre))
        return {};
    if (!EsArbol())
        return Indice(m_filaEn.empty() ? fila : m_filaEn[static_cast<std::size_t>(fila)], columna);
    const int iPrimero = padre.isValid() ? m_nodos[static_cast<std::size_t>(Fila(padre))].iHijos : 0;
    const int iLugar = iPrimero + fila;
    return Indice(m_hijos[static_cast<std::size_t>(iLugar)], columna);
}

QModelIndex ModeloLista::parent(const QModelIndex& indice) const
{
    if (!EsArbol() || !indice.isValid())
        return {};
    return Indice(m_nodos[static_cast<std::size_t>(Fila(indice))].iPadre);
}

int ModeloLista::rowCount(const QModelIndex& padre) const
{
    if (!EsArbol())
        return padre.isValid() ? 0 : m_nFilas;
    if (!padre.isValid())
        return m_nRaices;
    return padre.column() == 0 ? m_nodos[static_cast<std::size_t>(Fila(padre))].nHijos : 0;
}

int ModeloLista::columnCount(const QModelIndex& /*padre*/) const
{
    return m_nColumnas;
}

const QString& ModeloLista::Celda(int iFila, int iColumna) const
{
    if (m_enCache != std::pair(iFila, iColumna)) {
        m_cache = AQt(m_filas->Celda(iFila, iColumna));
        m_enCache = {iFila, iColumna};
    }
    return m_cache;
}

int ModeloLista::Alineacion(int iColumna) const
{
    const bool bDerecha = m_lista.AlineacionDe(iColumna) == ui::Alineacion::derecha;
    return static_cast<int>((bDerecha ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QVariant ModeloLista::data(const QModelIndex& indice, int papel) const
{
    const int iFila = Fila(indice);
    // The rows may have shrunk before the view was told.
    if (iFila < 0 || iFila >= m_filas->Filas())
        return {};
    if (papel == Qt::DisplayRole)
        return Celda(iFila, indice.column());
    // A dash alone is heard as nothing, or as a sign.
    if (papel == Qt::AccessibleTextRole && Celda(iFila, indice.column()) == QStringLiteral("—"))
        return QStringLiteral("sin dato");
    if (papel == Qt::TextAlignmentRole)
        return Alineacion(indice.column());
    // What doesn't fit its column is read whole.
    if (papel == Qt::ToolTipRole)
        return Celda(iFila, indice.column());
    if (papel == Qt::ForegroundRole) {
        const auto* conColor = dynamic_cast<const ui::FilasConColor*>(m_filas.get());
        const ui::Color color = conColor != nullptr ? conColor->ColorDeFila(iFila) : ui::kNegro;
        if (color != ui::kNegro && m_lista.bHabilitado)
            // Every second row is a little nearer to the window's ground.
            return Legible(DeColor(color), QApplication::palette().color(QPalette::Window));
    }
    if (papel == Qt::CheckStateRole && indice.column() == 0) {
        if (const auto bMarca = m_filas->Marca(iFila))
            return *bMarca ? Qt::Checked : Qt::Unchecked;
    }
    if (papel == Qt::DecorationRole && indice.column() == 0) {
        if (const QIcon icono = IconoDe(m_filas->Imagen(iFila), QApplication::palette()); !icono.isNull())
            return icono;
    }
    return {};
}

QVariant ModeloLista::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (orientacion == Qt::Horizontal && papel == Qt::TextAlignmentRole)
        return Alineacion(seccion);
    if (orientacion != Qt::Horizontal || papel != Qt::DisplayRole)
        return {};
    const auto i = static_cast<std::size_t>(seccion);
    return i < m_lista.acsColumnas.size() ? AQt(m_lista.acsColumnas[i]) : QString();
}

}  // namespace efv::qt

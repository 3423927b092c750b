#include <quorvel/ui/lista.h>

#include <quorvel/framework/CArray.h>

namespace {

std::size_t Posicion(int i)
{
    efv::ComprobarIndice(i, PTRDIFF_MAX);
    return static_cast<std::size_t>(i);
}

}  // namespace

CListCtrl::Fila& CListCtrl::En(int iFila)
{
    efv::ComprobarIndice(iFila, m_filas.size());
    return m_filas[static_cast<std::size_t>(iFila)];
}

const CListCtrl::Fila& CListCtrl::En(int iFila) const
{
    efv::ComprobarIndice(iFila, m_filas.size());
    return m_filas[static_cast<std::size_t>(iFila)];
}

int CListCtrl::InsertItem(int iFila, std::wstring_view texto)
{
    const int iNueva = iFila >= 0 && iFila < GetItemCount() ? iFila : GetItemCount();
    m_filas.insert(m_filas.begin() + iNueva, Fila{{CString(texto)}});
    if (m_iSeleccion >= iNueva)
        ++m_iSeleccion;
    return iNueva;
}

void CListCtrl::DeleteItem(int iFila)
{
    efv::ComprobarIndice(iFila, m_filas.size());
    m_filas.erase(m_filas.begin() + iFila);
    if (m_iSeleccion == iFila)
        m_iSeleccion = -1;
    else if (m_iSeleccion > iFila)
        --m_iSeleccion;
}

void CListCtrl::DeleteAllItems()
{
    m_filas.clear();
    m_iSeleccion = -1;
}

void CListCtrl::SetItemText(int iFila, int iColumna, std::wstring_view texto)
{
    std::vector<CString>& acsTextos = En(iFila).acsTextos;
    const std::size_t columna = Posicion(iColumna);
    if (columna >= acsTextos.size())
        acsTextos.resize(columna + 1);
    acsTextos[columna] = texto;
}

CString CListCtrl::GetItemText(int iFila, int iColumna) const
{
    const std::vector<CString>& acsTextos = En(iFila).acsTextos;
    const std::size_t columna = Posicion(iColumna);
    return columna < acsTextos.size() ? acsTextos[columna] : CString();
}

void CListCtrl::SetItemData(int iFila, CObject* objeto)
{
    En(iFila).objeto = objeto;
}

CObject* CListCtrl::GetItemData(int iFila) const
{
    return En(iFila).objeto;
}

void CListCtrl::SetCheck(int iFila, bool bMarcada)
{
    En(iFila).bMarcada = bMarcada;
}

bool CListCtrl::GetCheck(int iFila) const
{
    return En(iFila).bMarcada;
}

void CListCtrl::SetSelectionMark(int iFila)
{
    if (iFila != -1)
        efv::ComprobarIndice(iFila, m_filas.size());
    m_iSeleccion = iFila;
}

#include <quorvel/ui/arbol.h>

HTREEITEM CTreeCtrl::InsertItem(std::wstring_view texto, int iImagen, HTREEITEM padre)
{
    auto& hermanos = padre != nullptr ? padre->aHijos : m_raices;
    hermanos.push_back(std::make_unique<efv::ui::NodoArbol>());
    HTREEITEM item = hermanos.back().get();
    item->csTexto = texto;
    item->iImagen = iImagen;
    item->pPadre = padre;
    return item;
}

void CTreeCtrl::DeleteAllItems()
{
    m_raices.clear();
}

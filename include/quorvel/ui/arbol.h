// A tree as data; whoever shows it walks its rows.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::ui {

/// One row of a tree. Rows own their children; addresses stay valid while the row lives.
struct EFV_API NodoArbol {
    CString csTexto;
    int iImagen = 0;
    bool bExpandido = false;
    NodoArbol* pPadre = nullptr;
    std::vector<std::unique_ptr<NodoArbol>> aHijos;
};

}  // namespace efv::ui

/// Handle of a tree row; null is none.
using HTREEITEM = efv::ui::NodoArbol*;

class EFV_API CTreeCtrl {
public:
    /// Appends a row as the last child of `padre`, or at the root when that is null.
    HTREEITEM InsertItem(std::wstring_view texto, int iImagen, HTREEITEM padre);
    void Expand(HTREEITEM item) { item->bExpandido = true; }
    void DeleteAllItems();

    const std::vector<std::unique_ptr<efv::ui::NodoArbol>>& Raices() const { return m_raices; }

private:
    std::vector<std::unique_ptr<efv::ui::NodoArbol>> m_raices;
};

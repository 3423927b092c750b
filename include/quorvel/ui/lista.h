// A list of rows as data, filled by whoever owns the objects behind the rows.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>

/// Rows of texts with a tick and an object each, one of them selected. An index outside the rows throws
/// CInvalidArgException.
class EFV_API CListCtrl {
public:
    int GetItemCount() const { return static_cast<int>(m_filas.size()); }

    /// Adds a row before row `iFila`, or at the end when there is none; returns its index.
    int InsertItem(int iFila, std::wstring_view texto);
    void DeleteItem(int iFila);
    void DeleteAllItems();

    /// Columns come to be as they are written.
    void SetItemText(int iFila, int iColumna, std::wstring_view texto);
    /// Empty for a column never written.
    CString GetItemText(int iFila, int iColumna) const;

    /// The object that the row stands for, which the list doesn't own; null without one.
    void SetItemData(int iFila, CObject* objeto);
    CObject* GetItemData(int iFila) const;

    void SetCheck(int iFila, bool bMarcada);
    bool GetCheck(int iFila) const;

    /// Row that is selected; -1: none. Follows its row when others come or go before it.
    int GetSelectionMark() const { return m_iSeleccion; }
    void SetSelectionMark(int iFila);

private:
    struct Fila {
        std::vector<CString> acsTextos;
        CObject* objeto = nullptr;
        bool bMarcada = false;
    };

    Fila& En(int iFila);
    const Fila& En(int iFila) const;

    std::vector<Fila> m_filas;
    int m_iSeleccion = -1;
};

namespace efv::ui {

/// The rows of a CListCtrl for a list control. The list must outlive it.
class EFV_API FilasDeLista final : public ModeloFilas {
public:
    enum Casillas : bool { sinCasillas, conCasillas };

    explicit FilasDeLista(const CListCtrl& lista, Casillas casillas = sinCasillas)
        : m_lista(lista), m_casillas(casillas)
    {
    }

    int Filas() const override { return m_lista.GetItemCount(); }
    CString Celda(int iFila, int iColumna) const override { return m_lista.GetItemText(iFila, iColumna); }
    std::optional<bool> Marca(int iFila) const override
    {
        return m_casillas == conCasillas ? std::optional(m_lista.GetCheck(iFila)) : std::nullopt;
    }

private:
    const CListCtrl& m_lista;
    Casillas m_casillas;
};

}  // namespace efv::ui

// The families and models of a catalogue's document as rows of a tree, filtered as one types.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <quorvel/ui/controles.h>

#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

/// A family, or a model below its family.
struct FilaArbol {
    xml::NodoEditable elemento;
    CString csNombre;
    CString csPlegado;  ///< without accents and case, for the search
    bool bModelo;
};

/// The visible rows, in document order. A family is visible when its name or one of its models matches;
/// all models of a family whose name matches are.
class FilasVisibles final : public ui::ModeloFilas {
public:
    /// `imagenModelo` names the picture of a model.
    FilasVisibles(std::shared_ptr<const std::vector<FilaArbol>> todas, const CString& csBuscado,
                  std::wstring_view imagenModelo = {});

    int Filas() const override { return static_cast<int>(m_visibles.size()); }
    CString Celda(int iFila, int iColumna) const override;
    int Nivel(int iFila) const override { return Fila(iFila).bModelo ? 1 : 0; }
    std::wstring_view Imagen(int iFila) const override
    {
        return Fila(iFila).bModelo ? m_imagenModelo : std::wstring_view(L"familia");
    }

    const FilaArbol& Fila(int iFila) const;
    /// The family's row of a model's row; the row itself for a family.
    int FilaDeFamilia(int iFila) const;
    /// -1 when the element isn't visible.
    int FilaDe(xml::NodoEditable elemento) const;
    /// The row of "family#model", else of the first model of that name, else of the family; -1 for none.
    int FilaDe(const CString& csId) const;
    /// "family#model", or a family's name.
    CString Identificacion(int iFila) const;

private:
    std::shared_ptr<const std::vector<FilaArbol>> m_todas;
    std::wstring_view m_imagenModelo;
    std::vector<std::size_t> m_visibles;  // places in m_todas
};

/// All rows of the document.
std::shared_ptr<const std::vector<FilaArbol>> LeerFilas(const xml::DocumentoEditable& documento);

}  // namespace efv::catalogues

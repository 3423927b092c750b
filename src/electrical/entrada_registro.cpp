// The record of an inverter's input, and its row in a list.
#include <utility>

#include <quorvel/framework/CArchive.h>
#include <quorvel/ui/color.h>

#include "electrical/registros.h"
#include "platform/numero/conversion.h"

namespace {

void EscribirFila(const CSFVInverterInput& entrada, CListCtrl& lista, int iFila)
{
    lista.SetItemText(iFila, 0, efv::numero::nuConvertFltToIntlStr(entrada.iIndice + 1.0, 0));
    lista.SetItemText(iFila, 1, entrada.csReferencia);
    lista.SetItemText(iFila, 2, entrada.GetTextColor());
}

}  // namespace

CSFVInverterInput::CSFVInverterInput(int iPosicion, CString csRotulo, short nCodigoColor)
    : iIndice(iPosicion), csReferencia(std::move(csRotulo)), nColor(nCodigoColor)
{
}

CSFVInverterInput::~CSFVInverterInput() = default;
// NOLINTNEXTLINE(misc-unconventional-assign-operator): it has a slot of its own
CSFVInverterInput& CSFVInverterInput::operator=(const CSFVInverterInput& otra) = default;

const CRuntimeClass& CSFVInverterInput::GetThisClass()
{
    static const CRuntimeClass clase = efv::framework::ClaseDeRegistro<CSFVInverterInput>("CSFVInverterInput");
    return clase;
}

const CRuntimeClass& CSFVInverterInput::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVInverterInput::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

bool CSFVInverterInput::operator==(const CSFVInverterInput& otra) const
{
    return iIndice == otra.iIndice && csReferencia == otra.csReferencia && nColor == otra.nColor;
}

bool CSFVInverterInput::operator!=(const CSFVInverterInput& otra) const
{
    return !operator==(otra);
}

CString CSFVInverterInput::GetTextColor() const
{
    return efv::ui::NombreDeColor(nColor);
}

int CSFVInverterInput::InsertInList(CListCtrl& lista)
{
    const int iFila = lista.InsertItem(lista.GetItemCount(), L"");
    lista.SetItemData(iFila, this);
    EscribirFila(*this, lista, iFila);
    return lista.GetItemCount();
}

int CSFVInverterInput::EditInList(CListCtrl& lista)
{
    for (int iFila = 0; iFila < lista.GetItemCount(); ++iFila)
        if (lista.GetItemData(iFila) == this)
            EscribirFila(*this, lista, iFila);
    return lista.GetItemCount();
}

int CSFVInverterInput::RemoveInList(CListCtrl& lista)
{
    return lista.GetItemCount();
}

// The load's record: fields, archive, figures and its row in a list.
#include <quorvel/framework/CArchive.h>

#include "consumption/franjas.h"
#include "consumption/horas_texto.h"
#include "consumption/registros.h"
#include "platform/numero/conversion.h"

namespace {

using R = CSFVDataReceptor;
using efv::numero::nuConvertFltToIntlStr;

efv::consumption::Franjas FranjasDe(const R& receptor, int iMes, int iDia)
{
    return receptor.dHorario[iMes][iDia];
}

void EscribirFila(R& receptor, CListCtrl& lista, int iFila, int iMes, int iDia)
{
    const double dHoras = receptor.GetNHdia(iMes, iDia);
    lista.SetItemText(iFila, 0, nuConvertFltToIntlStr(receptor.iCantidad, 0));
    lista.SetItemText(iFila, 1, receptor.csModelo);
    lista.SetItemText(iFila, 2, receptor.iTipoRed == 0 ? L"CC" : L"CA");
    lista.SetItemText(iFila, 3, nuConvertFltToIntlStr(receptor.dPotencia, 2));
    lista.SetItemText(iFila, 4, efv::consumption::HorasYMinutos(dHoras) + L" h");
    lista.SetItemText(iFila, 5, nuConvertFltToIntlStr(receptor.iCantidad * receptor.dPotencia * dHoras, 2));
    lista.SetCheck(iFila, receptor.bNoCalcular == 0);
}

}  // namespace

CSFVDataReceptor::~CSFVDataReceptor() = default;
// NOLINTNEXTLINE(misc-unconventional-assign-operator): it has a slot of its own
CSFVDataReceptor& CSFVDataReceptor::operator=(const CSFVDataReceptor& otro) = default;

const CRuntimeClass& CSFVDataReceptor::GetThisClass()
{
    static const CRuntimeClass clase = efv::framework::ClaseDeRegistro<CSFVDataReceptor>("CSFVDataReceptor");
    return clase;
}

const CRuntimeClass& CSFVDataReceptor::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVDataReceptor::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

unsigned CSFVDataReceptor::InsertarEnLista(CListCtrl& lista, int iMes, int iDia)
{
    const int iFila = lista.InsertItem(lista.GetItemCount(), L"");
    lista.SetItemData(iFila, this);
    EscribirFila(*this, lista, iFila, iMes, iDia);
    return 1;
}

unsigned CSFVDataReceptor::ActualizarEnLista(CListCtrl& lista, int iMes, int iDia)
{
    if (lista.GetSelectionMark() >= 0)
        EscribirFila(*this, lista, lista.GetSelectionMark(), iMes, iDia);
    return 1;
}

unsigned CSFVDataReceptor::EliminarEnLista(CListCtrl& /*lista*/)
{
    return 1;
}

double CSFVDataReceptor::GetNHdia(int iMes, int iDia)
{
    dHorasDia = efv::consumption::HorasDeUso(FranjasDe(*this, iMes, iDia));
    return dHorasDia;
}

double CSFVDataReceptor::GetNHoraHora(int iMes, int iDia, int iHora) const
{
    return efv::consumption::FraccionDeHora(FranjasDe(*this, iMes, iDia), iHora);
}

double CSFVDataReceptor::GetPcc() const
{
    return iCantidad * dPotencia;
}

int CSFVDataReceptor::IsNoCalcular() const
{
    return bNoCalcular;
}

// The catalogues' own way to their viewer, with the commands of each.
#include "catalogues/viewer/ver_base.h"

#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/convertidor.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/micro_inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "catalogues/kinds/receptor.h"
#include "module/ordenes.h"

template <class M>
int CBaseCatalogo<M>::VerBase(int iModo)
{
    return efv::catalogues::VerBase(*this, iModo, efv::module::Ordenes<M>());
}

template int CBaseCatalogo<CBasePanelFotoModelo>::VerBase(int);
template int CBaseCatalogo<CBaseAcumuladorModelo>::VerBase(int);
template int CBaseCatalogo<CBaseInversorModelo>::VerBase(int);
template int CBaseCatalogo<CBaseMicroInversorModelo>::VerBase(int);
template int CBaseCatalogo<CBaseConvertidorModelo>::VerBase(int);
template int CBaseCatalogo<CBaseReceptorModelo>::VerBase(int);

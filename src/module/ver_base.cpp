// The catalogues' own way to their viewer, with the commands of each.
#include "catalogues/ver_base.h"

#include "catalogues/acumulador.h"
#include "catalogues/convertidor.h"
#include "catalogues/inversor.h"
#include "catalogues/micro_inversor.h"
#include "catalogues/panel_foto.h"
#include "catalogues/receptor.h"
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

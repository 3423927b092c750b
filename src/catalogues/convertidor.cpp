#include "catalogues/convertidor.h"

#include "catalogues/catalogo.h"

template class CModeloCatalogo<CBaseConvertidorModelo>;
template class CFamiliaCatalogo<CBaseConvertidorModelo>;
template class CBaseCatalogo<CBaseConvertidorModelo>;

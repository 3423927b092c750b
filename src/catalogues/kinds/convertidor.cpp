#include "catalogues/kinds/convertidor.h"

#include "catalogues/format/catalogo.h"

template class CModeloCatalogo<CBaseConvertidorModelo>;
template class CFamiliaCatalogo<CBaseConvertidorModelo>;
template class CBaseCatalogo<CBaseConvertidorModelo>;

#include "catalogues/kinds/acumulador.h"

#include "catalogues/format/catalogo.h"

template class CModeloCatalogo<CBaseAcumuladorModelo>;
template class CFamiliaCatalogo<CBaseAcumuladorModelo>;
template class CBaseCatalogo<CBaseAcumuladorModelo>;

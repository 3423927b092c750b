#include "catalogues/acumulador.h"

#include "catalogues/catalogo.h"

template class CModeloCatalogo<CBaseAcumuladorModelo>;
template class CFamiliaCatalogo<CBaseAcumuladorModelo>;
template class CBaseCatalogo<CBaseAcumuladorModelo>;

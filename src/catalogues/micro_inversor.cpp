#include "catalogues/micro_inversor.h"

#include "catalogues/catalogo.h"

template class CModeloCatalogo<CBaseMicroInversorModelo>;
template class CFamiliaCatalogo<CBaseMicroInversorModelo>;
template class CBaseCatalogo<CBaseMicroInversorModelo>;

#include "catalogues/kinds/micro_inversor.h"

#include "catalogues/format/catalogo.h"

template class CModeloCatalogo<CBaseMicroInversorModelo>;
template class CFamiliaCatalogo<CBaseMicroInversorModelo>;
template class CBaseCatalogo<CBaseMicroInversorModelo>;

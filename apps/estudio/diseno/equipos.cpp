#include "diseno/equipos.h"

namespace efv::estudio {

report::Catalogos CatalogosDelModulo()
{
    return {phGetBasePanelFoto(), phGetBaseAcumuladores(), phGetBaseInversores(), phGetBaseReceptores()};
}

}  // namespace efv::estudio

#include "consumption/receptor_catalogo.h"

#include <quorvel/consumption/receptor_modelo.h>

namespace efv::consumption {

bool RefrescarDeCatalogo(CSFVDataReceptor& receptor, const CBaseReceptores& base)
{
    const CBaseReceptorModelo* modelo = base.BuscarModelo(receptor.csModelo);
    if (modelo == nullptr)
        return false;
    TomarDelModelo(receptor, *modelo);
    return true;
}

}  // namespace efv::consumption

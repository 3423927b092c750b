#include "consumption/receptor_catalogo.h"

#include <quorvel/catalogues.h>

namespace efv::consumption {

bool RefrescarDeCatalogo(CSFVDataReceptor& receptor)
{
    return phGetDataReceptor(receptor.csModelo, receptor.csFabricante, receptor.dPotencia, receptor.dVoltaje,
                             receptor.dVoltajeMinimo, receptor.dRendimiento, receptor.iTipoRed,
                             receptor.iLuminaria) != 0;
}

}  // namespace efv::consumption

#include "consumption/receptor_catalogo.h"

#include <quorvel/catalogues/receptor.h>

namespace efv::consumption {

bool RefrescarDeCatalogo(CSFVDataReceptor& receptor, const CBaseReceptores& base)
{
    const CBaseReceptorModelo* modelo = base.BuscarModelo(receptor.csModelo);
    if (modelo == nullptr)
        return false;
    receptor.csFabricante = modelo->csFamilia;
    receptor.dPotencia = modelo->dP;
    receptor.dVoltaje = modelo->dVs;
    receptor.dVoltajeMinimo = modelo->dVsMin;
    receptor.dRendimiento = modelo->dRend;
    receptor.iTipoRed = modelo->iTipoRed;
    receptor.iLuminaria = modelo->bIlum;
    return true;
}

}  // namespace efv::consumption

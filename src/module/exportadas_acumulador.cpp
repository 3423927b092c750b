// Exported functions of the catalogue of batteries.
#include <quorvel/catalogues/acumulador.h>

#include "catalogues/kinds/acumulador.h"
#include "module/acceso_catalogos.h"

namespace acceso = efv::module;

int phCargarBaseAcumuladores(CString csPath)
{
    return acceso::Cargar<CBaseAcumuladorModelo>(csPath);
}

int phEditarBaseAcumuladores(int iModo)
{
    return acceso::Editar<CBaseAcumuladorModelo>(iModo);
}

int phSeleccionAcumulador(CString& csId)
{
    return acceso::Seleccionar<CBaseAcumuladorModelo>(csId);
}

CBaseAcumuladores& phGetBaseAcumuladores()
{
    return acceso::Base<CBaseAcumuladorModelo>();
}

int phGetFabricanteAcumulador(CString csId, CString& csFamilia)
{
    return acceso::Fabricante<CBaseAcumuladorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloAcumulador(CString csModelo, CString& csId)
{
    return acceso::CadenaIdentificacion<CBaseAcumuladorModelo>(csModelo, csId);
}

int phGetDataAcumulador(CString csId, CString& csFamilia, int& iTipo, double& dCapC1, double& dVccC1,
                        double& dCapC5, double& dVccC5, double& dCapC10, double& dVccC10, double& dCapC20,
                        double& dVccC20, double& dCapC100, double& dVccC100, double& dCapC120, double& dVccC120,
                        double& dImax, double& dVnom, int& iVidaUtil, double& dH, double& dW, double& dL,
                        double& dPeso, CString& csCodPrecio)
{
    using M = CBaseAcumuladorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::iTipo, &M::dCapC1, &M::dVccC1, &M::dCapC5, &M::dVccC5,
                         &M::dCapC10, &M::dVccC10, &M::dCapC20, &M::dVccC20, &M::dCapC100, &M::dVccC100,
                         &M::dCapC120, &M::dVccC120, &M::dImax, &M::dVnom, &M::iVidaUtil, &M::dH, &M::dW,
                         &M::dL, &M::dPeso, &M::csCodPrecio>(
        csId, csFamilia, iTipo, dCapC1, dVccC1, dCapC5, dVccC5, dCapC10, dVccC10, dCapC20, dVccC20, dCapC100,
        dVccC100, dCapC120, dVccC120, dImax, dVnom, iVidaUtil, dH, dW, dL, dPeso, csCodPrecio);
}

int phGetDimAcumulador(CString csId, CString& csFamilia, double& dH, double& dW, double& dL, double& dPeso)
{
    using M = CBaseAcumuladorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::dH, &M::dW, &M::dL, &M::dPeso>(csId, csFamilia, dH, dW, dL,
                                                                              dPeso);
}

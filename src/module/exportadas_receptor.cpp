// Exported functions of the catalogue of electrical loads.
#include <quorvel/catalogues/receptor.h>

#include "catalogues/kinds/receptor.h"
#include "module/acceso_catalogos.h"

namespace acceso = efv::module;

int phCargarBaseReceptores(CString csPath)
{
    return acceso::Cargar<CBaseReceptorModelo>(csPath);
}

int phEditarBaseReceptores(int iModo)
{
    return acceso::Editar<CBaseReceptorModelo>(iModo);
}

int phSeleccionReceptor(CString& csId)
{
    return acceso::Seleccionar<CBaseReceptorModelo>(csId);
}

CBaseReceptores& phGetBaseReceptores()
{
    return acceso::Base<CBaseReceptorModelo>();
}

int phGetFabricanteReceptor(CString csId, CString& csFamilia)
{
    return acceso::Fabricante<CBaseReceptorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloReceptor(CString csModelo, CString& csId)
{
    return acceso::CadenaIdentificacion<CBaseReceptorModelo>(csModelo, csId);
}

int phGetDataReceptor(CString csId, CString& csFamilia, double& dP, double& dVs, double& dVsMin, double& dRend,
                      int& iTipoRed, int& bIlum)
{
    using M = CBaseReceptorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::dP, &M::dVs, &M::dVsMin, &M::dRend, &M::iTipoRed, &M::bIlum>(
        csId, csFamilia, dP, dVs, dVsMin, dRend, iTipoRed, bIlum);
}

// Exported functions of the catalogue of micro-inverters.
#include <quorvel/catalogues/micro_inversor.h>

#include "catalogues/kinds/micro_inversor.h"
#include "module/acceso_catalogos.h"

namespace acceso = efv::module;

int phCargarBaseMicroInversores(CString csPath)
{
    return acceso::Cargar<CBaseMicroInversorModelo>(csPath);
}

int phEditarBaseMicroInversores(int iModo)
{
    return acceso::Editar<CBaseMicroInversorModelo>(iModo);
}

int phSeleccionMicroInversor(CString& csId)
{
    return acceso::Seleccionar<CBaseMicroInversorModelo>(csId);
}

CBaseMicroInversores& phGetBaseMicroInversores()
{
    return acceso::Base<CBaseMicroInversorModelo>();
}

int phGetFabricanteMicroInversor(CString csId, CString& csFamilia)
{
    return acceso::Fabricante<CBaseMicroInversorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloMicroInversor(CString csModelo, CString& csId)
{
    return acceso::CadenaIdentificacion<CBaseMicroInversorModelo>(csModelo, csId);
}

int phGetDataMicroInversor(CString csId, CString& csFamilia, int& iTipoSalida, double& dPCCMax,
                           double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin,
                           double& dICCMax, double& dICCMin, double& dIScMax, int& iNumMPPT, int& iNumEntradas,
                           double& dPCANom, double& dPCAMax, double& dVCANom, double& dICAMax, double& dICAMin,
                           double& dFP, double& dRendMax, double& dAncho, double& dLargo, double& dAlto,
                           double& dPeso, CString& csCodPrecio)
{
    using M = CBaseMicroInversorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::iTipoSalida, &M::dPCCMax, &M::dVMPPMax, &M::dVMPPMin,
                         &M::dVCCMax, &M::dVCCMin, &M::dICCMax, &M::dICCMin, &M::dIScMax, &M::iNumMPPT,
                         &M::iNumEntradas, &M::dPCANom, &M::dPCAMax, &M::dVCANom, &M::dICAMax, &M::dICAMin,
                         &M::dFP, &M::dRendMax, &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso, &M::csCodPrecio>(
        csId, csFamilia, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, dICCMax, dICCMin, dIScMax,
        iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax, dAncho, dLargo,
        dAlto, dPeso, csCodPrecio);
}

int phGetDataMicroInversorDim(CString csId, CString& csFamilia, int& iNumMPPT, int& iNumEntradas,
                              double& dAncho, double& dLargo, double& dAlto, double& dPeso)
{
    using M = CBaseMicroInversorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::iNumMPPT, &M::iNumEntradas, &M::dAncho, &M::dLargo, &M::dAlto,
                         &M::dPeso>(csId, csFamilia, iNumMPPT, iNumEntradas, dAncho, dLargo, dAlto, dPeso);
}

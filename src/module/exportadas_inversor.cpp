// Exported functions of the catalogue of inverters.
#include <quorvel/catalogues/inversor.h>

#include "catalogues/kinds/corrientes.h"
#include "catalogues/kinds/inversor.h"
#include "module/acceso_catalogos.h"

using efv::frame::AmbitoRecursos;
namespace acceso = efv::module;

namespace {

// The currents of each tracker, emptied first whatever follows; 0 when the model doesn't exist.
int Corrientes(const CString& csId, CArray<double, double&>& aICCMax, CArray<double, double&>& aICCMin)
{
    const AmbitoRecursos ambito;
    aICCMax.RemoveAll();
    aICCMin.RemoveAll();
    const CBaseInversorModelo* modelo = efv::module::Base<CBaseInversorModelo>().BuscarModelo(csId);
    if (modelo == nullptr)
        return 0;
    efv::catalogues::ListaCorrientes(modelo->csICCMaxMPPT, modelo->dICCMax, modelo->iNumMPPT, aICCMax);
    efv::catalogues::ListaCorrientes(modelo->csICCMinMPPT, modelo->dICCMin, modelo->iNumMPPT, aICCMin);
    return 1;
}

}  // namespace

int phCargarBaseInversores(CString csPath)
{
    return acceso::Cargar<CBaseInversorModelo>(csPath);
}

int phEditarBaseInversores(int iModo)
{
    return acceso::Editar<CBaseInversorModelo>(iModo);
}

int phSeleccionInversor(CString& csId)
{
    return acceso::Seleccionar<CBaseInversorModelo>(csId);
}

CBaseInversores& phGetBaseInversores()
{
    return acceso::Base<CBaseInversorModelo>();
}

int phGetFabricanteInversor(CString csId, CString& csFamilia)
{
    return acceso::Fabricante<CBaseInversorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloInversor(CString csModelo, CString& csId)
{
    return acceso::CadenaIdentificacion<CBaseInversorModelo>(csModelo, csId);
}

int phGetDataInversor(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida, double& dPCCMax,
                      double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin, double& dICCMax,
                      double& dICCMin, double& dIScMax, int& iNumMPPT, int& iNumEntradas, double& dPCANom,
                      double& dPCAMax, double& dVCANom, double& dICAMax, double& dICAMin, double& dFP,
                      double& dRendMax, double& dAncho, double& dLargo, double& dAlto, double& dPeso,
                      CString& csCodPrecio)
{
    using M = CBaseInversorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::iUsoPrincipal, &M::iTipoSalida, &M::dPCCMax, &M::dVMPPMax,
                         &M::dVMPPMin, &M::dVCCMax, &M::dVCCMin, &M::dICCMax, &M::dICCMin, &M::dIScMax,
                         &M::iNumMPPT, &M::iNumEntradas, &M::dPCANom, &M::dPCAMax, &M::dVCANom, &M::dICAMax,
                         &M::dICAMin, &M::dFP, &M::dRendMax, &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso,
                         &M::csCodPrecio>(csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax,
                                          dVMPPMin, dVCCMax, dVCCMin, dICCMax, dICCMin, dIScMax, iNumMPPT,
                                          iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP,
                                          dRendMax, dAncho, dLargo, dAlto, dPeso, csCodPrecio);
}

int phGetDataInversor2(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida, double& dPCCMax,
                       double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin,
                       CArray<double, double&>& aICCMax, CArray<double, double&>& aICCMin, double& dIScMax,
                       int& iNumMPPT, int& iNumEntradas, double& dPCANom, double& dPCAMax, double& dVCANom,
                       double& dICAMax, double& dICAMin, double& dFP, double& dRendMax, double& dAncho,
                       double& dLargo, double& dAlto, double& dPeso, CString& csCodPrecio)
{
    if (Corrientes(csId, aICCMax, aICCMin) == 0)
        return 0;
    using M = CBaseInversorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::iUsoPrincipal, &M::iTipoSalida, &M::dPCCMax, &M::dVMPPMax,
                         &M::dVMPPMin, &M::dVCCMax, &M::dVCCMin, &M::dIScMax, &M::iNumMPPT, &M::iNumEntradas,
                         &M::dPCANom, &M::dPCAMax, &M::dVCANom, &M::dICAMax, &M::dICAMin, &M::dFP, &M::dRendMax,
                         &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso, &M::csCodPrecio>(
        csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, dIScMax,
        iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax, dAncho, dLargo,
        dAlto, dPeso, csCodPrecio);
}

int phGetDataInversor3(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida, double& dPCCMax,
                       double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin,
                       CArray<double, double&>& aICCMax, CArray<double, double&>& aICCMin, double& dICCMax,
                       double& dICCMin, double& dIScMax, int& iNumMPPT, int& iNumEntradas, double& dPCANom,
                       double& dPCAMax, double& dVCANom, double& dICAMax, double& dICAMin, double& dFP,
                       double& dRendMax, double& dAncho, double& dLargo, double& dAlto, double& dPeso,
                       CString& csCodPrecio)
{
    const int iDatos =
        phGetDataInversor(csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax,
                          dVCCMin, dICCMax, dICCMin, dIScMax, iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom,
                          dICAMax, dICAMin, dFP, dRendMax, dAncho, dLargo, dAlto, dPeso, csCodPrecio);
    const int iCorrientes = Corrientes(csId, aICCMax, aICCMin);
    return iDatos != 0 && iCorrientes != 0 ? 1 : 0;
}

int phGetDataInversorCorrientesMPPT(CString csId, CString& csICCMaxMPPT, CString& csICCMinMPPT)
{
    csICCMaxMPPT.clear();
    csICCMinMPPT.clear();
    using M = CBaseInversorModelo;
    return acceso::Datos<M, &M::csICCMaxMPPT, &M::csICCMinMPPT>(csId, csICCMaxMPPT, csICCMinMPPT);
}

int phGetDataInversorDim(CString csId, CString& csFamilia, int& iNumMPPT, int& iNumEntradas, double& dAncho,
                         double& dLargo, double& dAlto, double& dPeso)
{
    using M = CBaseInversorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::iNumMPPT, &M::iNumEntradas, &M::dAncho, &M::dLargo, &M::dAlto,
                         &M::dPeso>(csId, csFamilia, iNumMPPT, iNumEntradas, dAncho, dLargo, dAlto, dPeso);
}

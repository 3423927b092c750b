// Exported functions of the component catalogues.
#include <quorvel/catalogues.h>

#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/convertidor.h"
#include "catalogues/kinds/corrientes.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/micro_inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "catalogues/kinds/receptor.h"
#include "frame/estado.h"
#include "frame/recursos.h"
#include "module/singletons.h"

using efv::frame::AmbitoRecursos;
using efv::module::Base;

// What the functions of all catalogues do.
namespace {

template <class M>
CString Ruta()
{
    return efv::frame::FormatearCadena(efv::catalogues::Catalogo<M>::Nombres().iCadenaFichero,
                                       efv::frame::Estado().csPathHE5BD);
}

template <class M>
int Cargar(const CString& csPath)
{
    const AmbitoRecursos ambito;
    return Base<M>().Cargar(csPath);
}

template <class M>
int Editar(int iModo)
{
    const AmbitoRecursos ambito;
    auto& base = Base<M>();
    base.csArchivo = Ruta<M>();
    base.SetEdicion(1);
    const int iResultado = base.VerBase(iModo);
    base.SetEdicion(0);
    return iResultado == 1 ? 1 : 0;
}

template <class M>
int Seleccionar(CString& csId)
{
    const AmbitoRecursos ambito;
    auto& base = Base<M>();
    base.csSeleccion = csId;
    if (base.VerBase(1) == 0)
        return 0;
    csId = base.csSeleccion;
    return 1;
}

template <class M>
int Fabricante(const CString& csId, CString& csFamilia)
{
    const AmbitoRecursos ambito;
    return Base<M>().GetFabricante(csId, csFamilia);
}

template <class M>
int CadenaIdentificacion(const CString& csModelo, CString& csId)
{
    const AmbitoRecursos ambito;
    csId.clear();
    CString csFamilia;
    if (Base<M>().GetFabricante(csModelo, csFamilia) != 0)
        csId = csFamilia + L"#" + csModelo;
    return csId.empty() ? 0 : 1;
}

// Copies members of the model to the outputs, one for one; 0, nothing written, when it doesn't exist.
template <class M, auto... MIEMBROS, class... SALIDAS>
int Datos(const CString& csId, SALIDAS&... salidas)
{
    const AmbitoRecursos ambito;
    const M* modelo = Base<M>().BuscarModelo(csId);
    if (modelo == nullptr)
        return 0;
    efv::catalogues::CopiarSalidas<MIEMBROS...>(*modelo, salidas...);
    return 1;
}

// The currents of each tracker, emptied first whatever follows; 0 when the model doesn't exist.
int Corrientes(const CString& csId, CArray<double, double&>& aICCMax, CArray<double, double&>& aICCMin)
{
    const AmbitoRecursos ambito;
    aICCMax.RemoveAll();
    aICCMin.RemoveAll();
    const CBaseInversorModelo* modelo = Base<CBaseInversorModelo>().BuscarModelo(csId);
    if (modelo == nullptr)
        return 0;
    efv::catalogues::ListaCorrientes(modelo->csICCMaxMPPT, modelo->dICCMax, modelo->iNumMPPT, aICCMax);
    efv::catalogues::ListaCorrientes(modelo->csICCMinMPPT, modelo->dICCMin, modelo->iNumMPPT, aICCMin);
    return 1;
}

}  // namespace

// ---------------------------------------------------------------------------------------------------
// PV modules
// ---------------------------------------------------------------------------------------------------

int phCargarBasePanelesFotovoltaicos(CString csPath)
{
    return Cargar<CBasePanelFotoModelo>(csPath);
}

int phEditarBasePanelesFotovoltaicos(int iModo)
{
    return Editar<CBasePanelFotoModelo>(iModo);
}

int phSeleccionPanelFoto(CString& csId)
{
    return Seleccionar<CBasePanelFotoModelo>(csId);
}

CBasePanelFoto& phGetBasePanelFoto()
{
    return Base<CBasePanelFotoModelo>();
}

int phGetFabricantePanelFoto(CString csId, CString& csFamilia)
{
    return Fabricante<CBasePanelFotoModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloPanelFoto(CString csModelo, CString& csId)
{
    return CadenaIdentificacion<CBasePanelFotoModelo>(csModelo, csId);
}

int phGetDataPanelFoto(CString csId, CString& csFamilia, double& dVsmax, double& dPmpm, double& dVmpm,
                       double& dImpm, double& dVoc, double& dIsc, double& dCTVoc, double& dCTIsc,
                       double& dCTPmpm, double& dCEf, int& iNp, int& iNs, double& dAcel, int& iTipoCelula,
                       double& dH, double& dB, double& dA, double& dP, CString& csCodPrecio)
{
    using M = CBasePanelFotoModelo;
    if (Datos<M, &M::csFamilia, &M::dVsmax, &M::dPmpm, &M::dVmpm, &M::dImpm, &M::dVoc, &M::dIsc, &M::dCTVoc,
              &M::dCTIsc, &M::dCTPmpm, &M::dCEf, &M::iNp, &M::iNs, &M::dAcel, &M::iTipoCelula, &M::dH, &M::dB,
              &M::dA, &M::dP, &M::csCodPrecio>(csId, csFamilia, dVsmax, dPmpm, dVmpm, dImpm, dVoc, dIsc, dCTVoc,
                                               dCTIsc, dCTPmpm, dCEf, iNp, iNs, dAcel, iTipoCelula, dH, dB, dA,
                                               dP, csCodPrecio) == 0)
        return 0;
    iNs = efv::catalogues::CelulasPorRamal(iTipoCelula, iNs);
    return 1;
}

int phGetDimPanelFoto(CString csId, CString& csFamilia, double& dH, double& dB, double& dA, double& dP)
{
    using M = CBasePanelFotoModelo;
    return Datos<M, &M::csFamilia, &M::dH, &M::dB, &M::dA, &M::dP>(csId, csFamilia, dH, dB, dA, dP);
}

const wchar_t* phGetCsTipoCelula(int iTipoCelula, CString& csNombre)
{
    const AmbitoRecursos ambito;
    const auto& tipos = efv::catalogues::kTiposCelula;
    const bool existe = iTipoCelula >= 0 && static_cast<std::size_t>(iTipoCelula) < tipos.size();
    csNombre = existe ? tipos[static_cast<std::size_t>(iTipoCelula)].nombre : std::wstring_view();
    return csNombre.c_str();
}

double phTranslateValor(int iModo, double dValor, double dRef)
{
    const AmbitoRecursos ambito;
    return iModo != 0 ? efv::catalogues::CoeficienteAPorciento(dValor, dRef)
                      : efv::catalogues::CoeficienteDePorciento(dValor, dRef);
}

// ---------------------------------------------------------------------------------------------------
// Batteries
// ---------------------------------------------------------------------------------------------------

int phCargarBaseAcumuladores(CString csPath)
{
    return Cargar<CBaseAcumuladorModelo>(csPath);
}

int phEditarBaseAcumuladores(int iModo)
{
    return Editar<CBaseAcumuladorModelo>(iModo);
}

int phSeleccionAcumulador(CString& csId)
{
    return Seleccionar<CBaseAcumuladorModelo>(csId);
}

CBaseAcumuladores& phGetBaseAcumuladores()
{
    return Base<CBaseAcumuladorModelo>();
}

int phGetFabricanteAcumulador(CString csId, CString& csFamilia)
{
    return Fabricante<CBaseAcumuladorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloAcumulador(CString csModelo, CString& csId)
{
    return CadenaIdentificacion<CBaseAcumuladorModelo>(csModelo, csId);
}

int phGetDataAcumulador(CString csId, CString& csFamilia, int& iTipo, double& dCapC1, double& dVccC1,
                        double& dCapC5, double& dVccC5, double& dCapC10, double& dVccC10, double& dCapC20,
                        double& dVccC20, double& dCapC100, double& dVccC100, double& dCapC120, double& dVccC120,
                        double& dImax, double& dVnom, int& iVidaUtil, double& dH, double& dW, double& dL,
                        double& dPeso, CString& csCodPrecio)
{
    using M = CBaseAcumuladorModelo;
    return Datos<M, &M::csFamilia, &M::iTipo, &M::dCapC1, &M::dVccC1, &M::dCapC5, &M::dVccC5, &M::dCapC10,
                 &M::dVccC10, &M::dCapC20, &M::dVccC20, &M::dCapC100, &M::dVccC100, &M::dCapC120, &M::dVccC120,
                 &M::dImax, &M::dVnom, &M::iVidaUtil, &M::dH, &M::dW, &M::dL, &M::dPeso, &M::csCodPrecio>(
        csId, csFamilia, iTipo, dCapC1, dVccC1, dCapC5, dVccC5, dCapC10, dVccC10, dCapC20, dVccC20, dCapC100,
        dVccC100, dCapC120, dVccC120, dImax, dVnom, iVidaUtil, dH, dW, dL, dPeso, csCodPrecio);
}

int phGetDimAcumulador(CString csId, CString& csFamilia, double& dH, double& dW, double& dL, double& dPeso)
{
    using M = CBaseAcumuladorModelo;
    return Datos<M, &M::csFamilia, &M::dH, &M::dW, &M::dL, &M::dPeso>(csId, csFamilia, dH, dW, dL, dPeso);
}

// ---------------------------------------------------------------------------------------------------
// Inverters
// ---------------------------------------------------------------------------------------------------

int phCargarBaseInversores(CString csPath)
{
    return Cargar<CBaseInversorModelo>(csPath);
}

int phEditarBaseInversores(int iModo)
{
    return Editar<CBaseInversorModelo>(iModo);
}

int phSeleccionInversor(CString& csId)
{
    return Seleccionar<CBaseInversorModelo>(csId);
}

CBaseInversores& phGetBaseInversores()
{
    return Base<CBaseInversorModelo>();
}

int phGetFabricanteInversor(CString csId, CString& csFamilia)
{
    return Fabricante<CBaseInversorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloInversor(CString csModelo, CString& csId)
{
    return CadenaIdentificacion<CBaseInversorModelo>(csModelo, csId);
}

int phGetDataInversor(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida, double& dPCCMax,
                      double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin, double& dICCMax,
                      double& dICCMin, double& dIScMax, int& iNumMPPT, int& iNumEntradas, double& dPCANom,
                      double& dPCAMax, double& dVCANom, double& dICAMax, double& dICAMin, double& dFP,
                      double& dRendMax, double& dAncho, double& dLargo, double& dAlto, double& dPeso,
                      CString& csCodPrecio)
{
    using M = CBaseInversorModelo;
    return Datos<M, &M::csFamilia, &M::iUsoPrincipal, &M::iTipoSalida, &M::dPCCMax, &M::dVMPPMax, &M::dVMPPMin,
                 &M::dVCCMax, &M::dVCCMin, &M::dICCMax, &M::dICCMin, &M::dIScMax, &M::iNumMPPT,
                 &M::iNumEntradas, &M::dPCANom, &M::dPCAMax, &M::dVCANom, &M::dICAMax, &M::dICAMin, &M::dFP,
                 &M::dRendMax, &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso, &M::csCodPrecio>(
        csId, csFamilia, iUsoPrincipal, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, dICCMax,
        dICCMin, dIScMax, iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax,
        dAncho, dLargo, dAlto, dPeso, csCodPrecio);
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
    return Datos<M, &M::csFamilia, &M::iUsoPrincipal, &M::iTipoSalida, &M::dPCCMax, &M::dVMPPMax, &M::dVMPPMin,
                 &M::dVCCMax, &M::dVCCMin, &M::dIScMax, &M::iNumMPPT, &M::iNumEntradas, &M::dPCANom,
                 &M::dPCAMax, &M::dVCANom, &M::dICAMax, &M::dICAMin, &M::dFP, &M::dRendMax, &M::dAncho,
                 &M::dLargo, &M::dAlto, &M::dPeso, &M::csCodPrecio>(
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
    return Datos<M, &M::csICCMaxMPPT, &M::csICCMinMPPT>(csId, csICCMaxMPPT, csICCMinMPPT);
}

int phGetDataInversorDim(CString csId, CString& csFamilia, int& iNumMPPT, int& iNumEntradas, double& dAncho,
                         double& dLargo, double& dAlto, double& dPeso)
{
    using M = CBaseInversorModelo;
    return Datos<M, &M::csFamilia, &M::iNumMPPT, &M::iNumEntradas, &M::dAncho, &M::dLargo, &M::dAlto,
                 &M::dPeso>(csId, csFamilia, iNumMPPT, iNumEntradas, dAncho, dLargo, dAlto, dPeso);
}

// ---------------------------------------------------------------------------------------------------
// Micro-inverters
// ---------------------------------------------------------------------------------------------------

int phCargarBaseMicroInversores(CString csPath)
{
    return Cargar<CBaseMicroInversorModelo>(csPath);
}

int phEditarBaseMicroInversores(int iModo)
{
    return Editar<CBaseMicroInversorModelo>(iModo);
}

int phSeleccionMicroInversor(CString& csId)
{
    return Seleccionar<CBaseMicroInversorModelo>(csId);
}

CBaseMicroInversores& phGetBaseMicroInversores()
{
    return Base<CBaseMicroInversorModelo>();
}

int phGetFabricanteMicroInversor(CString csId, CString& csFamilia)
{
    return Fabricante<CBaseMicroInversorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloMicroInversor(CString csModelo, CString& csId)
{
    return CadenaIdentificacion<CBaseMicroInversorModelo>(csModelo, csId);
}

int phGetDataMicroInversor(CString csId, CString& csFamilia, int& iTipoSalida, double& dPCCMax,
                           double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin,
                           double& dICCMax, double& dICCMin, double& dIScMax, int& iNumMPPT, int& iNumEntradas,
                           double& dPCANom, double& dPCAMax, double& dVCANom, double& dICAMax, double& dICAMin,
                           double& dFP, double& dRendMax, double& dAncho, double& dLargo, double& dAlto,
                           double& dPeso, CString& csCodPrecio)
{
    using M = CBaseMicroInversorModelo;
    return Datos<M, &M::csFamilia, &M::iTipoSalida, &M::dPCCMax, &M::dVMPPMax, &M::dVMPPMin, &M::dVCCMax,
                 &M::dVCCMin, &M::dICCMax, &M::dICCMin, &M::dIScMax, &M::iNumMPPT, &M::iNumEntradas,
                 &M::dPCANom, &M::dPCAMax, &M::dVCANom, &M::dICAMax, &M::dICAMin, &M::dFP, &M::dRendMax,
                 &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso, &M::csCodPrecio>(
        csId, csFamilia, iTipoSalida, dPCCMax, dVMPPMax, dVMPPMin, dVCCMax, dVCCMin, dICCMax, dICCMin, dIScMax,
        iNumMPPT, iNumEntradas, dPCANom, dPCAMax, dVCANom, dICAMax, dICAMin, dFP, dRendMax, dAncho, dLargo,
        dAlto, dPeso, csCodPrecio);
}

int phGetDataMicroInversorDim(CString csId, CString& csFamilia, int& iNumMPPT, int& iNumEntradas,
                              double& dAncho, double& dLargo, double& dAlto, double& dPeso)
{
    using M = CBaseMicroInversorModelo;
    return Datos<M, &M::csFamilia, &M::iNumMPPT, &M::iNumEntradas, &M::dAncho, &M::dLargo, &M::dAlto,
                 &M::dPeso>(csId, csFamilia, iNumMPPT, iNumEntradas, dAncho, dLargo, dAlto, dPeso);
}

// ---------------------------------------------------------------------------------------------------
// DC/DC converters
// ---------------------------------------------------------------------------------------------------

int phCargarBaseConvertidoresCC(CString csPath)
{
    return Cargar<CBaseConvertidorModelo>(csPath);
}

int phEditarBaseConvertidorCC(int iModo)
{
    return Editar<CBaseConvertidorModelo>(iModo);
}

int phSeleccionConvertidor(CString& csId)
{
    return Seleccionar<CBaseConvertidorModelo>(csId);
}

CBaseConvertidores& phGetBaseConvertidores()
{
    return Base<CBaseConvertidorModelo>();
}

int phGetFabricanteConvertidor(CString csId, CString& csFamilia)
{
    return Fabricante<CBaseConvertidorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloConvertidor(CString csModelo, CString& csId)
{
    return CadenaIdentificacion<CBaseConvertidorModelo>(csModelo, csId);
}

int phGetDataConvertidor(CString csId, CString& csFamilia, double& dVInMin, double& dVInMax, double& dPAutoCons,
                         double& dVOutNom, double& dPOutNom, double& dRendMax, double& dAncho, double& dLargo,
                         double& dAlto, double& dPeso)
{
    using M = CBaseConvertidorModelo;
    return Datos<M, &M::csFamilia, &M::dVInMin, &M::dVInMax, &M::dPAutoCons, &M::dVOutNom, &M::dPOutNom,
                 &M::dRendMax, &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso>(
        csId, csFamilia, dVInMin, dVInMax, dPAutoCons, dVOutNom, dPOutNom, dRendMax, dAncho, dLargo, dAlto,
        dPeso);
}

// ---------------------------------------------------------------------------------------------------
// Electrical loads
// ---------------------------------------------------------------------------------------------------

int phCargarBaseReceptores(CString csPath)
{
    return Cargar<CBaseReceptorModelo>(csPath);
}

int phEditarBaseReceptores(int iModo)
{
    return Editar<CBaseReceptorModelo>(iModo);
}

int phSeleccionReceptor(CString& csId)
{
    return Seleccionar<CBaseReceptorModelo>(csId);
}

CBaseReceptores& phGetBaseReceptores()
{
    return Base<CBaseReceptorModelo>();
}

int phGetFabricanteReceptor(CString csId, CString& csFamilia)
{
    return Fabricante<CBaseReceptorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloReceptor(CString csModelo, CString& csId)
{
    return CadenaIdentificacion<CBaseReceptorModelo>(csModelo, csId);
}

int phGetDataReceptor(CString csId, CString& csFamilia, double& dP, double& dVs, double& dVsMin, double& dRend,
                      int& iTipoRed, int& bIlum)
{
    using M = CBaseReceptorModelo;
    return Datos<M, &M::csFamilia, &M::dP, &M::dVs, &M::dVsMin, &M::dRend, &M::iTipoRed, &M::bIlum>(
        csId, csFamilia, dP, dVs, dVsMin, dRend, iTipoRed, bIlum);
}

// ---------------------------------------------------------------------------------------------------
// All of them
// ---------------------------------------------------------------------------------------------------

int phCargarBasesHE5(CStringArray& lista)
{
    const AmbitoRecursos ambito;
    const auto nAntes = lista.GetSize();
    const auto cargar = [&](const CString& csPath, int (*funcion)(CString)) {
        if (funcion(csPath) == 0)
            lista.Add(csPath);
    };
    cargar(Ruta<CBasePanelFotoModelo>(), &phCargarBasePanelesFotovoltaicos);
    cargar(Ruta<CBaseAcumuladorModelo>(), &phCargarBaseAcumuladores);
    cargar(Ruta<CBaseInversorModelo>(), &phCargarBaseInversores);
    cargar(Ruta<CBaseMicroInversorModelo>(), &phCargarBaseMicroInversores);
    cargar(Ruta<CBaseConvertidorModelo>(), &phCargarBaseConvertidoresCC);
    cargar(Ruta<CBaseReceptorModelo>(), &phCargarBaseReceptores);
    cargar(efv::frame::FormatearCadena(20448, efv::frame::Estado().csPathHE5BD), &phCargarBaseFactorK);
    return lista.GetSize() == nAntes ? 1 : 0;
}

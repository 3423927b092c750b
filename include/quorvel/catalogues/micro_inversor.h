// Micro-inverters: the data sheet, the catalogue, its access functions.
#pragma once

#include <quorvel/catalogues/base.h>
#include <quorvel/catalogues/inversor.h>

/// Data sheet of a micro-inverter.
class EFV_API CBaseMicroInversorModelo : public CModeloCatalogo<CBaseMicroInversorModelo>,
                                         public DatosInversor {};

extern template class CModeloCatalogo<CBaseMicroInversorModelo>;
extern template class EFV_API CFamiliaCatalogo<CBaseMicroInversorModelo>;
extern template class EFV_API CBaseCatalogo<CBaseMicroInversorModelo>;
using CBaseMicroInversorFamilia = CFamiliaCatalogo<CBaseMicroInversorModelo>;
using CBaseMicroInversores = CBaseCatalogo<CBaseMicroInversorModelo>;

/// Loads the catalogue of micro-inverters. @return 0 when it failed.
EFV_API int phCargarBaseMicroInversores(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBaseMicroInversores(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionMicroInversor(CString& csId);
/// The module's catalogue of micro-inverters.
EFV_API CBaseMicroInversores& phGetBaseMicroInversores();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricanteMicroInversor(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloMicroInversor(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBaseMicroInversorModelo. @return 0, nothing written, when the
/// model doesn't exist.
EFV_API int phGetDataMicroInversor(CString csId, CString& csFamilia, int& iTipoSalida, double& dPCCMax,
                                   double& dVMPPMax, double& dVMPPMin, double& dVCCMax, double& dVCCMin,
                                   double& dICCMax, double& dICCMin, double& dIScMax, int& iNumMPPT,
                                   int& iNumEntradas, double& dPCANom, double& dPCAMax, double& dVCANom,
                                   double& dICAMax, double& dICAMin, double& dFP, double& dRendMax,
                                   double& dAncho, double& dLargo, double& dAlto, double& dPeso,
                                   CString& csCodPrecio);
/// Trackers, inputs, dimensions in mm, weight in kg. @return as phGetDataMicroInversor.
EFV_API int phGetDataMicroInversorDim(CString csId, CString& csFamilia, int& iNumMPPT, int& iNumEntradas,
                                      double& dAncho, double& dLargo, double& dAlto, double& dPeso);

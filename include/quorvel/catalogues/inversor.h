// Inverters: the data sheet, the catalogue, its access functions.
#pragma once

#include <quorvel/catalogues/base.h>

/// What inverters and micro-inverters have in common. What a file gives as zero or negative is 0.
struct DatosInversor {
    double dPCCMax = 0.0;   ///< maximum DC power, W; of a stand-alone one its own consumption
    double dVMPPMax = 0.0;  ///< upper limit of the MPPT range, of a stand-alone one of the input voltage, V
    double dVMPPMin = 0.0;  ///< lower limit of it, V
    double dVCCMax = 0.0;   ///< maximum input voltage, V
    double dVCCMin = 0.0;   ///< minimum input voltage, V
    double dICCMax = 0.0;   ///< maximum DC current of the first tracker, A
    double dICCMin = 0.0;   ///< minimum DC current of the first tracker, A
    double dIScMax = 0.0;   ///< maximum short-circuit current, A
    int iNumMPPT = 0;       ///< trackers; at least 1 in a model from a file
    int iNumEntradas = 0;   ///< DC inputs of all trackers; at least 1 in a model from a file
    double dPCANom = 0.0;   ///< nominal output power, W
    double dPCAMax = 0.0;   ///< maximum output power, W
    double dVCANom = 0.0;   ///< nominal output voltage, V
    int iTipoSalida = 0;    ///< 0 single-phase, 1 three-phase
    double dICAMax = 0.0;   ///< maximum output current, A
    double dICAMin = 0.0;   ///< minimum output current, A
    double dFP = 0.0;       ///< power factor
    double dRendMax = 0.0;  ///< maximum efficiency, %
    double dAncho = 0.0;    ///< width, mm
    double dLargo = 0.0;    ///< depth, mm
    double dAlto = 0.0;     ///< height, mm
    double dPeso = 0.0;     ///< weight, kg
};

/// Data sheet of an inverter.
class EFV_API CBaseInversorModelo : public CModeloCatalogo<CBaseInversorModelo>, public DatosInversor {
public:
    int iUsoPrincipal = 0;  ///< 0 connected to the grid, 1 stand-alone
    CString csICCMaxMPPT;   ///< maximum currents, one a tracker: "12,5/12,5"
    CString csICCMinMPPT;   ///< minimum currents, one a tracker
};

extern template class CModeloCatalogo<CBaseInversorModelo>;
extern template class EFV_API CFamiliaCatalogo<CBaseInversorModelo>;
extern template class EFV_API CBaseCatalogo<CBaseInversorModelo>;
using CBaseInversorFamilia = CFamiliaCatalogo<CBaseInversorModelo>;
using CBaseInversores = CBaseCatalogo<CBaseInversorModelo>;

/// Loads the catalogue of inverters. @return 0 when it failed.
EFV_API int phCargarBaseInversores(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBaseInversores(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionInversor(CString& csId);
/// The module's catalogue of inverters.
EFV_API CBaseInversores& phGetBaseInversores();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricanteInversor(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloInversor(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBaseInversorModelo. @return 0, nothing written, when the model
/// doesn't exist.
EFV_API int phGetDataInversor(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida,
                              double& dPCCMax, double& dVMPPMax, double& dVMPPMin, double& dVCCMax,
                              double& dVCCMin, double& dICCMax, double& dICCMin, double& dIScMax, int& iNumMPPT,
                              int& iNumEntradas, double& dPCANom, double& dPCAMax, double& dVCANom,
                              double& dICAMax, double& dICAMin, double& dFP, double& dRendMax, double& dAncho,
                              double& dLargo, double& dAlto, double& dPeso, CString& csCodPrecio);
/// The same with the currents of each tracker in place of the first one's. The arrays are emptied also
/// when the model doesn't exist.
EFV_API int phGetDataInversor2(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida,
                               double& dPCCMax, double& dVMPPMax, double& dVMPPMin, double& dVCCMax,
                               double& dVCCMin, CArray<double, double&>& aICCMax,
                               CArray<double, double&>& aICCMin, double& dIScMax, int& iNumMPPT,
                               int& iNumEntradas, double& dPCANom, double& dPCAMax, double& dVCANom,
                               double& dICAMax, double& dICAMin, double& dFP, double& dRendMax, double& dAncho,
                               double& dLargo, double& dAlto, double& dPeso, CString& csCodPrecio);
/// The same with both: the currents of each tracker, then those of the first.
EFV_API int phGetDataInversor3(CString csId, CString& csFamilia, int& iUsoPrincipal, int& iTipoSalida,
                               double& dPCCMax, double& dVMPPMax, double& dVMPPMin, double& dVCCMax,
                               double& dVCCMin, CArray<double, double&>& aICCMax,
                               CArray<double, double&>& aICCMin, double& dICCMax, double& dICCMin,
                               double& dIScMax, int& iNumMPPT, int& iNumEntradas, double& dPCANom,
                               double& dPCAMax, double& dVCANom, double& dICAMax, double& dICAMin, double& dFP,
                               double& dRendMax, double& dAncho, double& dLargo, double& dAlto, double& dPeso,
                               CString& csCodPrecio);
/// The two lists of currents as stored. @return 1; or 0, **both texts emptied**, when the model doesn't
/// exist.
EFV_API int phGetDataInversorCorrientesMPPT(CString csId, CString& csICCMaxMPPT, CString& csICCMinMPPT);
/// Trackers, inputs, dimensions in mm, weight in kg. @return as phGetDataInversor.
EFV_API int phGetDataInversorDim(CString csId, CString& csFamilia, int& iNumMPPT, int& iNumEntradas,
                                 double& dAncho, double& dLargo, double& dAlto, double& dPeso);

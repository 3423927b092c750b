// Electrical loads: the data sheet, the catalogue, its access functions.
#pragma once

#include <quorvel/catalogues/base.h>

/// Data sheet of an electrical load.
class EFV_API CBaseReceptorModelo : public CModeloCatalogo<CBaseReceptorModelo> {
public:
    double dP = 0.0;       ///< consumption power, W
    double dVs = 0.0;      ///< service voltage, V
    double dVsMin = 0.0;   ///< minimum service voltage, V
    double dRend = 100.0;  ///< efficiency, %
    int iTipoRed = 0;      ///< supply: 0 direct current, 1 alternating current
    int bIlum = 0;         ///< not 0: it is a luminaire
};

extern template class CModeloCatalogo<CBaseReceptorModelo>;
extern template class EFV_API CFamiliaCatalogo<CBaseReceptorModelo>;
extern template class EFV_API CBaseCatalogo<CBaseReceptorModelo>;
using CBaseReceptorFamilia = CFamiliaCatalogo<CBaseReceptorModelo>;

class EFV_API CBaseReceptores : public CBaseCatalogo<CBaseReceptorModelo> {
public:
    /// The one lookup that minds the family: a model of the families named exactly `csFamilia`.
    /// @return 0, nothing written, when they don't have it.
    virtual int GetDataFamilia(const CString& csModelo, const CString& csFamilia, double& dP, double& dVs,
                               double& dVsMin, double& dRend, int& iTipoRed, int& bIlum) const;
};

/// Loads the catalogue of electrical loads. @return 0 when it failed.
EFV_API int phCargarBaseReceptores(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBaseReceptores(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionReceptor(CString& csId);
/// The module's catalogue of electrical loads.
EFV_API CBaseReceptores& phGetBaseReceptores();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricanteReceptor(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloReceptor(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBaseReceptorModelo. @return 0, nothing written, when the model
/// doesn't exist.
EFV_API int phGetDataReceptor(CString csId, CString& csFamilia, double& dP, double& dVs, double& dVsMin,
                              double& dRend, int& iTipoRed, int& bIlum);

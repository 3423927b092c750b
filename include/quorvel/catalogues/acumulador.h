// Batteries: the data sheet, the catalogue, its access functions.
#pragma once

#include <quorvel/catalogues/base.h>

/// Data sheet of a battery. Its capacity depends on the discharge regime.
class EFV_API CBaseAcumuladorModelo : public CModeloCatalogo<CBaseAcumuladorModelo> {
public:
    int iTipo = 0;  ///< 0 OPzS, 1 CPzS, 2 TOPzS, 3 OPzV, 4 OSP, 5 OGI, 6 Li-Ion, 7 others
    // Capacity, Ah, and voltage, V, at each discharge regime; of Li-Ion the first only.
    double dCapC1 = 0.0, dVccC1 = 0.0;
    double dCapC5 = 0.0, dVccC5 = 0.0;
    double dCapC10 = 0.0, dVccC10 = 0.0;
    double dCapC20 = 0.0, dVccC20 = 0.0;
    double dCapC100 = 0.0, dVccC100 = 0.0;
    double dCapC120 = 0.0, dVccC120 = 0.0;
    double dImax = 0.0;  ///< maximum current, A
    double dVnom = 0.0;  ///< nominal voltage, V
    int iVidaUtil = 0;   ///< service life, years
    double dH = 0.0;     ///< height, mm
    double dW = 0.0;     ///< width, mm
    double dL = 0.0;     ///< length, mm
    double dPeso = 0.0;  ///< weight, kg
};

extern template class CModeloCatalogo<CBaseAcumuladorModelo>;
extern template class EFV_API CFamiliaCatalogo<CBaseAcumuladorModelo>;
extern template class EFV_API CBaseCatalogo<CBaseAcumuladorModelo>;
using CBaseAcumuladorFamilia = CFamiliaCatalogo<CBaseAcumuladorModelo>;
using CBaseAcumuladores = CBaseCatalogo<CBaseAcumuladorModelo>;

/// Loads the catalogue of batteries. @return 0 when it failed.
EFV_API int phCargarBaseAcumuladores(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBaseAcumuladores(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionAcumulador(CString& csId);
/// The module's catalogue of batteries.
EFV_API CBaseAcumuladores& phGetBaseAcumuladores();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricanteAcumulador(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloAcumulador(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBaseAcumuladorModelo. @return 0, nothing written, when the model
/// doesn't exist.
EFV_API int phGetDataAcumulador(CString csId, CString& csFamilia, int& iTipo, double& dCapC1, double& dVccC1,
                                double& dCapC5, double& dVccC5, double& dCapC10, double& dVccC10,
                                double& dCapC20, double& dVccC20, double& dCapC100, double& dVccC100,
                                double& dCapC120, double& dVccC120, double& dImax, double& dVnom,
                                int& iVidaUtil, double& dH, double& dW, double& dL, double& dPeso,
                                CString& csCodPrecio);
/// Dimensions in mm and weight in kg. @return as phGetDataAcumulador.
EFV_API int phGetDimAcumulador(CString csId, CString& csFamilia, double& dH, double& dW, double& dL,
                               double& dPeso);

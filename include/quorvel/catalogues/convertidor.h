// DC/DC converters: the data sheet, the catalogue, its access functions.
#pragma once

#include <quorvel/catalogues/base.h>

/// Data sheet of a DC/DC converter.
class EFV_API CBaseConvertidorModelo : public CModeloCatalogo<CBaseConvertidorModelo> {
public:
    double dVInMin = 0.0;     ///< minimum input voltage, V
    double dVInMax = 0.0;     ///< maximum input voltage, V
    double dPAutoCons = 0.0;  ///< its own consumption, W
    double dVOutNom = 0.0;    ///< nominal output voltage, V
    double dPOutNom = 0.0;    ///< nominal output power, W
    double dRendMax = 0.0;    ///< maximum efficiency, %
    double dAncho = 0.0;      ///< width, mm
    double dLargo = 0.0;      ///< depth, mm
    double dAlto = 0.0;       ///< height, mm
    double dPeso = 0.0;       ///< weight, kg
};

extern template class CModeloCatalogo<CBaseConvertidorModelo>;
extern template class EFV_API CFamiliaCatalogo<CBaseConvertidorModelo>;
extern template class EFV_API CBaseCatalogo<CBaseConvertidorModelo>;
using CBaseConvertidorFamilia = CFamiliaCatalogo<CBaseConvertidorModelo>;
using CBaseConvertidores = CBaseCatalogo<CBaseConvertidorModelo>;

/// Loads the catalogue of DC/DC converters. @return 0 when it failed.
EFV_API int phCargarBaseConvertidoresCC(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBaseConvertidorCC(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionConvertidor(CString& csId);
/// The module's catalogue of DC/DC converters.
EFV_API CBaseConvertidores& phGetBaseConvertidores();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricanteConvertidor(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloConvertidor(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBaseConvertidorModelo. @return 0, nothing written, when the model
/// doesn't exist.
EFV_API int phGetDataConvertidor(CString csId, CString& csFamilia, double& dVInMin, double& dVInMax,
                                 double& dPAutoCons, double& dVOutNom, double& dPOutNom, double& dRendMax,
                                 double& dAncho, double& dLargo, double& dAlto, double& dPeso);

// PV modules: the data sheet, the catalogue, its access functions.
#pragma once

#include <quorvel/catalogues/base.h>

/// Data sheet of a PV module. The values are those of a record made by name; a model from a file has
/// all of them from there.
class EFV_API CBasePanelFotoModelo : public CModeloCatalogo<CBasePanelFotoModelo> {
public:
    double dVsmax = 0.0;   ///< maximum system voltage, V
    double dPmpm = 0.0;    ///< maximum power at standard conditions, W
    double dVmpm = 30.0;   ///< voltage at maximum power, V
    double dImpm = 0.0;    ///< current at maximum power, A
    double dVoc = 0.0;     ///< open-circuit voltage, V
    double dIsc = 0.0;     ///< short-circuit current, A
    double dCTVoc = 0.0;   ///< temperature coefficient of Voc, mV/ºC
    double dCTIsc = 0.0;   ///< of Isc, mA/ºC
    double dCTPmpm = 0.0;  ///< of Pmpm, mW/ºC
    double dCEf = 5.1;     ///< loss of efficiency from 1000 to 200 W/m², %
    int iNp = 1;           ///< parallel branches of cells
    int iNs = 60;          ///< cells a branch
    double dAcel = 0.0;    ///< area of a cell, mm²
    int iTipoCelula = 1;   ///< 0 monocrystalline, 1 polycrystalline, 2 amorphous, 3 other
    double dH = 100.0;     ///< length, mm
    double dB = 1000.0;    ///< width, mm
    double dA = 200.0;     ///< thickness, mm
    double dP = 1.0;       ///< weight, kg
};

extern template class CModeloCatalogo<CBasePanelFotoModelo>;
extern template class EFV_API CFamiliaCatalogo<CBasePanelFotoModelo>;
extern template class EFV_API CBaseCatalogo<CBasePanelFotoModelo>;
using CBasePanelFotoFamilia = CFamiliaCatalogo<CBasePanelFotoModelo>;
using CBasePanelFoto = CBaseCatalogo<CBasePanelFotoModelo>;

/// Loads the catalogue of PV modules. @return 0 when it failed.
EFV_API int phCargarBasePanelesFotovoltaicos(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBasePanelesFotovoltaicos(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionPanelFoto(CString& csId);
/// The module's catalogue of PV modules.
EFV_API CBasePanelFoto& phGetBasePanelFoto();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricantePanelFoto(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloPanelFoto(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBasePanelFotoModelo. `iNs` is **200 whenever `iTipoCelula` is 3
/// or more**. @return 0, nothing written, when the model doesn't exist.
EFV_API int phGetDataPanelFoto(CString csId, CString& csFamilia, double& dVsmax, double& dPmpm, double& dVmpm,
                               double& dImpm, double& dVoc, double& dIsc, double& dCTVoc, double& dCTIsc,
                               double& dCTPmpm, double& dCEf, int& iNp, int& iNs, double& dAcel,
                               int& iTipoCelula, double& dH, double& dB, double& dA, double& dP,
                               CString& csCodPrecio);
/// Dimensions in mm and weight in kg. @return as phGetDataPanelFoto.
EFV_API int phGetDimPanelFoto(CString csId, CString& csFamilia, double& dH, double& dB, double& dA, double& dP);
/// Name of a cell technology, empty for an unknown one. @return the text of `csNombre`.
EFV_API const wchar_t* phGetCsTipoCelula(int iTipoCelula, CString& csNombre);
/// Temperature coefficient, mV (mA, mW) a degree to percent of `dRef` a degree (`iModo` not 0), or back
/// (0). To percent, a reference within 0.000001 of 0 or negative counts as 1.
EFV_API double phTranslateValor(int iModo, double dValor, double dRef);

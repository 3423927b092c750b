// Elements of an installation's drawing: what can be written beside each in the plan.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>

namespace efv::elements {

/// What an element can have written beside it, in the order of the bits of its mask: bit i of `iRotulos` says
/// that property i is.
/// @param clase class of the element's dialog, "CDlgDatosAcumulador"; nothing for any other
EFV_API std::optional<std::span<const std::wstring_view>> PropiedadesDe(std::wstring_view clase);

/// Lets the person choose what is written beside an element.
/// @param clase as above; CInvalidArgException for any other
/// @param iRotulos written when accepted, with the bits behind the last property at 0
/// @return 1 accepted, 2 cancelled
EFV_API int EditarRotulos(std::wstring_view clase, int& iRotulos);

}  // namespace efv::elements

/// Opens the dialog of an array of PV panels. Only what is accepted is written; what the host says of the place
/// never is. Truth values are 0 or 1 on acceptance.
/// @param csId the module, "family#model"  @param bModelo it may be chosen
/// @param nPaneles 1 to 100  @param bInclinacion not 0: the tilt may be typed  @param dInclinacion 0 to 90
/// degrees
/// @param iOrientacion of each panel: 0 upright, 1 lying
/// @param iMontaje of the group: 0 side by side, 1 one above the other, 2 in a square
/// @param dRendimiento 1 to 200 %
/// @param iOptimizador 0: panels may switch themselves off from losses of `dAutoDesconexion` (0.01 to 100 %);
/// 1: they may have one of `acsOptimizadores`; any other number neither
/// @param csString the string that the array belongs to, only shown
/// @param dSombreado largest shading of a day, 0 to 100 %, told when `bInformarSombra`
/// @param iAux handed back as it came
/// @param dDatoSitio what the climate library knows the place by; ours reads the altitude, m
/// @param bClima not 0: the place is known, and the dialog shows the year's radiation
/// @param iFuente of the radiation: 0 the climate record, 1 the standard sky, 2 `adHorizontal` and the factor
/// of each day; any other number counts as 2 without any hours
/// @param csIdMicro the micro-inverter, which then says how many panels there are
/// @param iConexion of the group: 0 series, 1 parallel
/// @param adHorizontal W/m² by month, day and hour, all from 0
/// @param bForzado not 0: the string has the colour `nColor` of the host's palette
/// @return 1 accepted, 2 cancelled
EFV_API int phShowPropertyPanelFoto(CString& csReferencia, CString& csId, int& nPaneles, int& bModelo,
                                    int& bInclinacion, double& dInclinacion, int& iOrientacion, int& iMontaje,
                                    double& dRendimiento, int iOptimizador, int& bAutoDesconexion,
                                    double& dAutoDesconexion, int& bOptimizadorMPPT, CString& csOptimizadorMPPT,
                                    CStringArray acsOptimizadores, CString& csString, int& bInformarSombra,
                                    double& dSombreado, int& bExcluir, int& bNoSombras, int& iAux,
                                    double& dLatitud, double& dOrientacion, double& dDatoSitio, int& bClima,
                                    int& iFuente, int& bMicroInversor, CString& csIdMicro, int& bMicroModelo,
                                    int& iConexion, const double (&adHorizontal)[12][31][24], int& bForzado,
                                    short& nColor);

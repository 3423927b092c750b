// Elements of an installation's drawing: the dialogs that open on them, and what can be written beside each in
// the plan.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <quorvel/entradas.h>
#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>

// ---------------------------------------------------------------------------------------------------
// Dialogs. What comes in is shown; what goes back is written when the person accepts, which 1 answers, else 2.
//   csReferencia  the element's reference        csId      its model, "family#model"
//   bExcluir      not 0: not calculated with     bModelo   not 0: a model of the catalogue may be chosen
//   iRotulos      bit i: property i of efv::elements::PropiedadesDe stands beside it; handed back as it came
//   bEscala       not 0: drawn to scale
// An identification goes back as "family#model" whatever came: "#model" without a family, "#" of nothing.
// ---------------------------------------------------------------------------------------------------

/// The grid. Without the host's control (phSetQuorvelBIMCtrl) nothing opens and the answer is 2.
EFV_API int phShowPropertyRedElectrica(CString& csReferencia, int& bExcluir, int& iRotulos);

/// A regulator. Numbers go back with two decimals.
/// @param dVNom           voltage of batteries and loads, V, 1 to 2500
/// @param dPPanelMax      greatest power of the panels, W, up to 10,000,000
/// @param dIPanelMax      and current, A, up to 10,000
/// @param dVPanelMax, dVPanelMin  voltages of their circuit, V; up to 10,000, and up to the greatest
/// @param dPerdidas       losses, fraction, up to 0.99
/// @param iTipoRegulador  1: with an inverter of its own, whose output the next three are; here and below for
///                        self-consumption alone
/// @param dTensionSalida  V, up to 20,000  @param dPotenciaSalida W, up to 10,000,000
/// @param iTipoSalida     0 single-phase, 1 three-phase
/// @param iTipo           0 a charge regulator, else one for self-consumption
/// The other arguments are the host's and stay as they are.
EFV_API int phShowPropertyRegulador(CString& csReferencia, CString& csAux, int& iAux, double& dVNom,
                                    double& dPPanelMax, double& dIPanelMax, double& dVPanelMax,
                                    double& dVPanelMin, double& dAux1, double& dAux2, double& dAux3,
                                    double& dAux4, double& dAux5, double& dAux6, double& dPerdidas,
                                    double& dAux7, double& dAux8, int& iTipoRegulador, double& dTensionSalida,
                                    double& dPotenciaSalida, int& iTipoSalida, int& bExcluir, int& iRotulos,
                                    int iTipo);

/// Batteries, with what the catalogue says of their model.
/// @param dAux handed back as it came  @param nSerie batteries of a branch, 1 to 100
/// @param nParalelo branches, 1 to 1000
EFV_API int phShowPropertyAcumulador(CString& csReferencia, CString& csId, int& bModelo, double& dAux,
                                     int& nSerie, int& nParalelo, int& bExcluir, int& bEscala, int& iRotulos);

/// An inverter, with its model's data and its inputs. A model whose counts aren't `iNumMPPT` and `iNumEntradas`
/// makes the inputs anew, at opening too: labels and colours of before are lost. One that the catalogue doesn't
/// have is told in a message.
/// @param iAux not used
EFV_API int phShowPropertyInversor(CString& csReferencia, CString& csId, int& bModelo,
                                   CObArrayPropio<CSFVInverterInput>& aEntradas, int& bExcluir, int& bEscala,
                                   int& iRotulos, int iAux, int iNumMPPT, int iNumEntradas);

/// A DC/DC converter.
EFV_API int phShowPropertyConvertidorCC(CString& csReferencia, CString& csId, int& bModelo, int& bExcluir,
                                        int& iRotulos);

/// A connection box.
/// @param nEntradas  pairs of connections that come in, 1 to 75
/// @param bFijo      not 0: they stay as they came, whatever is typed
/// @param bTrifasica not 0: three-phase
EFV_API int phShowPropertyCajaConexion(CString& csReferencia, int& nEntradas, int bFijo, int& bTrifasica,
                                       int& bExcluir, int& iRotulos);

/// Any other element.
EFV_API int phShowPropertyElementoAux(CString& csReferencia, int& bExcluir, int& iRotulos);

/// A node. @param bCaja not 0: it behaves like a connection box; handed back
EFV_API int phShowPropertyPageNudo(CString& csReferencia, int& bCaja, int& iRotulos);

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

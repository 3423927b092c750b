// Currents of an inverter's trackers as one text: a decimal number each, "/" between them.
#pragma once

#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>

namespace efv::catalogues {

/// Most trackers and inputs that a file may give an inverter: no file makes a list that exhausts memory.
inline constexpr int kMaximoMPPT = 10000;

/// Reads `csTexto` as one current for each of `iNumMPPT` trackers (1 when below).
/// @return 1 with the trimmed values in `csNormal` and the first in `dPrimero`; or 0 with what is wrong
/// in `csError`.
int ParseCorrientes(const CString& csTexto, int iNumMPPT, CString& csNormal, double& dPrimero,
                    CString& csError);

/// The value, 0 when not positive, once for each tracker with two decimals.
CString RepetirCorriente(double dValor, int iNumMPPT);

/// The text in its normal form; a text that is empty or wrong is replaced by `dValor` for each tracker.
CString NormalizarCorrientes(const CString& csTexto, double dValor, int iNumMPPT);

/// The numbers of the text so normalised, one for each tracker.
void ListaCorrientes(const CString& csTexto, double dValor, int iNumMPPT, CArray<double, double&>& aValores);

}  // namespace efv::catalogues

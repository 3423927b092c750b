// Numbers as text and text as numbers, whatever the process's locale.
#pragma once

#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::numero {

/// The decimal number at the start of `texto`, after white space: sign, digits with a decimal point,
/// exponent. 0 when there is none; infinite when it is too large. Names such as "inf" and hexadecimal
/// forms are no numbers.
double LeerDoble(std::string_view texto);
double LeerDoble(std::wstring_view texto);
double LeerDoble(const char* texto);  ///< up to its zero

/// The decimal number that `texto` is from end to end, as std::from_chars reads it.
/// @return false, with `d` unspecified, when it isn't one
bool LeerExacto(std::string_view texto, double& d);

/// The whole number at the start of `texto`; 0 when there is none. Saturates at the limits of int.
int LeerEntero(std::string_view texto);
int LeerEntero(const char* texto);  ///< up to its zero

/// `d` without its fraction; saturates at the limits of int, not-a-number gives 0.
int Entero(double d);

/// The point of a number's digits becomes the decimal mark that is shown.
void PonerMarca(CString& csTexto);

/// `d` with `iDecimales` decimals (0 to 15) and the decimal mark, a comma at first, as the user reads it.
CString nuConvertFltToIntlStr(double d, int iDecimales);

/// The number that the user typed, with comma or point as decimal mark, blanks around it ignored.
/// @return false, with `d` untouched, when the text as a whole is no finite number.
bool nuConvertIntlStrToFlt(std::wstring_view texto, double& d);

}  // namespace efv::numero

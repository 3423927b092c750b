// Numbers and texts as people write and read them: decimal comma out, comma or point in.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::orden {

/// The finite number that `texto` is, wholly; comma or point as decimal mark.
std::optional<double> LeerNumero(std::string_view texto);

/// The parts of a list of `cuantos` numbers, separated by blanks, commas or semicolons: a comma is a decimal
/// mark where another separator makes that many.
std::vector<std::string> SepararNumeros(const std::vector<std::string>& palabras, std::size_t cuantos);

/// `d` with that many decimals and a comma; "—" when it isn't finite.
std::string Decimal(double d, int iDecimales);

/// `d` with as few digits as tell it from any other double, and a comma; empty when it isn't finite.
std::string DecimalExacto(double d);

/// `texto` fit for one line of a terminal: control characters become "?", malformed bytes U+FFFD.
std::string EnUnaLinea(std::string_view texto);

/// Number of characters, for alignment. @param utf8 without combining or double-width characters
std::size_t Anchura(std::string_view utf8);

/// Lower case without accents, for searching.
CString Plegar(const CString& texto);

}  // namespace efv::orden

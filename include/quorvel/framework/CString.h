// Wide text with value semantics. Files, terminals and JSON carry UTF-8, archives UTF-16; the
// conversions stand in CadenaUtf8 and CadenaDesdeUtf8.
#pragma once

#include <string>
#include <string_view>

#include <quorvel/exportar.h>

using CString = std::wstring;

namespace efv {

/// UTF-8 form of `texto`. A code unit that is no Unicode scalar value becomes U+FFFD.
EFV_API std::string CadenaUtf8(std::wstring_view texto);

/// Wide form of UTF-8 `bytes`. Each malformed sequence becomes one U+FFFD.
EFV_API CString CadenaDesdeUtf8(std::string_view bytes);

/// Lower case without accents, letter by letter, for searches: "Ávila" and "AVILA" give "avila".
EFV_API CString PlegarTexto(std::wstring_view texto);

}  // namespace efv

// Text files of "KEY=value" lines, as the imports read them.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::catalogues {

/// The whole file as text, each line ended by CR LF whatever ended it there. UTF-8 when it is
/// well-formed UTF-8, else Windows-1252. Nothing when it can't be read.
std::optional<CString> LeerTexto(const CString& csRuta);

/// The same; a file that can't be read is told to the person.
std::optional<CString> LeerTextoImportado(const CString& csRuta);

/// What stands between the first "KEY=" and the next CR LF; empty when either is missing. The search
/// knows nothing of lines or words: a key at the end of a longer word matches just the same.
CString ValorDeClave(std::wstring_view texto, std::wstring_view clave);

}  // namespace efv::catalogues

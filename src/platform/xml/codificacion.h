// The encodings of a document's file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include <quorvel/framework/CString.h>

namespace efv::xml {

/// The file's text as UTF-8, without byte-order mark.
/// @return nothing when the file is missing, unreadable, larger than kMaximoFichero, not in its declared
/// encoding, or holds a zero character.
std::optional<std::string> LeerComoUtf8(const CString& csRuta);

/// True for the name of an outermost element that is itself a table.
bool EsTabla(std::string_view nombre);

}  // namespace efv::xml

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

/// The same of bytes that were read; nothing when they aren't in their declared encoding or hold a zero
/// character.
std::optional<std::string> AUtf8(std::string bytes);

/// Spanish, without the file's name: why the file couldn't be opened as a document.
std::string MotivoIlegible(const CString& csRuta);

/// True for the name of an outermost element that is itself a table.
bool EsTabla(std::string_view nombre);

}  // namespace efv::xml

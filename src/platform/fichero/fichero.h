// Files of the user.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::fichero {

std::filesystem::path Ruta(const CString& csRuta);

/// The bytes of a regular file of at most `maximo` bytes.
/// @return nothing when it is missing, can't be opened, isn't a regular file or is larger.
/// @throws CFileException with the sharing cause while another process holds it, with another when the
/// reading fails.
std::optional<std::string> LeerFichero(const CString& csRuta, std::size_t maximo);

/// Replaces the file, or makes it: written to a temporary beside it, flushed, renamed over it, so that at
/// any moment either the old or the new content stands there whole. A link stays a link, permissions stay.
/// @throws CFileException with a Spanish text when it can't be done; the old file is then untouched. Where
/// no file can be made the cause is that it isn't found or that access is denied, else the writing failed.
void ReemplazarFichero(const CString& csRuta, std::string_view bytes);

}  // namespace efv::fichero

// Files of the person, of the world in use.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::fichero {

/// The bytes of a regular file of at most `maximo` bytes.
/// @return nothing when it is missing, can't be opened, isn't a regular file or is larger.
/// @throws CFileException with the sharing cause while another process holds it, with another when the
/// reading fails.
std::optional<std::string> LeerFichero(const CString& csRuta, std::size_t maximo);

/// Replaces the file, or makes it, as a FicheroRetenido does.
/// @throws CFileException with a Spanish text when it can't be done; the old file is then untouched. Where
/// no file can be made the cause is that it isn't found or that access is denied, else the writing failed.
void ReemplazarFichero(const CString& csRuta, std::string_view bytes);

}  // namespace efv::fichero

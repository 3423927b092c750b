// Files of the user.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include <quorvel/framework/CString.h>

namespace efv::archivo {

std::filesystem::path Ruta(const CString& csRuta);

/// The bytes of a regular file of at most `maximo` bytes.
/// @return nothing when it is missing, can't be read, isn't a regular file or is larger.
/// @throws CFileException with the sharing cause while another process holds it.
std::optional<std::string> LeerFichero(const CString& csRuta, std::size_t maximo);

}  // namespace efv::archivo

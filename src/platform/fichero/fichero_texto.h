// Text files of other programs.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::fichero {

/// Bytes. Real files have some kilobytes, a year of quarter hours less than one megabyte.
inline constexpr std::size_t kMaximoTexto = std::size_t{16} << 20;

/// The whole file as text, each line ended by CR LF whatever ended it there. UTF-16 when its byte-order
/// mark says so, else UTF-8 when it is well-formed UTF-8, else Windows-1252.
/// @return nothing when it is missing, can't be opened, has more than 16 MiB or isn't text (holds a zero
/// character)
/// @throws CFileException as LeerFichero does
std::optional<CString> LeerTexto(const CString& csRuta);

/// The same of bytes that were read already.
std::optional<CString> TextoDeBytes(std::string_view bytes);

}  // namespace efv::fichero

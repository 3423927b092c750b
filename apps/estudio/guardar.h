// Files that the person asks for.
#pragma once

#include <string>
#include <string_view>

#include <quorvel/framework/CString.h>

namespace efv::estudio {

/// Replaces the file, or makes it, as a whole.
/// @throws std::runtime_error with a Spanish text that names the file and the cause
void GuardarFichero(const CString& csRuta, std::string_view bytes);

/// Throws that for the cause, which becomes a sentence. @param que "No se puede guardar"
[[noreturn]] void FallarConFichero(const char* que, const CString& csRuta, std::string motivo);

}  // namespace efv::estudio

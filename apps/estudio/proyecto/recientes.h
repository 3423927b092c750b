// The files last used, kept for the next run in the person's settings.
#pragma once

#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::estudio {

std::vector<CString> LeerRecientes();
void EscribirRecientes(const std::vector<CString>& recientes);

}  // namespace efv::estudio

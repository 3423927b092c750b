// Text files of "KEY=value" lines, as the imports read them.
#pragma once

#include <string_view>

#include <quorvel/framework/CString.h>

#include "platform/archivo/fichero_texto.h"
#include "ui/fichero_texto.h"

namespace efv::catalogues {

using archivo::LeerTexto;
using ui::LeerTextoImportado;

/// What stands between the first "KEY=" and the next CR LF; empty when either is missing. The search
/// knows nothing of lines or words: a key at the end of a longer word matches just the same.
CString ValorDeClave(std::wstring_view texto, std::wstring_view clave);

}  // namespace efv::catalogues

// Text files that the person chooses to import.
#pragma once

#include <optional>

#include <quorvel/framework/CString.h>

namespace efv::ui {

/// The file as text (fichero::LeerTexto); one that can't be read is told to the person.
std::optional<CString> LeerTextoImportado(const CString& csRuta);

}  // namespace efv::ui

// Text files that the person chooses to import or to export to.
#pragma once

#include <optional>

#include <quorvel/framework/CString.h>

namespace efv::ui {

/// The file as text (fichero::LeerTexto); one that can't be read is told to the person.
std::optional<CString> LeerTextoImportado(const CString& csRuta);

/// Replaces the file by the text, as UTF-8, or makes it; what goes wrong is told to the person.
void GuardarTextoExportado(const CString& csRuta, const CString& csTexto);

}  // namespace efv::ui

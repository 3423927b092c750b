// Fields of a record by name, as a project fixes them.
#pragma once

#include <set>
#include <string>

#include <quorvel/framework/CObject.h>

namespace efv::report {

/// Writes the named fields of `origen` into `destino`, a record of the same class.
void CopiarCampos(CObject& origen, CObject& destino, const std::set<std::string>& nombres);

/// The names of all fields that hold one value.
std::set<std::string> CamposFijos(CObject& registro);

}  // namespace efv::report

// What the help of a design says of its record's fields.
#pragma once

#include <string>

#include <quorvel/framework/CObject.h>

namespace efv::orden {

/// One line for each field of the class's records that has limits. @param clase of a record
std::string AyudaDeCampos(const CRuntimeClass& clase);

}  // namespace efv::orden

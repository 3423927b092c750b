// The decimal mark of numbers that are shown. Whatever a person types may have a comma or a point.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/exportar.h>

namespace efv {

/// From now on numbers are shown with that mark, in the whole process; texts that are there already keep
/// theirs. At the start it is a comma, whatever the process's locale. @throws CInvalidArgException for another
/// character than comma and point
EFV_API void PonerMarcaDecimal(wchar_t marca);
EFV_API wchar_t MarcaDecimal();

/// The finite number that `texto` is from end to end, with comma or point as its decimal mark; nothing for any
/// other.
EFV_API std::optional<double> LeerNumero(std::string_view texto);

}  // namespace efv

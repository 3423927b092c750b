// A day's bands of use as a line that a person types: "08:00-12:00; 18:00-22:00".
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include <quorvel/framework/CString.h>

#include "consumption/franjas.h"

namespace efv::consumption {

/// The bands that aren't empty, as they stand.
CString TextoDeFranjas(Franjas f);

struct FranjasLeidas {
    std::optional<std::array<double, 6>> franjas;  ///< in order of time, the rest of them 0
    CString csFallo;                               ///< why there are none
};

/// Up to three bands with ";", "," or "y" between them: "8-12", "08:30 - 12:00", "de 8 a 12". One that ends
/// before its start goes on after midnight and counts as two. Empty bands and those that overlap are refused.
FranjasLeidas LeerFranjas(std::wstring_view texto);

}  // namespace efv::consumption

// Which part of the help belongs to which dialog or panel.
#pragma once

#include <span>
#include <string_view>

namespace efv::estudio {

/// The file of the screens' help, whose headings these are.
inline constexpr const char* kAyudaDePantallas = "pantallas.md";
inline constexpr const char* kManual = "manual.md";

/// The heading for the screen of that class or, of what is no dialog, of that name; empty for an unknown one.
std::string_view ApartadoDe(std::string_view clase);

}  // namespace efv::estudio

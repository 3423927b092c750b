// Pictures by name, as text: whoever shows a dialog draws them in its colours and at its resolution.
#pragma once

#include <string_view>

#include <quorvel/exportar.h>

namespace efv::ui {

/// The picture of that name, on a square of 16 by 16 with y downward; empty for an unknown one. Its figures
/// are separated by ';'. A figure may begin with its colour, "#RRGGBB", else it has that of the text, and
/// then with "relleno" when it is filled. "M x y" moves, "L x y" draws a line, "O radius x y" a circle, "Z"
/// closes; all words are separated by one blank.
EFV_API std::string_view FigurasDe(std::wstring_view nombre);

}  // namespace efv::ui

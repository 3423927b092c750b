// Data exchange of one control: its content to the variable behind it and back.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/ui/controles.h>

namespace efv::ui {

/// Takes the control's content over into its variable.
/// @return the standard message when the content is no number or outside its limits; the variable then
/// keeps its value.
std::optional<CString> Recoger(Control& control);

/// Writes the variable into the control.
void Volcar(Control& control);

/// "Introduzca un número entre … y ….", with the limits as the person writes them.
CString MensajeDeLimites(const Intervalo& limites);

}  // namespace efv::ui

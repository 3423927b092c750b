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

/// Puts a field on or off. One that is off keeps what its variable holds, whatever stands in it.
void Habilitar(Edicion& campo, bool bHabilitado);

/// Lets a field be typed into or not. One that isn't shows its variable, unchecked and never taken back.
void DejarEscribir(Edicion& campo, bool bEscribible);

/// What holds for the field at the moment, in the person's unit; nothing when any number passes.
std::optional<Intervalo> LimitesAlUsuario(const Edicion& campo);

/// "0 y 15000": two limits as the person writes them.
CString TextoDeLimites(const Intervalo& limites);

/// "Introduzca un número entre … y ….", with the limits as the person writes them.
CString MensajeDeLimites(const Intervalo& limites);

}  // namespace efv::ui

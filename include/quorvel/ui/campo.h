// One field of a dialog by itself, for hosts whose fields count when they are left.
#pragma once

#include <optional>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>

namespace efv::ui {

class Dialogo;

/// Field to variable. What is wrong with it comes back, and the variable then keeps its value. A presenter
/// frames a field that can be written and is red.
EFV_API std::optional<CString> TomarCampo(Edicion& campo);

/// Variable to field.
EFV_API void VolcarCampo(Control& campo);

/// Its caption without the mark of its key and the colon.
EFV_API CString NombreDeCampo(const Control& campo);

/// What a person may want to know before typing into it, a line each: what it is, its unit, what its number
/// must lie between at the moment, in the person's units.
EFV_API CString IndicacionDeCampo(const Edicion& campo);

/// The field that a proposal stands beside: a proposal is for reading and has that field's name with a P. Null
/// for anything else.
EFV_API const Control* CampoDeLaPropuesta(const Control& control);

/// Whether there is such a field, and it can be typed into.
EFV_API bool PuedeUsarse(const Edicion& propuesta);

/// Types the proposal into its field and leaves that, as the person would.
EFV_API void UsarPropuesta(Dialogo& dialogo, const Edicion& propuesta);

}  // namespace efv::ui

// One field of a dialog by itself, for hosts whose fields count when they are left.
#pragma once

#include <optional>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>

namespace efv::ui {

/// Field to variable. What is wrong with it comes back, and the variable then keeps its value. A presenter
/// frames a field that can be written and is red.
EFV_API std::optional<CString> TomarCampo(Edicion& campo);

/// Variable to field.
EFV_API void VolcarCampo(Control& campo);

/// Its caption without the mark of its key and the colon.
EFV_API CString NombreDeCampo(const Control& campo);

}  // namespace efv::ui

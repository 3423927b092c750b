// An import into a dialog that already holds what the person has typed.
#pragma once

#include <functional>

#include <quorvel/ui/dialogo.h>

namespace efv::catalogues {

/// Takes over each field as far as it can be, runs `importar` on the record behind them and shows the record.
/// A field that couldn't be taken over, and that the import doesn't set, keeps its text.
void ImportarEnCampos(ui::Dialogo& dialogo, const std::function<void()>& importar);

}  // namespace efv::catalogues

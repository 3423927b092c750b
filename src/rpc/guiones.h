// Scripts of dialogs and their transcripts, as JSON.
#pragma once

#include <deque>
#include <span>
#include <string>

#include <quorvel/ui.h>

#include "rpc/json.h"

namespace efv::rpc {

/// The request's scripts, one a dialog. Throws ErrorValor, naming script and step, for a wrong shape.
std::deque<ui::GuionDialogo> LeerGuiones(const Json& guiones);

/// The dialogs that opened, in order of opening.
void EscribirDialogos(std::string& salida, std::span<const ui::Transcripcion> dialogos);

}  // namespace efv::rpc

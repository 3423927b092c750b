// Fields of the stand-alone assistant's record, by name.
#pragma once

#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/registros.h>

namespace efv::assistants {

std::vector<CampoRegistro> Campos(CSFVAsistenteAislada& registro);

}  // namespace efv::assistants

// Fields of the grid-connected assistant's record, by name.
#pragma once

#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/registros.h>

namespace efv::assistants {

std::vector<CampoRegistro> Campos(CSFVAsistenteRed& registro);

}  // namespace efv::assistants

// Fields of the consumption records, by name.
#pragma once

#include <vector>

#include <quorvel/consumption.h>
#include <quorvel/registros.h>

namespace efv::consumption {

std::vector<CampoRegistro> Campos(CSFVDataReceptor& registro);
std::vector<CampoRegistro> Campos(CItemConsumo& registro);

}  // namespace efv::consumption

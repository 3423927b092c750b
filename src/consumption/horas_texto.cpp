#include "consumption/horas_texto.h"

#include <cmath>

#include <fmt/format.h>

namespace efv::consumption {

CString HorasYMinutos(double dHoras)
{
    const double dEnteras = std::floor(dHoras);
    return CadenaDesdeUtf8(fmt::format("{:02.0f}:{:02.0f}", dEnteras, (dHoras - dEnteras) * 60.0));
}

CString NombreDeHora(int iHora)
{
    return CadenaDesdeUtf8(fmt::format("{:02}-{:02}", iHora, (iHora + 1) % 24));
}

}  // namespace efv::consumption

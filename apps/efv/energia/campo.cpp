#include "energia/campo.h"

#include <quorvel/solar.h>

namespace efv::orden {

std::string NombreMes(std::size_t iMes)
{
    CString csNombre;
    phGetNombreMes(static_cast<int>(iMes), csNombre);
    return CadenaUtf8(csNombre);
}

}  // namespace efv::orden

#include "consumption/nombres.h"

#include "solar/calendario.h"

namespace efv::consumption {

std::vector<CString> NombresDeDias()
{
    std::vector<CString> nombres;
    nombres.reserve(7);
    for (int i = 0; i < 7; ++i)
        nombres.emplace_back(solar::NombreDia(i));
    return nombres;
}

std::vector<CString> NombresDeMeses()
{
    std::vector<CString> nombres;
    nombres.reserve(12);
    for (int i = 0; i < 12; ++i)
        nombres.emplace_back(solar::NombreMes(i));
    return nombres;
}

}  // namespace efv::consumption

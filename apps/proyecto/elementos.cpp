#include "proyecto/elementos.h"

namespace efv::estudio {

int DatosInversor::ColorDeString(std::size_t i) const
{
    const auto n = static_cast<std::ptrdiff_t>(i);
    return n < entradas.GetSize() ? entradas[n].nColor : ui::kColorPorCapa;
}

}  // namespace efv::estudio

#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CException.h>

namespace efv {

void ComprobarIndice(std::ptrdiff_t indice, std::size_t tamano)
{
    if (indice < 0 || static_cast<std::size_t>(indice) >= tamano)
        throw CInvalidArgException("Índice fuera de la lista");
}

}  // namespace efv

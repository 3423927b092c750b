#include "elements/panel_montaje.h"

#include <array>
#include <cmath>

#include "platform/numero/tolerancia.h"

namespace efv::elements {

namespace {

struct ImagenesDeOrientacion {
    std::wstring_view uno;
    std::array<std::wstring_view, 3> varios;  ///< by mounting
};

constexpr std::array<ImagenesDeOrientacion, 2> kImagenes = {{
    {L"5023", {L"5105", L"5106", L"5104"}},  // upright
    {L"5024", {L"5108", L"5107", L"5109"}},  // lying
}};

}  // namespace

std::wstring_view ImagenDeMontaje(int iOrientacion, int iMontaje, int nPaneles)
{
    if (iOrientacion < 0 || iOrientacion >= std::ssize(kImagenes))
        return {};
    const ImagenesDeOrientacion& imagenes = kImagenes[static_cast<std::size_t>(iOrientacion)];
    if (nPaneles < 2)
        return imagenes.uno;
    if (iMontaje < 0 || iMontaje >= std::ssize(imagenes.varios))
        return {};
    return imagenes.varios[static_cast<std::size_t>(iMontaje)];
}

bool EsCuadrado(int nPaneles)
{
    const double dLado = std::sqrt(static_cast<double>(nPaneles));
    return numero::Igual(dLado, std::ceil(dLado));
}

}  // namespace efv::elements

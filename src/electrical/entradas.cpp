#include "electrical/entradas.h"

#include <algorithm>
#include <memory>

#include <fmt/format.h>
#include <fmt/xchar.h>
#include <quorvel/framework/CException.h>

namespace efv::electrical {

CString RotuloDeEntrada(int iNumeroInversor, int iSeguidor, int iEntrada)
{
    return iNumeroInversor > 0 ? fmt::format(L"ST[{:04}].{}.{}", iNumeroInversor, iSeguidor, iEntrada)
                               : fmt::format(L"ST{}.{}", iSeguidor, iEntrada);
}

int AsignarEntradas(int iNumeroInversor, int iNumMPPT, int iNumEntradas, Entradas& entradas, bool bForzar)
{
    if (iNumEntradas > kEntradasMaximas)
        throw CInvalidArgException("Demasiadas entradas.");
    // Without trackers no input has a label, and none is left.
    const std::ptrdiff_t nEntradas = iNumMPPT < 1 ? 0 : std::max(iNumEntradas, 0);
    for (std::ptrdiff_t k = 0; k < nEntradas; ++k) {
        const bool bNueva = k >= entradas.GetSize();
        CSFVInverterInput& entrada =
            bNueva ? entradas.Add(std::make_unique<CSFVInverterInput>()) : entradas.GetAt(k);
        if (!bNueva && !bForzar)
            continue;
        const int i = static_cast<int>(k);
        entrada =
            CSFVInverterInput(i, RotuloDeEntrada(iNumeroInversor, i % iNumMPPT + 1, i / iNumMPPT + 1), 256);
    }
    while (entradas.GetSize() > nEntradas)
        entradas.RemoveAt(entradas.GetSize() - 1);
    return static_cast<int>(entradas.GetSize());
}

int CopiarEntradas(const Entradas& origen, Entradas& destino)
{
    destino.RemoveAll();
    for (const auto& entrada : origen)
        destino.Add(std::make_unique<CSFVInverterInput>(*entrada));
    return static_cast<int>(destino.GetSize());
}

bool SonIguales(const Entradas& a, const Entradas& b)
{
    return std::ranges::equal(a, b, [](const auto& una, const auto& otra) { return *una == *otra; });
}

}  // namespace efv::electrical

#include "elements/identificacion.h"

#include <algorithm>
#include <utility>

namespace efv::elements {

namespace {

constexpr wchar_t kMarca = L'#', kBlancoDuro = L'\u00A0';

}  // namespace

CamposIdentificacion PartirIdentificacion(const CString& csId)
{
    const std::size_t marca = csId.find(kMarca);
    if (marca == CString::npos || csId.find(kMarca, marca + 1) != CString::npos)
        return {EnPantalla(csId), {}};
    return {csId.substr(marca + 1), csId.substr(0, marca)};
}

CString ComponerIdentificacion(const CString& csModelo, const CString& csFabricante)
{
    CString csId = csFabricante;
    csId += kMarca;
    csId += csModelo;
    return DePantalla(std::move(csId));
}

CString EnPantalla(CString csId)
{
    std::ranges::replace(csId, kMarca, kBlancoDuro);
    return csId;
}

CString DePantalla(CString csTexto)
{
    std::ranges::replace(csTexto, kBlancoDuro, kMarca);
    return csTexto;
}

}  // namespace efv::elements

#include "catalogues/receptor.h"

#include <array>

#include "catalogues/catalogo.h"

namespace efv::catalogues {

namespace {

using M = CBaseReceptorModelo;

// In the order of reading.
constexpr auto kCampos = std::to_array<CampoModelo<M>>({
    {"csModelo", &M::csModelo},
    {"dP", &M::dP, L"P (W)"},
    {"dVs", &M::dVs, L"Vs (V)"},
    {"dVsMin", &M::dVsMin},
    {"dRend", &M::dRend, L"Rend. (%)"},
    {"iTipoRed", &M::iTipoRed, L"Red"},
    {"bIlum", &M::bIlum},
    {"nColor", &M::nColor},
    {"csCodPrecio", &M::csCodPrecio},
});

}  // namespace

std::span<const CampoModelo<M>> Catalogo<M>::Campos()
{
    return kCampos;
}

NombresCatalogo Catalogo<M>::Nombres()
{
    return {"CBaseReceptores", "CBaseReceptorFamilia",         "CBaseReceptorModelo",
            L"Receptores",     L"Base de Datos de Receptores", 20446};
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBaseReceptorModelo>;
template class CFamiliaCatalogo<CBaseReceptorModelo>;
template class CBaseCatalogo<CBaseReceptorModelo>;

int CBaseReceptores::GetDataFamilia(const CString& csModelo, const CString& csFamilia, double& dP, double& dVs,
                                    double& dVsMin, double& dRend, int& iTipoRed, int& bIlum) const
{
    for (const auto& objeto : aFamilias) {
        const auto& familia = static_cast<const Familia&>(*objeto);
        const CBaseReceptorModelo* modelo =
            familia.csNombre == csFamilia ? familia.BuscarModelo(csModelo) : nullptr;
        if (modelo == nullptr)
            continue;
        using M = CBaseReceptorModelo;
        efv::catalogues::CopiarSalidas<&M::dP, &M::dVs, &M::dVsMin, &M::dRend, &M::iTipoRed, &M::bIlum>(
            *modelo, dP, dVs, dVsMin, dRend, iTipoRed, bIlum);
        return 1;
    }
    return 0;
}

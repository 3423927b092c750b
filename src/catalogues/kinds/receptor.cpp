#include "catalogues/kinds/receptor.h"

#include "catalogues/format/catalogo.h"

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

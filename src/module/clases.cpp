// Registration of the classes that can be created by name, and the records among them.
#include <array>

#include <QuorvelEFV.h>

#include "assistants/asistente_aislada_registro.h"
#include "assistants/asistente_red_registro.h"
#include "consumption/registros.h"
#include "platform/framework/registro_clases.h"

namespace {

// The order of registration is part of the module's description.
bool RegistrarClases()
{
    constexpr auto clases = std::to_array<const CRuntimeClass& (*)()>({
        &CBaseXML::GetThisClass,
        &CBaseAcumuladores::GetThisClass,
        &CBaseAcumuladorFamilia::GetThisClass,
        &CBaseAcumuladorModelo::GetThisClass,
        &CItemConsumo::GetThisClass,
        &CBaseConvertidores::GetThisClass,
        &CBaseConvertidorFamilia::GetThisClass,
        &CBaseConvertidorModelo::GetThisClass,
        &CBaseFactorK::GetThisClass,
        &CBaseFactorKLatitud::GetThisClass,
        &CBaseFactorKAlpha::GetThisClass,
        &CBaseInversores::GetThisClass,
        &CBaseInversorFamilia::GetThisClass,
        &CBaseInversorModelo::GetThisClass,
        &CBaseMicroInversores::GetThisClass,
        &CBaseMicroInversorFamilia::GetThisClass,
        &CBaseMicroInversorModelo::GetThisClass,
        &CBasePanelFoto::GetThisClass,
        &CBasePanelFotoFamilia::GetThisClass,
        &CBasePanelFotoModelo::GetThisClass,
        &CBaseReceptores::GetThisClass,
        &CBaseReceptorFamilia::GetThisClass,
        &CBaseReceptorModelo::GetThisClass,
        &CSFVAsistenteAislada::GetThisClass,
        &CSFVAsistenteRed::GetThisClass,
        &CSFVDataReceptor::GetThisClass,
    });
    for (const auto clase : clases)
        efv::framework::RegistrarClase(clase());
    return true;
}

const bool kRegistradas = RegistrarClases();

using ListaCampos = std::vector<efv::CampoRegistro>;
using efv::assistants::Campos;
using efv::consumption::Campos;

// The fields of `registro` when it is an R.
template <class R>
bool CamposSiEs(CObject& registro, ListaCampos& campos)
{
    auto* propio = dynamic_cast<R*>(&registro);
    if (propio != nullptr)
        campos = Campos(*propio);
    return propio != nullptr;
}

// Every exported record.
constexpr auto kRegistros = std::to_array<bool (*)(CObject&, ListaCampos&)>({
    &CamposSiEs<CSFVAsistenteAislada>,
    &CamposSiEs<CSFVAsistenteRed>,
    &CamposSiEs<CSFVDataReceptor>,
    &CamposSiEs<CItemConsumo>,
});

}  // namespace

namespace efv {

std::vector<CampoRegistro> CamposDeRegistro(CObject& registro)
{
    ListaCampos campos;
    for (const auto probar : kRegistros)
        if (probar(registro, campos))
            break;
    return campos;
}

}  // namespace efv

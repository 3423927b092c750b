// Registration of the classes that can be created by name.
#include <array>

#include <QuorvelEFV.h>

#include "platform/framework/registro_clases.h"

namespace {

// The order of registration is part of the module's description.
bool RegistrarClases()
{
    constexpr auto clases = std::to_array<void (*)()>({
        &efv::framework::RegistrarClase<CBaseXML>,
        &efv::framework::RegistrarClase<CBaseAcumuladores>,
        &efv::framework::RegistrarClase<CBaseAcumuladorFamilia>,
        &efv::framework::RegistrarClase<CBaseAcumuladorModelo>,
        &efv::framework::RegistrarClase<CItemConsumo>,
        &efv::framework::RegistrarClase<CBaseConvertidores>,
        &efv::framework::RegistrarClase<CBaseConvertidorFamilia>,
        &efv::framework::RegistrarClase<CBaseConvertidorModelo>,
        &efv::framework::RegistrarClase<CBaseFactorK>,
        &efv::framework::RegistrarClase<CBaseFactorKLatitud>,
        &efv::framework::RegistrarClase<CBaseFactorKAlpha>,
        &efv::framework::RegistrarClase<CBaseInversores>,
        &efv::framework::RegistrarClase<CBaseInversorFamilia>,
        &efv::framework::RegistrarClase<CBaseInversorModelo>,
        &efv::framework::RegistrarClase<CBaseMicroInversores>,
        &efv::framework::RegistrarClase<CBaseMicroInversorFamilia>,
        &efv::framework::RegistrarClase<CBaseMicroInversorModelo>,
        &efv::framework::RegistrarClase<CBasePanelFoto>,
        &efv::framework::RegistrarClase<CBasePanelFotoFamilia>,
        &efv::framework::RegistrarClase<CBasePanelFotoModelo>,
        &efv::framework::RegistrarClase<CBaseReceptores>,
        &efv::framework::RegistrarClase<CBaseReceptorFamilia>,
        &efv::framework::RegistrarClase<CBaseReceptorModelo>,
        &efv::framework::RegistrarClase<CSFVCalculoEconomico>,
        &efv::framework::RegistrarClase<CSFVCalculoEconomicoAuto>,
        &efv::framework::RegistrarClase<CSFVAsistenteAislada>,
        &efv::framework::RegistrarClase<CSFVAsistenteRed>,
        &efv::framework::RegistrarClase<CSFVDataReceptor>,
    });
    for (const auto registrar : clases)
        registrar();
    return true;
}

const bool kRegistradas = RegistrarClases();

}  // namespace

// Registration of the classes that can be created by name.
#include <array>

#include <QuorvelEFV.h>

#include "platform/framework/registro_clases.h"

// The order of registration is part of the module's description.
void efv::framework::RegistrarClasesDelModulo()
{
    constexpr auto clases = std::to_array<void (*)()>({
        &RegistrarClase<CBaseXML>,
        &RegistrarClase<CBaseAcumuladores>,
        &RegistrarClase<CBaseAcumuladorFamilia>,
        &RegistrarClase<CBaseAcumuladorModelo>,
        &RegistrarClase<CItemConsumo>,
        &RegistrarClase<CBaseConvertidores>,
        &RegistrarClase<CBaseConvertidorFamilia>,
        &RegistrarClase<CBaseConvertidorModelo>,
        &RegistrarClase<CBaseFactorK>,
        &RegistrarClase<CBaseFactorKLatitud>,
        &RegistrarClase<CBaseFactorKAlpha>,
        &RegistrarClase<CBaseInversores>,
        &RegistrarClase<CBaseInversorFamilia>,
        &RegistrarClase<CBaseInversorModelo>,
        &RegistrarClase<CBaseMicroInversores>,
        &RegistrarClase<CBaseMicroInversorFamilia>,
        &RegistrarClase<CBaseMicroInversorModelo>,
        &RegistrarClase<CBasePanelFoto>,
        &RegistrarClase<CBasePanelFotoFamilia>,
        &RegistrarClase<CBasePanelFotoModelo>,
        &RegistrarClase<CBaseReceptores>,
        &RegistrarClase<CBaseReceptorFamilia>,
        &RegistrarClase<CBaseReceptorModelo>,
        &RegistrarClase<CSFVCalculoEconomico>,
        &RegistrarClase<CSFVCalculoEconomicoAuto>,
        &RegistrarClase<CSFVAsistenteAislada>,
        &RegistrarClase<CSFVAsistenteRed>,
        &RegistrarClase<CSFVDataReceptor>,
        &RegistrarClase<CSFVInverterInput>,
    });
    for (const auto registrar : clases)
        registrar();
}

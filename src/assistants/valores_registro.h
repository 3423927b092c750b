// The working values of both sizings by their rows: what they add to the records.
#pragma once

#include <quorvel/assistants_calculo.h>

#include "assistants/asistente_aislada_registro.h"
#include "assistants/asistente_red_registro.h"

namespace efv::framework {

// The panel's figures, which both hold.
template <class V>
inline constexpr auto kFilasPanel = std::to_array<FilaRegistro<V>>({
    {"dPmpm", Dentro<&V::panel, &assistants::DatosPanel::dPmpm>()},
    {"dVmpm", Dentro<&V::panel, &assistants::DatosPanel::dVmpm>()},
    {"dImpm", Dentro<&V::panel, &assistants::DatosPanel::dImpm>()},
    {"dVoc", Dentro<&V::panel, &assistants::DatosPanel::dVoc>()},
    {"dLargoPanel", Dentro<&V::panel, &assistants::DatosPanel::dLargoPanel>()},
    {"dAnchoPanel", Dentro<&V::panel, &assistants::DatosPanel::dAnchoPanel>()},
    {"dAreaPanel", Dentro<&V::panel, &assistants::DatosPanel::dAreaPanel>()},
    {"dPesoPanel", Dentro<&V::panel, &assistants::DatosPanel::dPesoPanel>()},
});

template <>
struct FilasDe<assistants::ValoresAislada> {
    using V = assistants::ValoresAislada;
    using Base = CSFVAsistenteAislada;

    static constexpr auto filas =
        Juntas(std::to_array<FilaRegistro<V>>({
                   {"dLatitud", &V::dLatitud},
                   {"iHemisferio", &V::iHemisferio},
                   {"adRadiacion", Bloque<&V::adRadiacion>()},
                   {"dPanelesPorFila", &V::dPanelesPorFila},
                   {"dCapacidadAcumulador", &V::dCapacidadAcumulador},
                   {"dVnom", Dentro<&V::acumulador, &assistants::DatosAcumulador::dVnom>()},
                   {"dH", Dentro<&V::acumulador, &assistants::DatosAcumulador::dH>()},
                   {"dW", Dentro<&V::acumulador, &assistants::DatosAcumulador::dW>()},
                   {"dL", Dentro<&V::acumulador, &assistants::DatosAcumulador::dL>()},
                   {"dPeso", Dentro<&V::acumulador, &assistants::DatosAcumulador::dPeso>()},
               }),
               kFilasPanel<V>,
               std::to_array<FilaRegistro<V>>({
                   {"dEnergiaDiaria", &V::dEnergiaDiaria},
                   {"dEnergiaNecesaria", &V::dEnergiaNecesaria},
                   {"dEnergiaAcumulador", &V::dEnergiaAcumulador},
                   {"dEnergiaCableado", &V::dEnergiaCableado},
                   {"dEnergiaAcoplamiento", &V::dEnergiaAcoplamiento},
                   {"dCapacidadNecesaria", &V::dCapacidadNecesaria},
                   {"dCapacidadResultante", &V::dCapacidadResultante},
                   {"dCapacidadResultanteP", &V::dCapacidadResultanteP},
                   {"iAcumuladoresSerieP", &V::iAcumuladoresSerieP},
                   {"iAcumuladoresParaleloP", &V::iAcumuladoresParaleloP},
                   {"iTotalAcumuladores", &V::iTotalAcumuladores},
                   {"dPesoAcumuladores", &V::dPesoAcumuladores},
                   {"dInclinacionP", &V::dInclinacionP},
                   {"dOrientacionP", &V::dOrientacionP},
                   {"dHSP", &V::dHSP},
                   {"dHSPP", &V::dHSPP},
                   {"csMesReferencia", &V::csMesReferencia},
                   {"adRadiacionInclinada", Bloque<&V::adRadiacionInclinada>()},
                   {"dPotenciaMinima", &V::dPotenciaMinima},
                   {"dPotenciaMinimaP", &V::dPotenciaMinimaP},
                   {"iPanelesNecesarios", &V::iPanelesNecesarios},
                   {"iPanelesNecesariosP", &V::iPanelesNecesariosP},
                   {"iPanelesSerieP", &V::iPanelesSerieP},
                   {"iPanelesParaleloP", &V::iPanelesParaleloP},
                   {"iRamalesNecesarios", &V::iRamalesNecesarios},
                   {"dPotenciaInstalada", &V::dPotenciaInstalada},
                   {"dPotenciaInstaladaP", &V::dPotenciaInstaladaP},
                   {"iTotalPaneles", &V::iTotalPaneles},
                   {"dPesoPaneles", &V::dPesoPaneles},
                   {"dDistanciaFilasP", &V::dDistanciaFilasP},
                   {"dSuperficieTotal", &V::dSuperficieTotal},
                   {"dSuperficieProyectada", &V::dSuperficieProyectada},
               }));
};

template <>
struct FilasDe<assistants::ValoresRed> {
    using V = assistants::ValoresRed;
    using Base = CSFVAsistenteRed;

    // The inverter's output goes by the record's name, which takes it over at the end.
    static constexpr auto filas =
        Juntas(std::to_array<FilaRegistro<V>>({
                   {"dLatitud", &V::dLatitud},
                   {"csHemisferio", &V::csHemisferio},
                   {"dPCANom", Dentro<&V::inversor, &assistants::InversorLeido::dPCANom>()},
                   {"dPCAMax", Dentro<&V::inversor, &assistants::InversorLeido::dPCAMax>()},
                   {"dVMPPMax", Dentro<&V::inversor, &assistants::InversorLeido::dVMPPMax>()},
                   {"dVMPPMin", Dentro<&V::inversor, &assistants::InversorLeido::dVMPPMin>()},
                   {"dVCCMax", Dentro<&V::inversor, &assistants::InversorLeido::dVCCMax>()},
                   {"dIMaxEntrada", Dentro<&V::inversor, &assistants::InversorLeido::dIMaxEntrada>()},
                   {"iNumMPPT", Dentro<&V::inversor, &assistants::InversorLeido::iNumMPPT>()},
                   {"iNumEntradas", Dentro<&V::inversor, &assistants::InversorLeido::iNumEntradas>()},
                   {"iUsoPrincipal", Dentro<&V::inversor, &assistants::InversorLeido::iUsoPrincipal>()},
               }),
               kFilasPanel<V>,
               std::to_array<FilaRegistro<V>>({
                   {"iInversoresP", &V::iInversoresP},
                   {"iPanelesSerieP", &V::iPanelesSerieP},
                   {"iPanelesParaleloP", &V::iPanelesParaleloP},
                   {"dInclinacionP", &V::dInclinacionP},
                   {"dOrientacionP", &V::dOrientacionP},
                   {"dDistanciaFilasP", &V::dDistanciaFilasP},
                   {"dPotenciaInversorCampo", &V::dPotenciaInversorCampo},
                   {"dPotenciaInversorCampoP", &V::dPotenciaInversorCampoP},
                   {"dTensionRamal", &V::dTensionRamal},
                   {"dTensionRamalP", &V::dTensionRamalP},
                   {"iPanelesInversor", &V::iPanelesInversor},
                   {"iPanelesInversorP", &V::iPanelesInversorP},
                   {"iTotalPaneles", &V::iTotalPaneles},
                   {"iTotalPanelesP", &V::iTotalPanelesP},
                   {"dPotenciaTotal", &V::dPotenciaTotal},
                   {"dPotenciaTotalP", &V::dPotenciaTotalP},
                   {"dPotenciaInversores", &V::dPotenciaInversores},
                   {"dPotenciaInversoresP", &V::dPotenciaInversoresP},
                   {"dSuperficieTotal", &V::dSuperficieTotal},
                   {"dSuperficieTotalP", &V::dSuperficieTotalP},
                   {"dSuperficieProyectada", &V::dSuperficieProyectada},
                   {"dSuperficieProyectadaP", &V::dSuperficieProyectadaP},
               }));
};

}  // namespace efv::framework

// The stand-alone assistant's record by its rows.
#pragma once

#include <quorvel/assistants.h>

#include "platform/framework/tabla_registro.h"

namespace efv::framework {

template <>
struct FilasDe<CSFVAsistenteAislada> {
    using R = CSFVAsistenteAislada;

    static constexpr int schema = 6;
    // The lists stand behind all else in every schema.
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"csAcumulador", &R::csAcumulador},
        {"dDiasAutonomia", &R::dDiasAutonomia, 1, {0.01, 365}},
        {"iAcumuladoresSerie", &R::iAcumuladoresSerie, 1, {0, 100000}},
        {"iAcumuladoresParalelo", &R::iAcumuladoresParalelo, 1, {0, 100000}},
        {"csPanel", &R::csPanel},
        {"iPanelesSerie", &R::iPanelesSerie, 1, {0, 100000}},
        {"iPanelesParalelo", &R::iPanelesParalelo, 1, {0, 100000}},
        {"iMesCalculo", &R::iMesCalculo, 1, {0, 14}},
        {"dProfundidadDescarga", &R::dProfundidadDescarga, 1, {1, 100}},
        {"dTensionSistema", &R::dTensionSistema},
        {"dKb", &R::dKb, 1, {0, 1}},
        {"dKa", &R::dKa, 1, {0, 1}},
        {"dTemperaturaAcumulador", &R::dTemperaturaAcumulador, 1, {-10, 50}},
        {"dKaAjustado", &R::dKaAjustado},
        {"dKc", &R::dKc, 1, {0, 1}},
        {"dKv", &R::dKv, 1, {0, 1}},
        {"dR", &R::dR},
        {"dInclinacion", &R::dInclinacion, 1, {0, 90}},
        {"dOrientacion", &R::dOrientacion, 1, {-180, 180}},
        {"iPanelesPorFila", &R::iPanelesPorFila, 1, {0, 100000}},
        {"dDistanciaPaneles", &R::dDistanciaPaneles, 1, {0, 25000}},
        {"dDistanciaFilas", &R::dDistanciaFilas, 1, {0, 25000}},
        {"iSimboloAcumulador", &R::iSimboloAcumulador, 2},
        {"iSimboloPanel", &R::iSimboloPanel, 2},
        {"iSimboloRegulador", &R::iSimboloRegulador, 2},
        {"dPotenciaMaxFV", &R::dPotenciaMaxFV, 4},
        {"dCorrienteMaxFV", &R::dCorrienteMaxFV, 4},
        {"dTensionMaxFV", &R::dTensionMaxFV, 4},
        {"dTensionMinFV", &R::dTensionMinFV, 4},
        {"bSalidaCA", &R::bSalidaCA, 4, {0, 1}},
        {"dTensionSalidaCA", &R::dTensionSalidaCA, 4, {0, 10000}},
        {"dPotenciaSalidaCA", &R::dPotenciaSalidaCA, 4},
        {"iTipoSalidaCA", &R::iTipoSalidaCA, 4, {0, 1}},
        {"dPerdidaCableado", &R::dPerdidaCableado, 5, {0, 100}},
        {"dPerdidaAcumulador", &R::dPerdidaAcumulador, 5, {0, 100}},
        {"dPerdidaAcoplamiento", &R::dPerdidaAcoplamiento, 5, {0, 100}},
        {"iDisposicion", &R::iDisposicion, 6, {0, 1}},
        {"adCantidad", &R::adCantidad},
        {"acsModelo", &R::acsModelo},
        {"adHorasDia", &R::adHorasDia},
        {"adHorario", &R::adHorario, 3},
    });
};

}  // namespace efv::framework

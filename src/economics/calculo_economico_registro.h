// The record of a sale to the grid by its rows.
#pragma once

#include <quorvel/economics.h>

#include "platform/framework/tabla_registro.h"

namespace efv::framework {

template <>
struct FilasDe<CSFVCalculoEconomico> {
    using R = CSFVCalculoEconomico;

    static constexpr int schema = 2;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"bPotenciaGenerador", &R::bPotenciaGenerador},
        {"dAmortizacionIDAE", &R::dAmortizacionIDAE, 1, {0, 100}},
        {"dImporteIDAE", &R::dImporteIDAE},
        {"dAportacionInicial", &R::dAportacionInicial, 1, {0, 1e8}},
        {"dBonificacionICO", &R::dBonificacionICO},
        {"dImporteICO", &R::dImporteICO},
        {"dCosteElegible", &R::dCosteElegible, 1, {0, 1e9}},
        {"dCosteInstalacion", &R::dCosteInstalacion, 1, {0, 1e9}},
        {"dCosteMantenimiento", &R::dCosteMantenimiento, 1, {0, 100}},
        {"dTotalPagar", &R::dTotalPagar},
        {"dCuotaAnual", &R::dCuotaAnual},
        {"dEnergiaInstalacion", &R::dEnergiaInstalacion, 1, {0, 1e8}},
        {"dEnergiaResultante", &R::dEnergiaResultante},
        {"dFactorMejora", &R::dFactorMejora, 1, {-90, 90}},
        {"dAniosPrestamo", &R::dAniosPrestamo, 1, {1, 100}},
        {"dPotenciaGenerador", &R::dPotenciaGenerador, 1, {0, 1e8}},
        {"dPrimaFija", &R::dPrimaFija, 1, {0, 100}},
        {"dPrimaVariableA", &R::dPrimaVariableA, 1, {0, 100}},
        {"dPrimaVariableB", &R::dPrimaVariableB, 1, {0, 100}},
        {"dPrimaVariable", &R::dPrimaVariable},
        {"dRendimientoInicial", &R::dRendimientoInicial},
        {"dRepercusion", &R::dRepercusion},
        {"dImporteSubvencion", &R::dImporteSubvencion},
        {"dSubvencionCCAA", &R::dSubvencionCCAA, 1, {0, 100}},
        {"dTipoInteres", &R::dTipoInteres, 1, {0.1, 100}},
        {"dTotalPrestamos", &R::dTotalPrestamos},
        {"dVariacionCoste", &R::dVariacionCoste, 1, {0, 1000}},
        {"iTipoPrima", &R::iTipoPrima},
        {"dEnvejecimiento", &R::dEnvejecimiento, 1, {0, 100}},
        {"dAniosEstudio", &R::dAniosEstudio, 1, {1, 200}},
        {"iTipoCoste", &R::iTipoCoste},
        {"dPerformanceRatio", &R::dPerformanceRatio, 1, {1, 100}},
        {"iTipoAmortizacion", &R::iTipoAmortizacion},
        {"dTIR", &R::dTIR},
        {"dEnergiaBase", &R::dEnergiaBase, 2},
        {.nombre = "bPerformanceRatio", .miembro = &R::bPerformanceRatio, .iDesde = 2, .anterior = 1},
        // The tables are made again by each study.
        {"aAnio", &R::aAnio, kSinArchivar},
        {"aEnergia", &R::aEnergia, kSinArchivar},
        {"aPrima", &R::aPrima, kSinArchivar},
        {"aIngresos", &R::aIngresos, kSinArchivar},
        {"aIngresosAcumulados", &R::aIngresosAcumulados, kSinArchivar},
        {"aCapitalInteres", &R::aCapitalInteres, kSinArchivar},
        {"aMantenimiento", &R::aMantenimiento, kSinArchivar},
        {"aCashFlow", &R::aCashFlow, kSinArchivar},
        {"aAcumulado", &R::aAcumulado, kSinArchivar},
        {"aRadHorizontal", &R::aRadHorizontal, kSinArchivar},
        {"aRadInclinada", &R::aRadInclinada, kSinArchivar},
        {"aEnergiaDia", &R::aEnergiaDia, kSinArchivar},
        {"aEnergiaMes", &R::aEnergiaMes, kSinArchivar},
    });
};

}  // namespace efv::framework

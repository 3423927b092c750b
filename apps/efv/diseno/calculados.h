// Fields of a record that the calculation finds by itself, whatever a file says of them.
#pragma once

#include <array>
#include <string_view>

namespace efv::orden {

inline constexpr auto kCalculadosAislada =
    std::to_array<std::string_view>({"iAcumuladoresSerie", "dPotenciaMaxFV", "dKaAjustado", "dR"});

inline constexpr auto kCalculadosRed = std::to_array<std::string_view>({"iTipoSalida"});

/// Results of the study: a saved one may bring them, and they are made again.
inline constexpr auto kCalculadosVenta = std::to_array<std::string_view>(
    {"dImporteIDAE", "dImporteICO", "dCosteElegible", "dTotalPagar", "dCuotaAnual", "dEnergiaInstalacion",
     "dEnergiaResultante", "dPrimaVariable", "dRendimientoInicial", "dImporteSubvencion", "dTotalPrestamos",
     "dTIR"});

}  // namespace efv::orden

// Minimum photovoltaic power of a building by the Spanish building code of 2006 (section HE 5) as a whole, and
// beside it by the rule of 2022 (section HE 5 after the Royal Decree 450/2022).
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/solar/energia.h>

namespace efv::solar {

inline constexpr int kUsosHE5 = 7;
inline constexpr int kZonasHE5 = 5;
/// In the place of a second use that isn't there: it adds nothing.
inline constexpr int kSinUso = -1;

struct EdificioHE5 {
    int iZona = 1;                                  ///< climate zone, 1 to 5
    std::array<int, 2> aiUso = {kSinUso, kSinUso};  ///< 0 to 6
    std::array<double, 2> adSuperficie = {};        ///< built, m²
    bool bResidencial = false;                      ///< dwellings, for the rule of 2022
    std::optional<double> dCubierta;                ///< roof, m²; unknown: no figure by the rule of 2022
    double dCaptadores = 0.0;                       ///< of it, taken by thermal collectors, m²
};

struct PotenciaHE5 {
    std::array<double, 2> adUso = {};  ///< by the coefficients of each use, kW
    double dPorUsos = 0.0;             ///< their sum
    double dPorSuperficie = 0.0;       ///< by the form without uses, kW
    std::optional<double> d2022;       ///< informative; nothing up to 1,000 m² built or without the roof
};

EFV_API PotenciaHE5 CalcularHE5(const EdificioHE5& edificio);

/// Climate zone, 1 to 5, from the year's mean daily horizontal radiation, kWh/m²: below 3.8, 4.2, 4.6 and 5.0.
EFV_API int ZonaDeRadiacion(double dRadiacionMedia);
/// 1 to 5 of "I" to "V", 0 of any other text.
EFV_API int ZonaDeNombre(std::wstring_view nombre);
/// "I" to "V", empty for an unknown zone.
EFV_API std::wstring_view NombreZona(int iZona);

/// kW by the code of 2022: the smaller of 0.005 kW/m² for dwellings or 0.010 for other uses times the built
/// surface and a tenth of half the roof less what thermal collectors take; nothing up to 1,000 m² built.
EFV_API std::optional<double> PotenciaMinima2022(bool bResidencial, double dSuperficieConstruida,
                                                 double dSuperficieCubierta, double dSuperficieCaptadores);

}  // namespace efv::solar

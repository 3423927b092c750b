// How the sizings read the catalogue models of batteries and inverters.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/assistants_calculo.h>

namespace efv::assistants {

DatosAcumulador LeerAcumulador(const CBaseAcumuladorModelo& modelo);

/// The rated capacity that exceeds the others; nothing when two share the highest place. The one at 20
/// hours is not compared with those at 10 and 100, nor any other with it: at equal rights the shorter
/// discharge wins.
std::optional<double> CapacidadEnVigor(const CBaseAcumuladorModelo& modelo);

/// The same with the name of its discharge regime, "C100".
struct Regimen {
    double dCapacidad;  ///< Ah
    std::wstring_view csNombre;
};
std::optional<Regimen> RegimenEnVigor(const CBaseAcumuladorModelo& modelo);

/// The lowest positive current of a list such as "12,5/9/0", A: the weakest tracker limits all. `dICCMax`
/// when the list holds none.
double CorrienteLimite(double dICCMax, std::wstring_view csICCMaxMPPT);

}  // namespace efv::assistants

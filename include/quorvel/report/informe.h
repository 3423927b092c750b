// The report of a design as its assistant leaves it, for programs that hold the record and no project file.
#pragma once

#include <string>

#include <quorvel/report/disenos.h>

namespace efv::report {

/// What a report says besides the design.
struct Portada {
    std::string titulo;  ///< of the project, as its author calls it; may be empty
    LugarDiseno lugar;
    PlanosDiseno planos = {};
};

/// The report of an accepted design: its document, warnings included.
/// @throws std::invalid_argument with a Spanish text: no design yet, or a model that its catalogue doesn't have
EFV_API Documento InformeDe(const CSFVAsistenteAislada& diseno, const Portada& portada,
                            const Catalogos& catalogos, const CBaseFactorK& tabla);
EFV_API Documento InformeDe(const CSFVAsistenteRed& diseno, const Portada& portada, const Catalogos& catalogos,
                            const CBaseFactorK& tabla);

/// Today as a page dates itself, "3-2-2028"; empty when the clock fails.
EFV_API std::string FechaDeHoy();

}  // namespace efv::report

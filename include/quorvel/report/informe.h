// The report of a design as its assistant leaves it, for programs that hold the record and no project file.
#pragma once

#include <optional>
#include <string>

#include <quorvel/report/disenos.h>

namespace efv::report {

/// What a report says besides the design.
struct Portada {
    std::string titulo;  ///< of the project, as its author calls it; may be empty
    LugarDiseno lugar;
    PlanosDiseno planos = {};
    TemperaturasCelulas temperaturas = {};
    DatosPortada datos = {};
    CriteriosCableado cableado = {};
    std::optional<double> dRendimiento = {};  ///< of a grid-connected one, fraction
};

/// The report of an accepted design: its document, warnings included.
/// @throws std::invalid_argument with a Spanish text: no design yet, or a model that its catalogue doesn't have
EFV_API Documento InformeDe(const CSFVAsistenteAislada& diseno, const Portada& portada,
                            const Catalogos& catalogos, const CBaseFactorK& tabla);
EFV_API Documento InformeDe(const CSFVAsistenteRed& diseno, const Portada& portada, const Catalogos& catalogos,
                            const CBaseFactorK& tabla);

/// An accepted design as its report calculates it; nothing without a design or one of its models.
EFV_API std::optional<EstudioAislada> EstudioDe(const CSFVAsistenteAislada& diseno, const Portada& portada,
                                                const Catalogos& catalogos, const CBaseFactorK& tabla);
EFV_API std::optional<EstudioRed> EstudioDe(const CSFVAsistenteRed& diseno, const Portada& portada,
                                            const Catalogos& catalogos, const CBaseFactorK& tabla);

/// What an accepted design gives in a year.
struct EnergiaDiseno {
    std::optional<double> dAsistente;  ///< toward the equator, kWh; nothing outside the table of factors K
    solar::EnergiaPlanos orientada;    ///< of the planes as they look
};

/// The energy that the report of the design tells; nothing without a design, its models or the radiations.
EFV_API std::optional<EnergiaDiseno> EnergiaDe(const CSFVAsistenteAislada& diseno, const Portada& portada,
                                               const Catalogos& catalogos, const CBaseFactorK& tabla);
EFV_API std::optional<EnergiaDiseno> EnergiaDe(const CSFVAsistenteRed& diseno, const Portada& portada,
                                               const Catalogos& catalogos, const CBaseFactorK& tabla);

/// The same of a design that has been calculated. @param portada as it was then
EFV_API std::optional<EnergiaDiseno> EnergiaDe(const EstudioAislada& estudio, const Portada& portada);
EFV_API std::optional<EnergiaDiseno> EnergiaDe(const EstudioRed& estudio, const Portada& portada);

/// Today as a page dates itself, "3-2-2028"; empty when the clock fails.
EFV_API std::string FechaDeHoy();

}  // namespace efv::report

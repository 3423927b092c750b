// What the catalogues don't give of the models of a design.
#pragma once

#include <string>
#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/exportar.h>
#include <quorvel/report/equipos.h>

namespace efv::report {

/// A field that a design takes of a model and the model's file doesn't give.
struct Carencia {
    std::string clase;  ///< of the model: "Módulo"
    std::string campo;  ///< with the value in force: "peso (en vigor 19 kg)"

    bool operator==(const Carencia&) const = default;
};

EFV_API std::vector<Carencia> CarenciasDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos);
EFV_API std::vector<Carencia> CarenciasDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos);

}  // namespace efv::report

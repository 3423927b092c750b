// The data sheet of a catalogue model as rows.
#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/tipos_catalogo.h>

namespace efv::report {

using FilasFicha = std::vector<std::pair<std::string, std::string>>;

/// A field without data of its own: what is shown of it is "—", and why.
struct CampoSinDato {
    std::string campo;
    bool bAusente;       ///< the file doesn't give it; else it holds a 0 for what isn't known
    std::string origen;  ///< where the value in force of an absent one comes from; may be empty
};

/// What a model's dialog shows: caption and text. What has no caption stands with the control before it.
EFV_API FilasFicha FilasDeFicha(const ui::Dialogo& dialogo, std::span<const CampoSinDato> sinDato = {});
EFV_API FilasFicha FilasDeFicha(const TipoCatalogo& tipo, const CModelo& modelo,
                                std::span<const CampoSinDato> sinDato = {});

}  // namespace efv::report

// The catalogues that live as long as the module.
#pragma once

#include <vector>

#include <quorvel/catalogues.h>
#include <quorvel/consumption.h>
#include <quorvel/solar.h>

#include "catalogues/bases.h"
#include "catalogues/format/campos.h"

namespace efv::module {

/// The catalogue of the models M.
template <class M>
typename catalogues::FormatoCatalogo<M>::Base& Base();

CBaseFactorK& BaseFactorK();

/// All of them, for the dialogs and calculations that look something up.
const catalogues::Bases& Bases();

/// What dialogs remember from one opening to the next.
struct Recuerdo {
    int iPaginaAislada = 0;               ///< page of the stand-alone assistant that was open at its last OK
    int iPaginaPanel = 0;                 ///< page of the PV array that was open at its last OK
    std::vector<PatronConsumo> patrones;  ///< the typical patterns, with what the person has changed in them
};
Recuerdo& RecuerdoDialogos();

}  // namespace efv::module

// The catalogues that live as long as the module.
#pragma once

#include <quorvel/catalogues.h>
#include <quorvel/solar.h>

#include "catalogues/campos.h"

namespace efv::module {

/// The catalogue of the models M.
template <class M>
typename catalogues::Catalogo<M>::Base& Base();

CBaseFactorK& BaseFactorK();

}  // namespace efv::module

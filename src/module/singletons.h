// The catalogues that live as long as the module.
#pragma once

#include <quorvel/solar.h>

namespace efv::module {

CBaseFactorK& BaseFactorK();

}  // namespace efv::module

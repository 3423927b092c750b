// The catalogues that live as long as the module.
#pragma once

#include <quorvel/catalogues.h>
#include <quorvel/solar.h>

namespace efv::module {

CBasePanelFoto& BasePanelFoto();
CBaseFactorK& BaseFactorK();

}  // namespace efv::module

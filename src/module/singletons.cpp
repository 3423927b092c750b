#include "module/singletons.h"

namespace {

// Constructed with the library, before the first call that can reach it.
CBasePanelFoto gBasePanelFoto;
CBaseFactorK gBaseFactorK;

}  // namespace

namespace efv::module {

CBasePanelFoto& BasePanelFoto()
{
    return gBasePanelFoto;
}

CBaseFactorK& BaseFactorK()
{
    return gBaseFactorK;
}

}  // namespace efv::module

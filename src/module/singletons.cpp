#include "module/singletons.h"

namespace {

// Constructed with the library, before the first call that can reach it.
CBaseFactorK gBaseFactorK;

}  // namespace

namespace efv::module {

CBaseFactorK& BaseFactorK()
{
    return gBaseFactorK;
}

}  // namespace efv::module

// Numbers as the person reads them.
#pragma once

#include <quorvel/framework/CString.h>

namespace efv::estudio {

/// With a decimal comma; a dash for what has no value.
CString Decimal(double d, int iDecimales);

}  // namespace efv::estudio

// Times of the day as the screens write them.
#pragma once

#include <quorvel/framework/CString.h>

namespace efv::consumption {

/// "08:30" of 8.5 hours. Minutes are rounded: 8.9999 hours read "08:60".
CString HorasYMinutos(double dHoras);

/// The hour that starts at `iHora`: "00-01" to "23-00".
CString NombreDeHora(int iHora);

}  // namespace efv::consumption

// A schematic parted over sheets.
#pragma once

#include <vector>

#include <quorvel/report/esquema.h>

namespace efv::report {

/// First and last row of the schematic on a sheet.
struct FilasDeHoja {
    int iPrimera, iUltima;
};

/// What stands on each sheet; a connection to an element of another sheet leads to dots that say which and
/// where.
std::vector<Esquema> PartirEnHojas(const Esquema& esquema, const std::vector<FilasDeHoja>& filas);

}  // namespace efv::report

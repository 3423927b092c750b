// A schematic parted over sheets.
#pragma once

#include <vector>

#include <quorvel/report/esquema.h>

namespace efv::report {

/// First and last row of the schematic on a sheet.
struct FilasDeHoja {
    int iPrimera, iUltima;
    bool operator==(const FilasDeHoja&) const = default;
};

enum class Columnas { dos, una };
/// For a narrow sheet. In two columns what comes third and fourth stands below and goes back from right to
/// left; in one each element stands below the one before.
Esquema Plegar(Esquema esquema, Columnas columnas);

/// Where dots stand that go on from or to an element of the same column: over or under it, or beside it.
enum class Remisiones { enColumna, alLado };

/// What stands on each sheet; a connection to an element of another sheet leads to dots that say which and
/// where.
std::vector<Esquema> PartirEnHojas(const Esquema& esquema, const std::vector<FilasDeHoja>& filas,
                                   Remisiones remisiones);

}  // namespace efv::report

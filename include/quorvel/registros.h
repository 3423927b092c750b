// The fields of a persisted record by name, for whoever shows, edits or exchanges records as data.
#pragma once

#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework.h>

namespace efv {

/// A field of a record in place: writing through it changes the record. A fixed array of doubles, of any
/// number of dimensions, is one span in memory order.
using ReferenciaCampo =
    std::variant<int*, double*, CString*, CArray<double, double&>*, CStringArray*, std::span<double>>;

struct CampoRegistro {
    std::string_view nombre;
    ReferenciaCampo valor;
};

/// The fields of `registro` in declared order; empty when its class is no exported record.
EFV_API std::vector<CampoRegistro> CamposDeRegistro(CObject& registro);

}  // namespace efv

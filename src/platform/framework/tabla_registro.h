// A persisted record told by two tables: its fields by name in declared order, and its archive items
// in archive order with the schema that added each. Serialize and every exchange by name follow from
// them.
#pragma once

#include <span>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include <quorvel/registros.h>

namespace efv::framework {

template <class R>
using MiembroRegistro =
    std::variant<int R::*, double R::*, CString R::*, CArray<double, double&> R::*, CStringArray R::*>;

template <class R>
struct CampoDeclarado {
    std::string_view nombre;
    MiembroRegistro<R> miembro;
};

template <class R>
struct ItemArchivo {
    int iDesde;  ///< schema that added the item, 1 for the first
    MiembroRegistro<R> miembro;
};

template <class R>
std::vector<CampoRegistro> Campos(R& registro, std::span<const CampoDeclarado<std::type_identity_t<R>>> tabla)
{
    std::vector<CampoRegistro> campos;
    campos.reserve(tabla.size());
    for (const auto& fila : tabla)
        campos.push_back(
            {fila.nombre, std::visit([&](auto m) { return ReferenciaCampo(&(registro.*m)); }, fila.miembro)});
    return campos;
}

/// The schema number, then the items: all of them when writing, those of the number read when reading.
/// A number above the current one is not refused. An item that the archive lacks keeps its value.
template <class R>
void SerializarPorTabla(CArchive& ar, R& registro, std::span<const ItemArchivo<std::type_identity_t<R>>> tabla,
                        int iEsquemaActual)
{
    int iEsquema = iEsquemaActual;
    if (ar.IsStoring())
        ar << iEsquema;
    else
        ar >> iEsquema;
    for (const auto& item : tabla) {
        if (item.iDesde > 1 && iEsquema < item.iDesde)
            continue;
        std::visit(
            [&](auto m) {
                if (ar.IsStoring())
                    ar << registro.*m;
                else
                    ar >> registro.*m;
            },
            item.miembro);
    }
}

}  // namespace efv::framework

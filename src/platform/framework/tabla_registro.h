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

/// A member that is a fixed array of doubles, of any number of dimensions.
template <class R>
struct BloqueRegistro {
    std::span<double> (*en)(R&);
};

template <class R, class T>
constexpr BloqueRegistro<R> HacerBloque(std::span<double> (*en)(R&), T R::* /*miembro*/)
{
    static_assert(std::is_same_v<std::remove_all_extents_t<T>, double>);
    return {en};
}

/// The row of such a member: `Bloque<R, &R::dHorario>()`.
template <class R, auto MIEMBRO>
constexpr BloqueRegistro<R> Bloque()
{
    return HacerBloque<R>(
        [](R& registro) {
            auto& valores = registro.*MIEMBRO;
            return std::span<double>(reinterpret_cast<double*>(&valores), sizeof(valores) / sizeof(double));
        },
        MIEMBRO);
}

template <class R>
using MiembroRegistro = std::variant<int R::*, double R::*, CString R::*, CArray<double, double&> R::*,
                                     CStringArray R::*, BloqueRegistro<R>>;

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

/// The member in place.
template <class R>
ReferenciaCampo Referencia(R& registro, const MiembroRegistro<R>& miembro)
{
    return std::visit(
        [&](auto m) {
            if constexpr (std::is_same_v<decltype(m), BloqueRegistro<R>>)
                return ReferenciaCampo(m.en(registro));
            else
                return ReferenciaCampo(&(registro.*m));
        },
        miembro);
}

inline void Serializar(CArchive& ar, std::span<double> valores)
{
    if (ar.IsStoring())
        ar.WriteDoubles(valores);
    else
        ar.ReadDoubles(valores);
}

template <class T>
void Serializar(CArchive& ar, T* valor)
{
    if (ar.IsStoring())
        ar << *valor;
    else
        ar >> *valor;
}

template <class R>
std::vector<CampoRegistro> Campos(R& registro, std::span<const CampoDeclarado<std::type_identity_t<R>>> tabla)
{
    std::vector<CampoRegistro> campos;
    campos.reserve(tabla.size());
    for (const auto& fila : tabla)
        campos.push_back({fila.nombre, Referencia(registro, fila.miembro)});
    return campos;
}

/// The schema number, then the items: all of them when writing, those of the number read when reading.
/// A number above the current one is not refused. An item that the archive lacks keeps its value.
/// @param esquemaActual an int (32 bits in the archive) or a short (16 bits)
template <class R, class ESQUEMA>
void SerializarPorTabla(CArchive& ar, R& registro, std::span<const ItemArchivo<std::type_identity_t<R>>> tabla,
                        ESQUEMA esquemaActual)
{
    ESQUEMA esquema = esquemaActual;
    Serializar(ar, &esquema);
    for (const auto& item : tabla) {
        if (item.iDesde > 1 && esquema < item.iDesde)
            continue;
        std::visit([&](auto valor) { Serializar(ar, valor); }, Referencia(registro, item.miembro));
    }
}

}  // namespace efv::framework

// A persisted record told by one table: a row for each field, in archive order, with its name, the schema
// that added it and its limits. Serialize, the table on the run-time class, and with it every exchange by
// name, follow from the rows.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

#include <quorvel/framework/CArchive.h>
#include <quorvel/framework/CException.h>
#include <quorvel/registros.h>

#include "platform/framework/registro_clases.h"

namespace efv::framework {

// ---------------------------------------------------------------------------------------------------
// Rows
// ---------------------------------------------------------------------------------------------------

/// A field that is no plain member, found by a function.
template <class R>
struct AccesoRegistro {
    ReferenciaCampo (*en)(R&);
    constexpr bool operator==(const AccesoRegistro&) const = default;
};

/// What a record may hold. A member of another type doesn't compile.
template <class R>
using MiembroRegistro =
    std::variant<int R::*, short R::*, double R::*, CString R::*, CArray<double, double&> R::*,
                 CArray<int, int&> R::*, CUIntArray R::*, CStringArray R::*, AccesoRegistro<R>>;

/// Instead of a schema: the archive doesn't have the field.
inline constexpr int kSinArchivar = 0;

template <class R>
struct FilaRegistro {
    std::string_view nombre;
    MiembroRegistro<R> miembro;
    int iDesde = 1;  ///< schema that added the field; kSinArchivar
    LimitesCampo limites = {};
    std::optional<int> anterior = {};  ///< what an archive of an older schema gives a number; none: it stays
};

/// The rows of a record: `filas`, in archive order, and `schema`, the number that is written, an int (32
/// bits in the archive) or a short (16 bits). To be specialised for each record. A class of values that
/// only adds fields to a record's names that one `Base` and has no schema.
template <class R>
struct FilasDe;

/// Tables one behind the other, for rows that several records have.
template <class R, std::size_t... N>
constexpr auto Juntas(const std::array<FilaRegistro<R>, N>&... tablas)
{
    return std::apply([](const auto&... filas) { return std::array{filas...}; }, std::tuple_cat(tablas...));
}

namespace detalle {

template <class T>
struct PartesMiembro;
template <class R, class T>
struct PartesMiembro<T R::*> {
    using Clase = R;
    using Tipo = T;
};
template <auto MIEMBRO>
using ClaseDe = typename PartesMiembro<decltype(MIEMBRO)>::Clase;
template <auto MIEMBRO>
using TipoDe = typename PartesMiembro<decltype(MIEMBRO)>::Tipo;

}  // namespace detalle

/// A fixed array of doubles, of any number of dimensions: `Bloque<&R::dHorario>()`.
template <auto MIEMBRO, class R = detalle::ClaseDe<MIEMBRO>>
constexpr AccesoRegistro<R> Bloque()
{
    using Tipo = detalle::TipoDe<MIEMBRO>;
    static_assert(std::is_same_v<std::remove_all_extents_t<Tipo>, double> ||
                  std::is_same_v<Tipo, std::array<double, sizeof(Tipo) / sizeof(double)>>);
    return {[](R& registro) {
        return ReferenciaCampo(
            std::span(reinterpret_cast<double*>(&(registro.*MIEMBRO)), sizeof(Tipo) / sizeof(double)));
    }};
}

/// A member of a member: `Dentro<&R::panel, &DatosPanel::dPmpm>()`.
template <auto MIEMBRO, auto INTERIOR, class R = detalle::ClaseDe<MIEMBRO>>
constexpr AccesoRegistro<R> Dentro()
{
    return {[](R& registro) { return ReferenciaCampo(&(registro.*MIEMBRO.*INTERIOR)); }};
}

/// A list of records: `Lista<&R::lReceptores>()`.
template <auto MIEMBRO, class R = detalle::ClaseDe<MIEMBRO>>
constexpr AccesoRegistro<R> Lista()
{
    return {[](R& registro) { return ReferenciaCampo(ListaRegistros(registro.*MIEMBRO)); }};
}

// ---------------------------------------------------------------------------------------------------
// What is wrong with rows is seen by the compiler
// ---------------------------------------------------------------------------------------------------

template <class R>
concept ConFilas = requires
{
    FilasDe<R>::filas;
};

template <class R>
concept ConBase = requires
{
    typename FilasDe<R>::Base;
};

namespace detalle {

template <class R>
constexpr bool EsNumero(const MiembroRegistro<R>& miembro)
{
    return std::holds_alternative<int R::*>(miembro) || std::holds_alternative<short R::*>(miembro) ||
           std::holds_alternative<double R::*>(miembro);
}

/// Every row has a name and a field of its own, and only numbers have a value for older archives.
template <class R, std::size_t N>
consteval bool SonValidas(const std::array<FilaRegistro<R>, N>& filas)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (filas[i].nombre.empty() || filas[i].iDesde < kSinArchivar)
            return false;
        if (filas[i].anterior && (filas[i].iDesde < 2 || !EsNumero<R>(filas[i].miembro)))
            return false;
        for (std::size_t k = 0; k < i; ++k)
            if (filas[i].nombre == filas[k].nombre || filas[i].miembro == filas[k].miembro)
                return false;
    }
    return true;
}

}  // namespace detalle

// ---------------------------------------------------------------------------------------------------
// Names
// ---------------------------------------------------------------------------------------------------

/// What a row says of its field, whatever its class.
struct NombreYLimites {
    std::string_view nombre;
    LimitesCampo limites;
};

namespace detalle {

template <class DUENO, class R, class T>
constexpr NombreYLimites BuscarEntre(T R::*miembro)
{
    for (const auto& fila : FilasDe<DUENO>::filas)
        if (const auto* suyo = std::get_if<T DUENO::*>(&fila.miembro);
            suyo != nullptr && static_cast<T R::*>(*suyo) == miembro)
            return {fila.nombre, fila.limites};
    return {};
}

}  // namespace detalle

/// Name and limits of a member, by the class's own rows or those of its base; an empty name when no row has
/// it.
template <class R, class T>
constexpr NombreYLimites BuscarFila(T R::*miembro)
{
    if constexpr (ConBase<R>)
        if (const auto heredada = detalle::BuscarEntre<typename FilasDe<R>::Base>(miembro);
            !heredada.nombre.empty())
            return heredada;
    return detalle::BuscarEntre<R>(miembro);
}

// ---------------------------------------------------------------------------------------------------
// Fields in place
// ---------------------------------------------------------------------------------------------------

/// The member in place.
template <class R>
ReferenciaCampo Referencia(R& registro, const MiembroRegistro<R>& miembro)
{
    return std::visit(
        [&](auto m) {
            if constexpr (std::is_same_v<decltype(m), AccesoRegistro<R>>)
                return m.en(registro);
            else
                return ReferenciaCampo(&(registro.*m));
        },
        miembro);
}

inline const void* Direccion(const ReferenciaCampo& campo)
{
    struct Visitante {
        const void* operator()(const void* valor) const { return valor; }
        const void* operator()(std::span<double> valores) const { return valores.data(); }
        const void* operator()(const ListaRegistros& lista) const { return lista.Direccion(); }
    };
    return std::visit(Visitante{}, campo);
}

/// The rows in the order in which the class declares their members: that of their places in an object.
template <class R>
std::vector<std::size_t> OrdenDeclarado()
{
    const auto muestra = std::make_unique<R>();
    const auto direccion = [&](std::size_t i) {
        return Direccion(Referencia(*muestra, FilasDe<R>::filas[i].miembro));
    };
    std::vector<std::size_t> orden(FilasDe<R>::filas.size());
    std::iota(orden.begin(), orden.end(), std::size_t{0});
    std::ranges::sort(orden, std::less<const void*>{}, direccion);
    return orden;
}

/// The fields by name, in declared order, those of the base first.
template <class R>
std::vector<CampoRegistro> Campos(R& registro)
{
    static_assert(detalle::SonValidas(FilasDe<R>::filas));
    static const std::vector<std::size_t> orden = OrdenDeclarado<R>();
    std::vector<CampoRegistro> campos;
    if constexpr (ConBase<R>)
        campos = Campos<typename FilasDe<R>::Base>(registro);
    campos.reserve(campos.size() + orden.size());
    for (const std::size_t i : orden) {
        const auto& fila = FilasDe<R>::filas[i];
        campos.push_back({fila.nombre, Referencia(registro, fila.miembro), fila.limites});
    }
    return campos;
}

// ---------------------------------------------------------------------------------------------------
// Run-time class
// ---------------------------------------------------------------------------------------------------

template <class R>
class TablaDe final : public TablaRegistro {
public:
    std::vector<CampoRegistro> Campos(CObject& registro) const override
    {
        return framework::Campos(static_cast<R&>(registro));
    }
};

/// The class record of a record: creatable, with its table.
template <class R>
CRuntimeClass ClaseDeRegistro(std::string_view nombre)
{
    static const TablaDe<R> tabla;
    return {nombre, &CObject::GetThisClass(), &Crear<R>, 0, &tabla};
}

// ---------------------------------------------------------------------------------------------------
// Archive
// ---------------------------------------------------------------------------------------------------

template <class T>
void Serializar(CArchive& ar, T* valor)
{
    if (ar.IsStoring())
        ar << *valor;
    else
        ar >> *valor;
}

inline void Serializar(CArchive& ar, std::span<double> valores)
{
    if (ar.IsStoring())
        ar.WriteDoubles(valores);
    else
        ar.ReadDoubles(valores);
}

/// The count, then 32 bits a number.
template <class N, class ARG>
requires std::is_integral_v<N>
void Serializar(CArchive& ar, CArray<N, ARG>* valores)
{
    static_assert(sizeof(N) == 4);
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<std::size_t>(valores->GetSize()));
    } else {
        const std::size_t n = ar.ReadCount();
        if (n > ar.Restantes() / sizeof(N))
            throw CArchiveException(CArchiveException::Causa::finDeFichero);
        valores->SetSize(static_cast<std::ptrdiff_t>(n));
    }
    for (N& valor : *valores)
        Serializar(ar, &valor);
}

/// The count, then the records' own items, one record after the other.
inline void Serializar(CArchive& ar, const ListaRegistros& lista)
{
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<std::size_t>(lista.GetSize()));
        for (std::ptrdiff_t i = 0; i < lista.GetSize(); ++i)
            lista.GetAt(i).Serialize(ar);
        return;
    }
    lista.RemoveAll();
    for (std::size_t n = ar.ReadCount(); n > 0; --n)
        lista.Add().Serialize(ar);
}

/// A number that the archive is too old to hold.
inline void PonerAnterior(const ReferenciaCampo& campo, int iValor)
{
    std::visit(
        [iValor](auto valor) {
            using Tipo = std::remove_pointer_t<decltype(valor)>;
            if constexpr (std::is_arithmetic_v<Tipo>)
                *valor = static_cast<Tipo>(iValor);
        },
        campo);
}

/// The schema number, then the archived fields: all of them when writing, those of the number read when
/// reading. A number above the current one is not refused. A field that the archive lacks keeps its value,
/// unless its row has one for older archives.
template <class R>
void SerializarPorTabla(CArchive& ar, R& registro)
{
    auto schema = FilasDe<R>::schema;
    Serializar(ar, &schema);
    for (const auto& fila : FilasDe<R>::filas) {
        if (fila.iDesde == kSinArchivar)
            continue;
        const ReferenciaCampo campo = Referencia(registro, fila.miembro);
        if (fila.iDesde == 1 || schema >= fila.iDesde)
            std::visit([&](auto valor) { Serializar(ar, valor); }, campo);
        else if (fila.anterior)
            PonerAnterior(campo, *fila.anterior);
    }
}

}  // namespace efv::framework

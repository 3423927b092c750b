// The fields of a persisted record by name, for whoever shows, edits or exchanges records as data.
#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>

namespace efv {

/// What a number, or each number of an array, must lie between; both ends belong to it. Nothing checks it
/// on its own: whoever takes a value from a person or a file does.
struct LimitesCampo {
    double dMinimo = -std::numeric_limits<double>::infinity();
    double dMaximo = std::numeric_limits<double>::infinity();

    constexpr bool Alguno() const
    {
        constexpr LimitesCampo ninguno;
        return dMinimo > ninguno.dMinimo || dMaximo < ninguno.dMaximo;
    }
    bool operator==(const LimitesCampo&) const = default;
};

/// A list that owns records of one class, in place: what a CObArrayPropio does, whatever its class.
class ListaRegistros {
public:
    template <class T>
    explicit ListaRegistros(CObArrayPropio<T>& lista) : m_lista(&lista), m_operaciones(&kOperaciones<T>)
    {
    }

    /// The class of its records.
    const CRuntimeClass& GetClase() const { return m_operaciones->clase(); }
    std::ptrdiff_t GetSize() const { return m_operaciones->tamano(m_lista); }
    CObject& GetAt(std::ptrdiff_t i) const { return m_operaciones->en(m_lista, i); }
    void RemoveAll() const { m_operaciones->vaciar(m_lista); }
    /// Appends a new record.
    CObject& Add() const { return m_operaciones->anadir(m_lista); }

    /// The list itself, to tell one from another.
    const void* Direccion() const { return m_lista; }

private:
    struct Operaciones {
        const CRuntimeClass& (*clase)();
        std::ptrdiff_t (*tamano)(const void*);
        CObject& (*en)(const void*, std::ptrdiff_t);
        void (*vaciar)(void*);
        CObject& (*anadir)(void*);
    };

    template <class T>
    static constexpr Operaciones kOperaciones = {
        &T::GetThisClass,
        [](const void* lista) { return static_cast<const CObArrayPropio<T>*>(lista)->GetSize(); },
        [](const void* lista, std::ptrdiff_t i) -> CObject& {
            return static_cast<const CObArrayPropio<T>*>(lista)->GetAt(i);
        },
        [](void* lista) { static_cast<CObArrayPropio<T>*>(lista)->RemoveAll(); },
        [](void* lista) -> CObject& {
            return static_cast<CObArrayPropio<T>*>(lista)->Add(std::make_unique<T>());
        },
    };

    void* m_lista;
    const Operaciones* m_operaciones;
};

/// The same of a list that is only read.
class ListaRegistrosConst {
public:
    explicit ListaRegistrosConst(const ListaRegistros& lista) : m_lista(lista) {}

    const CRuntimeClass& GetClase() const { return m_lista.GetClase(); }
    std::ptrdiff_t GetSize() const { return m_lista.GetSize(); }
    const CObject& GetAt(std::ptrdiff_t i) const { return m_lista.GetAt(i); }

private:
    ListaRegistros m_lista;
};

/// A field of a record in place: writing through it changes the record. A fixed array of doubles, of any
/// number of dimensions, is one span in memory order.
using ReferenciaCampo =
    std::variant<int*, short*, double*, CString*, CArray<double, double&>*, CArray<int, int&>*, CUIntArray*,
                 CStringArray*, std::span<double>, ListaRegistros>;

/// A field of a record that is only read.
using ReferenciaCampoConst =
    std::variant<const int*, const short*, const double*, const CString*, const CArray<double, double&>*,
                 const CArray<int, int&>*, const CUIntArray*, const CStringArray*, std::span<const double>,
                 ListaRegistrosConst>;

template <class REFERENCIA>
struct CampoConNombre {
    std::string_view nombre;  ///< of the member, as in the class
    REFERENCIA valor;
    LimitesCampo limites = {};
};
using CampoRegistro = CampoConNombre<ReferenciaCampo>;
using CampoRegistroConst = CampoConNombre<ReferenciaCampoConst>;

/// The fields of a record's class. One constant object a class, on its CRuntimeClass.
class EFV_API TablaRegistro {
public:
    TablaRegistro() = default;
    TablaRegistro(const TablaRegistro&) = delete;
    TablaRegistro& operator=(const TablaRegistro&) = delete;
    virtual ~TablaRegistro();

    /// In declared order. `registro` must be of the class.
    virtual std::vector<CampoRegistro> Campos(CObject& registro) const = 0;
};

/// The fields of `registro` in declared order; empty when its class is no exported record.
EFV_API std::vector<CampoRegistro> CamposDeRegistro(CObject& registro);
EFV_API std::vector<CampoRegistroConst> CamposDeRegistro(const CObject& registro);

/// The same fields, only to be read.
EFV_API std::vector<CampoRegistroConst> SoloLectura(const std::vector<CampoRegistro>& campos);

}  // namespace efv

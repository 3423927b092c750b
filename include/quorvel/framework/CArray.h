// Growing arrays that check every index: one outside throws CInvalidArgException.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>

namespace efv {

/// Throws CInvalidArgException when `indice` isn't in 0 to `tamano` - 1.
EFV_API void ComprobarIndice(std::ptrdiff_t indice, std::size_t tamano);

}  // namespace efv

/// Array of values. The second parameter is the argument type that a host's declarations name; values
/// are always taken by constant reference.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray {
public:
    using value_type = TYPE;

    CArray() = default;
    CArray(std::initializer_list<TYPE> valores) : m_datos(valores) {}

    std::ptrdiff_t GetSize() const { return std::ssize(m_datos); }
    bool IsEmpty() const { return m_datos.empty(); }

    const TYPE& GetAt(std::ptrdiff_t i) const { return m_datos[Posicion(i)]; }
    void SetAt(std::ptrdiff_t i, const TYPE& valor) { m_datos[Posicion(i)] = valor; }
    TYPE& ElementAt(std::ptrdiff_t i) { return m_datos[Posicion(i)]; }
    TYPE& operator[](std::ptrdiff_t i) { return m_datos[Posicion(i)]; }
    const TYPE& operator[](std::ptrdiff_t i) const { return m_datos[Posicion(i)]; }

    /// Appends `valor`; returns its index.
    std::ptrdiff_t Add(const TYPE& valor)
    {
        m_datos.push_back(valor);
        return GetSize() - 1;
    }

    /// Sets the number of elements; new ones are value-initialised. A negative size throws.
    void SetSize(std::ptrdiff_t n)
    {
        efv::ComprobarIndice(n, std::size_t(PTRDIFF_MAX));
        m_datos.resize(static_cast<std::size_t>(n));
    }

    void RemoveAt(std::ptrdiff_t i)
    {
        m_datos.erase(m_datos.begin() + static_cast<std::ptrdiff_t>(Posicion(i)));
    }
    void RemoveAll() { m_datos.clear(); }

    TYPE* GetData() { return m_datos.data(); }
    const TYPE* GetData() const { return m_datos.data(); }

    auto begin() { return m_datos.begin(); }
    auto end() { return m_datos.end(); }
    auto begin() const { return m_datos.begin(); }
    auto end() const { return m_datos.end(); }

    bool operator==(const CArray&) const = default;

private:
    std::size_t Posicion(std::ptrdiff_t i) const
    {
        efv::ComprobarIndice(i, m_datos.size());
        return static_cast<std::size_t>(i);
    }

    std::vector<TYPE> m_datos;
};

using CStringArray = CArray<CString>;
using CUIntArray = CArray<unsigned>;

/// References to objects that somebody else owns.
using CObArray = CArray<CObject*>;

/// Objects that the array owns: they end with it, or when they are removed.
template <class TYPE>
class CObArrayPropio {
public:
    std::ptrdiff_t GetSize() const { return std::ssize(m_objetos); }
    bool IsEmpty() const { return m_objetos.empty(); }

    TYPE& GetAt(std::ptrdiff_t i) const
    {
        efv::ComprobarIndice(i, m_objetos.size());
        return *m_objetos[static_cast<std::size_t>(i)];
    }
    TYPE& operator[](std::ptrdiff_t i) const { return GetAt(i); }

    /// Takes `objeto` over and appends it; a null one throws. Returns the object.
    template <class DERIVED>
    DERIVED& Add(std::unique_ptr<DERIVED> objeto)
    {
        efv::ComprobarIndice(0, objeto ? 1 : 0);
        DERIVED& referencia = *objeto;
        m_objetos.push_back(std::move(objeto));
        return referencia;
    }

    void RemoveAt(std::ptrdiff_t i)
    {
        efv::ComprobarIndice(i, m_objetos.size());
        m_objetos.erase(m_objetos.begin() + i);
    }
    void RemoveAll() { m_objetos.clear(); }
    /// The last object, which is the caller's from now on.
    std::unique_ptr<TYPE> RemoveLast()
    {
        efv::ComprobarIndice(0, m_objetos.size());
        std::unique_ptr<TYPE> objeto = std::move(m_objetos.back());
        m_objetos.pop_back();
        return objeto;
    }

    /// The objects at the two places exchange them.
    void Swap(std::ptrdiff_t i, std::ptrdiff_t k)
    {
        efv::ComprobarIndice(i, m_objetos.size());
        efv::ComprobarIndice(k, m_objetos.size());
        m_objetos[static_cast<std::size_t>(i)].swap(m_objetos[static_cast<std::size_t>(k)]);
    }

    /// Iterates over the owning pointers, in order.
    auto begin() const { return m_objetos.begin(); }
    auto end() const { return m_objetos.end(); }

private:
    std::vector<std::unique_ptr<TYPE>> m_objetos;
};

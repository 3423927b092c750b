// The values that cross the boundary, each with its JSON form in both directions. `null` reads as the
// default value of its type (0, empty). What doesn't fit throws ErrorValor.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include <QuorvelEFV.h>

#include "rpc/errores.h"
#include "rpc/json.h"

namespace efv::rpc {

/// Throws ErrorValor: `que` was expected, `llego` came.
[[noreturn]] void Esperaba(std::string_view que, const Json& llego);

void LeerValor(const Json& j, bool& b);
void LeerValor(const Json& j, short& n);
void LeerValor(const Json& j, int& n);
void LeerValor(const Json& j, unsigned& n);
void LeerValor(const Json& j, double& d);
void LeerValor(const Json& j, CString& cs);
void LeerValor(const Json& j, CArray<double, double&>& ad);
void LeerValor(const Json& j, CArray<int, int&>& ai);
void LeerValor(const Json& j, CUIntArray& an);
void LeerValor(const Json& j, CStringArray& acs);
/// A list of exactly as many numbers as there are places.
void LeerValor(const Json& j, std::span<double> ad);
void LeerValor(const Json& j, std::span<int> ai);
/// A list of records, which are objects; null is an empty one.
void LeerValor(const Json& j, const ListaRegistros& registros);

void EscribirValor(std::string& salida, int n);
void EscribirValor(std::string& salida, unsigned n);
void EscribirValor(std::string& salida, double d);
void EscribirValor(std::string& salida, std::wstring_view cs);
void EscribirValor(std::string& salida, const wchar_t* cs);
void EscribirValor(std::string& salida, const CArray<double, double&>& ad);
void EscribirValor(std::string& salida, const CArray<int, int&>& ai);
void EscribirValor(std::string& salida, const CUIntArray& an);
void EscribirValor(std::string& salida, const CStringArray& acs);
void EscribirValor(std::string& salida, std::span<const double> ad);
void EscribirValor(std::string& salida, std::span<const int> ai);
void EscribirValor(std::string& salida, const ListaRegistrosConst& registros);
/// {"csArchivo","bEdicion","iCargada","aFamilias":[names of the latitudes or families]}
void EscribirValor(std::string& salida, const CBaseXML& base);

/// The record as an object, fields in declared order.
void EscribirRegistro(std::string& salida, const CObject& registro);
/// Fields that `j` lacks keep what they have; one that the record lacks is an error.
void LeerRegistro(const Json& j, CObject& registro);

/// The numbers of an array of any number of dimensions, in memory order.
template <class T>
requires std::is_array_v<T>
auto EnFila(T& valores)
{
    using Elemento = std::remove_all_extents_t<T>;
    static_assert(std::is_same_v<Elemento, double> || std::is_same_v<Elemento, int>);
    return std::span<Elemento>(reinterpret_cast<Elemento*>(&valores), sizeof(T) / sizeof(Elemento));
}

}  // namespace efv::rpc

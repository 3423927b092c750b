// The values that cross the boundary, each with its JSON form in both directions. `null` reads as the
// default value of its type (0, empty). What doesn't fit throws ErrorValor.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include <QuorvelEFV.h>

#include "rpc/json.h"

namespace efv::orden::rpc {

/// Throws ErrorValor: `que` was expected, `llego` came.
[[noreturn]] void Esperaba(std::string_view que, const Json& llego);

void LeerValor(const Json& j, bool& b);
void LeerValor(const Json& j, short& n);
void LeerValor(const Json& j, int& n);
void LeerValor(const Json& j, double& d);
void LeerValor(const Json& j, CString& cs);
void LeerValor(const Json& j, CArray<double, double&>& ad);
void LeerValor(const Json& j, CStringArray& acs);
/// A list of exactly as many numbers as `ad` has places.
void LeerValor(const Json& j, std::span<double> ad);

void EscribirValor(std::string& salida, int n);
void EscribirValor(std::string& salida, double d);
void EscribirValor(std::string& salida, std::wstring_view cs);
void EscribirValor(std::string& salida, const wchar_t* cs);
void EscribirValor(std::string& salida, const CArray<double, double&>& ad);
void EscribirValor(std::string& salida, const CStringArray& acs);
void EscribirValor(std::string& salida, std::span<const double> ad);
/// {"csArchivo","bEdicion","iCargada","aFamilias":[names of the latitudes or families]}
void EscribirValor(std::string& salida, const CBaseXML& base);

/// The record as an object, fields in declared order.
void EscribirRegistro(std::string& salida, CObject& registro);
/// Fields that `j` lacks keep what they have; one that the record lacks is an error.
void LeerRegistro(const Json& j, CObject& registro);

/// The doubles of an array of any number of dimensions, in memory order.
template <class T>
requires std::is_array_v<T> std::span<double> EnFila(T& valores)
{
    static_assert(std::is_same_v<std::remove_all_extents_t<T>, double>);
    return {reinterpret_cast<double*>(&valores), sizeof(T) / sizeof(double)};
}

}  // namespace efv::orden::rpc

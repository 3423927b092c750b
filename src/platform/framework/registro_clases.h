// The classes that can be found and created by name.
#pragma once

#include <type_traits>

#include <quorvel/framework/CObject.h>

namespace efv::framework {

/// True for a class with an archive of its own.
template <class T>
inline constexpr bool kEsRegistro = !std::is_same_v<decltype(&T::Serialize), decltype(&CObject::Serialize)>;

/// Adds `clase` behind those registered so far. A class of a name already there isn't added again.
/// @throws std::logic_error for a record that can't be exchanged by name: one that can't be created or has no
/// table of fields, or whose table holds a list of such records
void RegistrarClase(const CRuntimeClass& clase, bool bRegistro);

template <class T>
void RegistrarClase()
{
    RegistrarClase(T::GetThisClass(), kEsRegistro<T>);
}

/// Registers the classes of the module. Defined where the module is put together and called from here: who
/// links the framework, statically too, links the classes as well.
void RegistrarClasesDelModulo();

/// Function that makes a T, for the class record of a dynamically creatable class.
template <class T>
std::unique_ptr<CObject> Crear()
{
    return std::make_unique<T>();
}

}  // namespace efv::framework

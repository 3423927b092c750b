// The classes that can be found and created by name.
#pragma once

#include <quorvel/framework/CObject.h>

namespace efv::framework {

/// Adds `clase` behind those registered so far. A class of a name already there isn't added again.
void RegistrarClase(const CRuntimeClass& clase);

/// Function that makes a T, for the class record of a dynamically creatable class.
template <class T>
std::unique_ptr<CObject> Crear()
{
    return std::make_unique<T>();
}

}  // namespace efv::framework

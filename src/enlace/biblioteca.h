// A library written in C that comes into the process when it is first needed, not at the start of every
// program: finding its names, and those of the libraries behind it, would be much of that start.
#pragma once

#include <dlfcn.h>

namespace efv::enlace {

/// Takes functions by name; the library stays until the process ends.
class Biblioteca {
public:
    /// @param soname the name that the system knows it by
    explicit Biblioteca(const char* soname) : m_mango(dlopen(soname, RTLD_NOW | RTLD_LOCAL)) {}

    template <class Funcion>
    void Tomar(Funcion& funcion, const char* nombre)
    {
        funcion = m_mango != nullptr ? reinterpret_cast<Funcion>(dlsym(m_mango, nombre)) : nullptr;
        m_bCompleta = m_bCompleta && funcion != nullptr;
    }

    /// Whether the library and all its functions were there.
    bool Completa() const { return m_bCompleta; }

private:
    void* m_mango;
    bool m_bCompleta = m_mango != nullptr;
};

}  // namespace efv::enlace

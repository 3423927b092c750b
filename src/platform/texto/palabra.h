// Eight characters at once, from texts with room behind their zero.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace efv::texto {

/// What must be readable behind the zero of a text with room, bytes.
inline constexpr std::size_t kHolgura = 16;

using Palabra = std::uint64_t;

inline Palabra LeerPalabra(const char* texto)
{
    Palabra palabra = 0;
    std::memcpy(&palabra, texto, sizeof palabra);
    return palabra;
}

}  // namespace efv::texto
